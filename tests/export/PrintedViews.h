#pragma once

#include "tests/support/LastingWindow.h"

#include <QByteArray>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <string>

/** The printer's resolution in dots per inch. */
constexpr int printer = 300;

/** The real main window with its views, and a folder for pictures of them. */
class PrintedViews : public LastingWindow {
protected:
    PrintedViews()
        : LastingWindow(QSize(1200, 950)) {}

    /** Saves a view through the real dialog; returns what the program wrote to standard output. */
    std::string save(SoQtGeneralViewerFrame& frame, const QString& path);

    QString path() const { return folder.filePath("view.eps"); }
    QByteArray saved() const;

    /** The saved file as Ghostscript draws it for the printer. */
    QImage drawn() const { return drawn(path()); }
    static QImage drawn(const QString& postScript);

    /** Gives a view a size on the screen of whole inches, and one pixel at most. */
    void resizeToWholeInches(SoQtGeneralViewerFrame& frame, int width, int height) const;

    static void settleRedraws();

    QTemporaryDir folder;
};
