#pragma once

#include <QString>

class QWidget;
class SoQtGeneralViewerFrame;

/** Documents as files of the user's choice: the numbers behind them as text, their view as image.
 */
namespace DocumentSaving {

/**
 * Asks for a file and writes a frame's numbers to it.
 *
 * @param frame null, or a hyperboloid or helix frame as the flag says; with null nothing is asked.
 *              It may die while the user chooses; then nothing is written
 */
void saveText(SoQtGeneralViewerFrame* frame, bool isHyperboloid, QWidget* parent);

/** Writes a frame's numbers to a file, see DataExport; a file that cannot be opened is passed over.
 */
void writeText(const QString& fileName, const SoQtGeneralViewerFrame& frame, bool isHyperboloid);

/**
 * Asks for a file and writes a frame's view to it, see ImageExport, for a printer of 300 dots per
 * inch. Tells on standard output whether the whole picture was written; half a file is removed.
 *
 * @param frame the frame, which may die while the user chooses; without one, or with one that has
 *              no viewer, only a warning is shown
 */
void saveImage(SoQtGeneralViewerFrame* frame, QWidget* parent);

} // namespace DocumentSaving
