#include "app/DocumentSaving.h"

#include "tests/app/BareFrames.h"
#include "tests/reference/PlainDataExport.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FileDialogs.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sstream>

namespace {

class DocumentSavingTest : public testing::Test {
protected:
    QByteArray contentOf(const QString& name) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files); }

    QTemporaryDir folder;
    QWidget parent;
    std::optional<QString> outcome = "said before";
    std::unique_ptr<HyperboloidFrame> x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    std::unique_ptr<HelixFrame> helix = BareFrames::helix();
};

QByteArray plainText(const Hyperboloid& model) {
    std::ostringstream text;
    PlainDataExport::writeHyperboloid(text, model);
    return QByteArray::fromStdString(text.str());
}

QByteArray plainText(const HelixFrame& frame) {
    std::ostringstream text;
    PlainDataExport::writeHelix(text, frame.getHelix());
    return QByteArray::fromStdString(text.str());
}

} // namespace

TEST_F(DocumentSavingTest, EitherKindOfFrameIsWrittenAndReplacesWhatWasThere) {
    const QString path = folder.filePath("one.txt");
    EXPECT_EQ(DocumentSaving::writeText(path, *x, true), "Saved " + path);
    EXPECT_EQ(contentOf("one.txt"), plainText(*x));
    EXPECT_EQ(DocumentSaving::writeText(path, *helix, false), "Saved " + path);
    EXPECT_EQ(contentOf("one.txt"), plainText(*helix));
}

TEST_F(DocumentSavingTest, FileThatCannotBeOpenedIsNotReported) {
    EXPECT_EQ(DocumentSaving::writeText(folder.filePath("missing/folder/file.txt"), *x, true), "");
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(DocumentSavingTest, FileThatNothingCanBePutBesideIsReportedAndStays) {
    // The name leaves no room for that of a second file.
    const QString name(250, 'n');
    QFile older(folder.filePath(name));
    ASSERT_TRUE(older.open(QIODevice::WriteOnly));
    older.write("older");
    older.close();
    testing::internal::CaptureStderr();
    const QString said = DocumentSaving::writeText(older.fileName(), *x, true);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), said.toStdString() + "\n");
    EXPECT_TRUE(said.startsWith("Not saved: " + older.fileName() + " (")) << said.toStdString();
    EXPECT_FALSE(said.endsWith("()"));
    EXPECT_EQ(contentOf(name), "older");
    EXPECT_EQ(names(), QStringList(name));
}

TEST_F(DocumentSavingTest, ChosenFileGetsTheTextAndItsSuffix) {
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.parent(), &parent);
            FileDialogs::saveAs(dialog, folder.filePath("name"));
        })
        .during([&] { outcome = DocumentSaving::saveText(helix.get(), false, &parent); });
    EXPECT_EQ(outcome, "Saved " + folder.filePath("name.txt"));
    EXPECT_EQ(names(), QStringList("name.txt"));
    EXPECT_EQ(contentOf("name.txt"), plainText(*helix));
}

TEST_F(DocumentSavingTest, FrameThatDiesWhileTheUserChoosesLeavesNoFile) {
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            x.reset();
            FileDialogs::saveAs(dialog, folder.filePath("dead.txt"));
        })
        .during([&] { outcome = DocumentSaving::saveText(x.get(), true, &parent); });
    EXPECT_EQ(outcome, "Not saved: " + folder.filePath("dead.txt") + " (the view has been closed)");
    EXPECT_EQ(names(), QStringList());
}

TEST_F(DocumentSavingTest, WhoGivesUpIsToldNothing) {
    DialogDriver().then<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); }).during([&] {
        outcome = DocumentSaving::saveText(x.get(), true, &parent);
    });
    EXPECT_EQ(outcome, std::nullopt);
}

TEST_F(DocumentSavingTest, WithoutAFrameNothingIsAskedForText) {
    DialogDriver().during([&] { outcome = DocumentSaving::saveText(nullptr, true, &parent); });
    EXPECT_EQ(outcome, std::nullopt);
}

TEST_F(DocumentSavingTest, ImageNeedsAFrameWithAViewer) {
    for (SoQtGeneralViewerFrame* frame : {static_cast<SoQtGeneralViewerFrame*>(nullptr),
                                          static_cast<SoQtGeneralViewerFrame*>(helix.get())}) {
        DialogDriver()
            .then<QMessageBox>([&](QMessageBox& box) {
                EXPECT_EQ(box.text(), "Select a Viewer");
                EXPECT_EQ(box.icon(), QMessageBox::Warning);
                EXPECT_EQ(box.parent(), &parent);
                box.accept();
            })
            .during([&] { outcome = DocumentSaving::saveImage(frame, &parent); });
        EXPECT_EQ(outcome, std::nullopt);
        outcome = "said before";
    }
}
