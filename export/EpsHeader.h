#pragma once

#include <Inventor/SbVec2s.h>
#include <optional>
#include <string>
#include <string_view>

/**
 * The header that the scene library writes before a picture as Encapsulated PostScript, put right.
 *
 * The library gives every picture the screen's resolution and hangs it from the top of a letter
 * page; a picture for a printer comes out too large and below the page's lower edge.
 */
namespace EpsHeader {

/** A picture whose header has been put right. */
struct Corrected {
    std::string header;
    /** All that follows the header, as it was. */
    std::string_view rest;
};

/**
 * Puts a picture's lower left corner at the origin and gives it its resolution and its size: the
 * bounding box is 0 0 72 w/d 72 h/d points for w x h pixels at d dots per inch, in whole points
 * that hold all of the picture.
 *
 * @param picture what the library wrote; the result's rest is a part of it
 * @param pixels  the picture's size w x h
 * @return nothing when the header is not the one that is known
 */
std::optional<Corrected> correct(std::string_view picture, const SbVec2s& pixels, int dotsPerInch);

} // namespace EpsHeader
