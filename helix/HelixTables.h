#pragma once

#include "helix/HelixCurve.h"
#include "helix/HelixProfile.h"
#include "helix/HelixTable.h"

/** The three tables of a helix: their sizes, and how they are sampled. */
class HelixTables {
public:
    struct Counts {
        /** Centre-line vertices. */
        unsigned int line;
        /** Vertices around one ring of the tube. */
        unsigned int ring;
    };

    /** A choice among the tables. */
    struct Choice {
        bool line;
        bool tube;
        bool ribbon;
    };

    const HelixTable& getLine() const { return line; }
    const HelixTable& getTube() const { return tube; }
    const HelixTable& getRibbon() const { return ribbon; }

    /** Gives the chosen tables the size of the counts; they wait to be filled. */
    void init(const Counts& counts, const Choice& chosen);

    /** Throws std::logic_error unless every table has the size of the counts. */
    void requireSizesOf(const Counts& counts) const;

    /**
     * Fills the chosen tables, and those that wait to be filled. Tube and ribbon go along the
     * centre line that the tables hold, and have its colours.
     *
     * Throws std::logic_error unless every table has the size of the counts.
     */
    void fill(const Counts& counts, const Choice& chosen, const HelixCurve& curve,
              const HelixProfile& profile);

private:
    HelixTable line;
    HelixTable tube;
    HelixTable ribbon;
};
