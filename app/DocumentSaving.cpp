#include "app/DocumentSaving.h"

#include "app/ImageExport.h"
#include "app/Messages.h"
#include "export/DataExport.h"
#include "export/TargetStreams.h"
#include "export/WholeFile.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/nodes/SoSeparator.h>
#include <QCoreApplication>
#include <QPointer>
#include <iostream>

namespace {

constexpr int printerDotsPerInch = 300;

QString translated(const char* text) {
    return QCoreApplication::translate("MainWindow", text);
}

QString saved(const QString& fileName) {
    return translated("Saved %1").arg(fileName);
}

/** Says it on standard error and returns it. */
QString notSaved(const QString& fileName, const QString& reason) {
    QString text = translated("Not saved: %1 (%2)").arg(fileName, reason);
    std::cerr << text.toLocal8Bit().constData() << std::endl;
    return text;
}

QString notSavedAsClosed(const QString& fileName) {
    return notSaved(fileName, translated("the view has been closed"));
}

void writeNumbers(WholeFile& file, const SoQtGeneralViewerFrame& frame, bool isHyperboloid) {
    if (isHyperboloid) {
        DataExport::saveHyperboloid(file, *qobject_cast<const HyperboloidFrame*>(&frame));
    } else {
        DataExport::saveHelix(file, qobject_cast<const HelixFrame*>(&frame)->getHelix());
    }
}

/** Renders and writes a picture; returns what hindered it, empty when it is whole. */
QString writePicture(WholeFile& file, const SoQtGeneralViewerFrame& frame) {
    const CStream stream = cStreamTo(file);
    if (stream != nullptr &&
        ImageExport::printToPostScript(frame.getSceneRoot(), stream.get(), frame.getViewer(),
                                       printerDotsPerInch)) {
        return {};
    }
    return file.errorString().isEmpty() ? translated("the view cannot be rendered")
                                        : file.errorString();
}

/** Says on standard output whether the whole picture was written; returns what to tell the user. */
QString writeImage(const QString& fileName, WholeFile& file, const SoQtGeneralViewerFrame& frame) {
    QString failure = writePicture(file, frame);
    if (failure.isEmpty() && !file.commit()) {
        failure = file.errorString();
    }
    std::cout << "ok? " << failure.isEmpty() << std::endl;
    return failure.isEmpty() ? saved(fileName) : notSaved(fileName, failure);
}

} // namespace

std::optional<QString> DocumentSaving::saveText(SoQtGeneralViewerFrame* frame, bool isHyperboloid,
                                                QWidget* parent) {
    if (frame == nullptr) {
        return std::nullopt;
    }
    // The frame may be closed while the user chooses the file.
    const QPointer<SoQtGeneralViewerFrame> chosen(frame);
    const QString fileName = Messages::askForFileToSave(
        QCoreApplication::translate("QMainWindow", "Text (*.txt)"), "txt", parent);
    if (fileName.isEmpty()) {
        return std::nullopt;
    }
    return chosen ? writeText(fileName, *chosen, isHyperboloid) : notSavedAsClosed(fileName);
}

QString DocumentSaving::writeText(const QString& fileName, const SoQtGeneralViewerFrame& frame,
                                  bool isHyperboloid) {
    WholeFile file(fileName);
    if (!file.isOpen()) {
        // On purpose a file that cannot be opened is not reported (docs/kept-on-purpose.md).
        return file.isWritableInPlace() ? notSaved(fileName, file.errorString()) : QString();
    }
    writeNumbers(file, frame, isHyperboloid);
    return file.commit() ? saved(fileName) : notSaved(fileName, file.errorString());
}

std::optional<QString> DocumentSaving::saveImage(SoQtGeneralViewerFrame* frame, QWidget* parent) {
    if (frame == nullptr || frame->getViewer() == nullptr) {
        Messages::warn(translated("Select a Viewer"), parent);
        return std::nullopt;
    }
    const QPointer<SoQtGeneralViewerFrame> chosen(frame);
    const QString fileName = Messages::askForFileToSave(
        QCoreApplication::translate("QMainWindow", "PostScript (*.eps)"), "eps", parent);
    if (fileName.isEmpty()) {
        return std::nullopt;
    }
    if (!chosen) {
        return notSavedAsClosed(fileName);
    }
    WholeFile file(fileName);
    if (!file.isOpen()) {
        Messages::warn(translated("The file %1 cannot be written.").arg(fileName), parent);
        return notSaved(fileName, file.errorString());
    }
    return writeImage(fileName, file, *chosen);
}
