#pragma once

#include "batch/Sweep.h"
#include "helix/HelixParameter.h"
#include "hyperboloid/HyperboloidParameters.h"
#include "math/Triple.h"
#include "viewer/DocumentScene.h"

#include <Inventor/SbVec3f.h>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/** The four documents that the viewer shows when it has started. */
enum class Document { U, X, M, helix };

/** One file to be made of a document. */
struct Output {
    enum class Kind { text, image, scene };

    Kind kind;
    Document document;
    /** A name in which {K13} stands for a value, see FileName; "-" is standard output. */
    std::string file;
};

/** Where a helix gets its point of U space from. */
struct ColumnAndRow {
    int column;
    int row;
};
/** A vertex by its index, a vertex by its column and row, or any point of U space. */
using HelixPoint = std::variant<int, ColumnAndRow, FloatTriple>;

/** How surfaces look, each 0 to 100; what is not given stays as in a new model. */
struct Appearance {
    std::optional<int> transparency;
    std::optional<int> lightness;
    std::optional<int> saturation;
};

/** From where a document is seen. New, it is the view that the viewer starts with. */
struct Viewpoint {
    bool perspective = false;
    SbVec3f direction{0, 0, -1};
    SbVec3f up{0, 1, 0};
    /** How many times larger than at first. */
    double zoom = 1;
    /** Whether the scene as it is fills the view, rather than the scene of the start values. */
    bool fitted = false;
};

/** How large pictures are. */
struct Paper {
    /** In inches. */
    double width = 6;
    double height = 5;
    int dotsPerInch = 300;
    /** Lines are as wide in inches as one pixel of such a screen. */
    double screenDotsPerInch = 96;

    /** How many whole dots a length in inches comes closest to. */
    double dots(double inches) const { return std::round(inches * dotsPerInch); }
};

/** All that a call of the program asks for. */
struct BatchOptions {
    HyperboloidParameters parameters;
    std::vector<Sweep> sweeps;
    HelixPoint helixPoint = 0;
    /** In the order of HelixParameter::all(); what is not given stays as in a new model. */
    std::array<std::optional<double>, HelixParameter::count> helixValues;
    Appearance appearance;
    DocumentScene::Look look = DocumentScene::Look::lit;
    Viewpoint viewpoint;
    Paper paper;
    std::vector<Output> outputs;
    /** Whether commands are to be printed, one for each set of the sweeps. */
    bool list = false;
    /** The words of a command that asks for the same as this one, without outputs and sweeps. */
    std::vector<std::string> words;
};
