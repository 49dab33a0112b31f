#pragma once

#include <Inventor/SbVec2s.h>
#include <cstdio>

class SoNode;
class SoQtExaminerViewer;

/** The view of a document as Encapsulated PostScript at print resolution. */
namespace ImageExport {

/**
 * The size of the printed picture in pixels: the size on the screen in whole inches, what is left
 * over cut off, times the printer's resolution.
 */
SbVec2s printSize(const SbVec2s& screenSize, float screenPixelsPerInch, int dotsPerInch);

/**
 * Renders a scene off screen as the viewer shows it (camera, headlight, background, transparency)
 * and writes it to an open file, numbers with a decimal point whatever the locale.
 *
 * @return whether the whole picture was rendered and written; nothing is written when rendering
 *         fails, as it does for a view of less than an inch
 */
bool printToPostScript(SoNode* root, std::FILE* file, SoQtExaminerViewer* viewer, int dotsPerInch);

} // namespace ImageExport
