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
 * Renders a scene off screen as the viewer would show it at this moment (camera, clipping planes,
 * lights, background, transparency) and writes it to an open file, numbers with a decimal point
 * whatever the locale. The picture has exactly the size of printSize() at the resolution, and its
 * lines are as wide in inches as on the screen. The viewer and its camera stay as they are.
 *
 * @return whether the whole picture was rendered and written; nothing is written when rendering
 *         fails, as it does for a view of less than an inch
 */
bool printToPostScript(SoNode* root, std::FILE* file, SoQtExaminerViewer* viewer, int dotsPerInch);

} // namespace ImageExport
