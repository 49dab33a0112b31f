#pragma once

#include <QString>
#include <optional>

class QWidget;
class SoQtGeneralViewerFrame;

/**
 * Documents as files of the user's choice: the numbers behind them as text, their view as image. A
 * file is written whole or not at all, and an older one stays until then, see WholeFile.
 */
namespace DocumentSaving {

/**
 * Asks for a file and writes a frame's numbers to it.
 *
 * @param frame null, or a hyperboloid or helix frame as the flag says; with null nothing is asked.
 *              It may die while the user chooses; then nothing is written
 * @return what writeText() returns, or that the frame has died; none when nothing was asked or
 *         the user gave up: what has been said before still stands
 */
[[nodiscard]] std::optional<QString> saveText(SoQtGeneralViewerFrame* frame, bool isHyperboloid,
                                              QWidget* parent);

/**
 * Writes a frame's numbers to a file, see DataExport. A file that cannot be opened is passed over.
 *
 * @return what to tell the user: that the file has been saved, or why it has not, which is on
 *         standard error too; empty when it was passed over
 */
QString writeText(const QString& fileName, const SoQtGeneralViewerFrame& frame, bool isHyperboloid);

/**
 * Asks for a file and writes a frame's view to it, see ImageExport, for a printer of 300 dots per
 * inch. Tells on standard output whether the whole picture was written.
 *
 * @param frame the frame, which may die while the user chooses; without one, or with one that has
 *              no viewer, only a warning is shown
 * @return what to tell the user: that the file has been saved, or why it has not, which is on
 *         standard error too; a file that cannot be opened is warned of besides. None when
 *         nothing was asked or the user gave up
 */
[[nodiscard]] std::optional<QString> saveImage(SoQtGeneralViewerFrame* frame, QWidget* parent);

} // namespace DocumentSaving
