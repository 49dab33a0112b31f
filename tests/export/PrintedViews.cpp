#include "tests/export/PrintedViews.h"

#include "tests/support/DialogDriver.h"
#include "tests/support/FileDialogs.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoOffscreenRenderer.h>
#include <QFile>
#include <QProcess>
#include <cmath>

std::string PrintedViews::save(SoQtGeneralViewerFrame& frame, const QString& path) {
    QFile::remove(path);
    opened.activate(frame);
    testing::internal::CaptureStdout();
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, path); })
        .during([&] { opened.action("saveImageAct").trigger(); });
    return testing::internal::GetCapturedStdout();
}

QByteArray PrintedViews::saved() const {
    QFile file(path());
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

QImage PrintedViews::drawn(const QString& postScript) {
    const QString picture = postScript + ".png";
    const QString resolution = "-r" + QString::number(printer);
    EXPECT_EQ(QProcess::execute("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop",
                                       "-sDEVICE=png16m", resolution, "-sOutputFile=" + picture,
                                       postScript}),
              0);
    return QImage(picture).convertToFormat(QImage::Format_RGB32);
}

void PrintedViews::resizeToWholeInches(SoQtGeneralViewerFrame& frame, int width, int height) const {
    const auto pixels = [](int inches) {
        const float size =
            static_cast<float>(inches) * SoOffscreenRenderer::getScreenPixelsPerInch();
        return static_cast<int>(std::ceil(size));
    };
    const QSize wanted(pixels(width), pixels(height));
    QMdiSubWindow& window = opened.subWindow(frame);
    const ViewDriver driver(frame);
    window.showNormal();
    window.raise();
    window.move(0, 0);
    settleRedraws();
    window.resize(window.size() + wanted - driver.widget().size());
    ASSERT_TRUE(waitUntil([&] { return driver.widget().size() == wanted && driver.isDrawn(); }));
}

void PrintedViews::settleRedraws() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
    }
}
