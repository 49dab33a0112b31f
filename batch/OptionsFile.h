#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

/**
 * Files of options, in TOML or INI.
 *
 * What the command line says wins: over the same option, and over those that say the same in
 * another way, such as a grid over columns or a sweep over a value. An option that is given once
 * may have an array for its value, vertex = [3, 4] say. Sections are refused, and so is a key that
 * stands twice. A comment begins with a # that is in no quotes, or with a ; after a space.
 */
class OptionsFile : public CLI::ConfigTOML {
public:
    /** @param commandLine outlives the file */
    explicit OptionsFile(const CLI::App& commandLine)
        : app(commandLine) {}

    /** Reads a file while the command line has been read and none of its options taken. */
    std::vector<CLI::ConfigItem> from_config(std::istream& input) const override;

    /**
     * A file of the options that are given. Throws CLI::ConfigError when one of them could not be
     * read from it again: a text with both kinds of quotes or with a line break.
     */
    std::string text() const;

private:
    bool isGiven(const std::string& option) const;
    /** Whether the command line says by any option what a parameter is. */
    bool isDecided(std::string_view parameter) const;
    /** Takes away what the command line says otherwise. */
    void giveWay(CLI::ConfigItem& item) const;
    void keepUndecidedSide(CLI::ConfigItem& grid) const;
    /** An option that is given once has one text. */
    void joinArray(CLI::ConfigItem& item) const;

    const CLI::App& app;
};
