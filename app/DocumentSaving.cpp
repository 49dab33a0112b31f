#include "app/DocumentSaving.h"

#include "app/DataExport.h"
#include "app/ImageExport.h"
#include "app/Messages.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/nodes/SoSeparator.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <cstdio>
#include <fstream>
#include <iostream>

namespace {

constexpr int printerDotsPerInch = 300;

/** Half a picture might pass for a whole one. What is no file of its own, a device say, stays. */
void removeHalfWritten(const QString& fileName) {
    const QFileInfo target(fileName);
    if (target.isFile() && !target.isSymLink()) {
        QFile::remove(fileName);
    }
}

void writeImage(const QString& fileName, std::FILE* file, const SoQtGeneralViewerFrame& frame) {
    const bool rendered = ImageExport::printToPostScript(frame.getSceneRoot(), file,
                                                         frame.getViewer(), printerDotsPerInch);
    const bool closed = std::fclose(file) == 0;
    const bool written = rendered && closed;
    if (!written) {
        std::cerr << "The image cannot be rendered or written." << std::endl;
        removeHalfWritten(fileName);
    }
    std::cout << "ok? " << written << std::endl;
}

} // namespace

void DocumentSaving::saveText(SoQtGeneralViewerFrame* frame, bool isHyperboloid, QWidget* parent) {
    if (frame == nullptr) {
        return;
    }
    // The frame may be closed while the user chooses the file.
    const QPointer<SoQtGeneralViewerFrame> saved(frame);
    const QString fileName = Messages::askForFileToSave(
        QCoreApplication::translate("QMainWindow", "Text (*.txt)"), "txt", parent);
    if (!fileName.isEmpty() && saved) {
        writeText(fileName, *saved, isHyperboloid);
    }
}

void DocumentSaving::writeText(const QString& fileName, const SoQtGeneralViewerFrame& frame,
                               bool isHyperboloid) {
    // On purpose a file that cannot be opened is not reported: the stream has failed and stays so.
    std::ofstream file(QFile::encodeName(fileName).constData());
    if (isHyperboloid) {
        DataExport::writeHyperboloid(file, *qobject_cast<const HyperboloidFrame*>(&frame));
    } else {
        DataExport::writeHelix(file, qobject_cast<const HelixFrame*>(&frame)->getHelix());
    }
}

void DocumentSaving::saveImage(SoQtGeneralViewerFrame* frame, QWidget* parent) {
    if (frame == nullptr || frame->getViewer() == nullptr) {
        Messages::warn(QCoreApplication::translate("MainWindow", "Select a Viewer"), parent);
        return;
    }
    const QPointer<SoQtGeneralViewerFrame> saved(frame);
    const QString fileName = Messages::askForFileToSave(
        QCoreApplication::translate("QMainWindow", "PostScript (*.eps)"), "eps", parent);
    if (fileName.isEmpty() || !saved) {
        return;
    }
    std::FILE* file = std::fopen(QFile::encodeName(fileName).constData(), "w");
    if (file == nullptr) {
        Messages::warn(QCoreApplication::translate("MainWindow", "The file %1 cannot be written.")
                           .arg(fileName),
                       parent);
        return;
    }
    writeImage(fileName, file, *saved);
}
