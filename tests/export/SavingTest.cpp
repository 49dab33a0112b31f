#include "tests/reference/PlainDataExport.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FileDialogs.h"
#include "tests/support/LargestFileSize.h"
#include "tests/support/LastingWindow.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

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

class Saving : public LastingWindow {
protected:
    Saving()
        : LastingWindow(QSize(1000, 800)) {}

    /** Triggers a save action and gives the file dialog a path. */
    void save(const char* action, const QString& path) {
        DialogDriver()
            .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, path); })
            .during([&] { opened.action(action).trigger(); });
    }

    QString status() const { return opened.window().statusBar()->currentMessage(); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Saving, EverySpaceIsWrittenInItsOwnCoordinates) {
    const char* const actions[] = {"saveUAct", "saveXAct", "saveMAct"};
    for (int space = 0; space < 3; ++space) {
        const QString path = folder.filePath(QString("space%1.txt").arg(space));
        save(actions[space], path);
        EXPECT_EQ(contentOf(path), plainText(opened.hyperboloid(space)));
    }
}

TEST_F(Saving, ActiveHelixIsWritten) {
    opened.activate(opened.firstHelix());
    const QString path = folder.filePath("helix.txt");
    save("saveHelixAct", path);
    EXPECT_EQ(contentOf(path), plainText(opened.firstHelix()));
}

TEST_F(Saving, TheHelixThatWasActiveLastIsWrittenAlsoWhenNoDocumentIsActive) {
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    opened.action("newAct").trigger();
    HelixFrame& first = *opened.helices().front();
    HelixFrame& second = *opened.helices().back();
    opened.tie(first, u);
    u.moveSphere(HyperboloidFrame::DOWN);
    opened.tie(second, u);
    u.moveSphere(HyperboloidFrame::RIGHT);
    ASSERT_NE(plainText(first), plainText(second));
    for (HelixFrame* active : {&second, &first}) {
        for (const bool leftAlone : {false, true}) {
            opened.activate(*active);
            if (leftAlone) {
                opened.area().setActiveSubWindow(nullptr);
                ASSERT_EQ(opened.area().activeSubWindow(), nullptr);
            }
            const QString path = folder.filePath(active->windowTitle() + (leftAlone ? "b" : "a"));
            save("saveHelixAct", path);
            EXPECT_EQ(contentOf(path + ".txt"), plainText(*active));
        }
    }
}

TEST_F(Saving, HyperboloidsAreWrittenWhenNoDocumentIsActive) {
    opened.area().setActiveSubWindow(nullptr);
    const QString path = folder.filePath("m.txt");
    save("saveMAct", path);
    EXPECT_EQ(contentOf(path), plainText(opened.hyperboloid(Hyperboloid::MSPACE)));
}

TEST_F(Saving, DialogAsksForATextFile) {
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
            EXPECT_EQ(dialog.nameFilters(), QStringList("Text (*.txt)"));
            EXPECT_EQ(dialog.viewMode(), QFileDialog::Detail);
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            EXPECT_EQ(dialog.defaultSuffix(), "txt");
            EXPECT_EQ(dialog.parent(), &opened.window());
            EXPECT_EQ(dialog.windowTitle(), "Save As") << "the toolkit's own";
            dialog.reject();
        })
        .during([&] { opened.action("saveUAct").trigger(); });
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(Saving, DialogsOpenInTheWorkingFolderAndProposeNoName) {
    for (const char* action : {"saveXAct", "saveImageAct"}) {
        DialogDriver()
            .then<QFileDialog>([&](QFileDialog& dialog) {
                EXPECT_EQ(dialog.directory(), QDir::current()) << action;
                EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), "") << action;
                dialog.reject();
            })
            .during([&] { opened.action(action).trigger(); });
    }
}

TEST_F(Saving, NameWithoutSuffixGetsOne) {
    save("saveUAct", folder.filePath("name"));
    EXPECT_TRUE(QFile::exists(folder.filePath("name.txt")));
    EXPECT_FALSE(QFile::exists(folder.filePath("name")));
}

TEST_F(Saving, NamesMayHoldBlanksAndLettersOfAnyAlphabet) {
    const QString path = folder.filePath(QString::fromUtf8("Über die Fläche \xCE\xA9.txt"));
    save("saveXAct", path);
    EXPECT_EQ(contentOf(path), plainText(opened.hyperboloid(Hyperboloid::XSPACE)));
}

TEST_F(Saving, SecondTimeReplacesTheFirstContents) {
    const QString path = folder.filePath("twice.txt");
    save("saveUAct", path);
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            // The confirmation comes up inside this call and is answered by the next step.
            FileDialogs::saveAs(dialog, path);
        })
        .then<QMessageBox>([](QMessageBox& box) {
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        })
        .during([&] { opened.action("saveMAct").trigger(); });
    EXPECT_EQ(contentOf(path), plainText(opened.hyperboloid(Hyperboloid::MSPACE)));
}

TEST_F(Saving, CancelledDialogWritesNothing) {
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>()->setText(folder.filePath("never.txt"));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        })
        .during([&] { opened.action("saveUAct").trigger(); });
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(Saving, CancelledDialogLeavesWhatTheStatusBarSays) {
    closeAfterwards();
    opened.window().refresh_hyperboloids(1, 1.5, 1, 0, 0.5, 1, 0, 0, 8, 8, 0.3, 7, 7, 0.02, 0.03);
    save("saveUAct", folder.filePath("first.txt"));
    const QString condition = opened.label("surfaceConditionLabel");
    ASSERT_NE(condition, "");
    for (const char* action : {"saveXAct", "saveMAct"}) {
        DialogDriver().then<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); }).during([&] {
            opened.action(action).trigger();
        });
        EXPECT_EQ(status(), "Saved " + folder.filePath("first.txt"));
        EXPECT_EQ(opened.label("surfaceConditionLabel"), condition);
    }
}

TEST_F(Saving, HelixNeedsAHelixFrame) {
    opened.activate(opened.hyperboloid(0));
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.text(), "Select an Helix Viewer");
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            EXPECT_EQ(box.parent(), nullptr);
            box.accept();
        })
        .during([&] { opened.action("saveHelixAct").trigger(); });
}

TEST_F(Saving, FileThatCannotBeOpenedIsNotReported) {
    opened.window().saveIn(folder.filePath("missing/folder/file.txt"), &opened.hyperboloid(0),
                           true);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(Saving, StatusBarSaysWhatHasBeenSavedAndWhere) {
    save("saveXAct", folder.filePath("name"));
    EXPECT_EQ(status(), "Saved " + folder.filePath("name.txt"));
    testing::internal::CaptureStderr();
    opened.window().saveIn(folder.filePath("missing/file.txt"), &opened.hyperboloid(0), true);
    EXPECT_EQ(status(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Saving, OlderTextStaysWhenTheDiskIsFullAndTheUserIsTold) {
    const QString path = folder.filePath("text.txt");
    save("saveUAct", path);
    const QByteArray older = contentOf(path);
    const int smallest = std::min(plainText(opened.hyperboloid(Hyperboloid::MSPACE)).size(),
                                  plainText(opened.firstHelix()).size());
    const LargestFileSize limit(static_cast<rlim_t>(smallest) / 2);
    for (const bool hyperboloid : {true, false}) {
        SoQtGeneralViewerFrame* frame = &opened.firstHelix();
        testing::internal::CaptureStderr();
        opened.window().saveIn(path, hyperboloid ? &opened.hyperboloid(2) : frame, hyperboloid);
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_EQ(status(), "Not saved: " + path + " (File too large)");
        EXPECT_EQ(said, status().toStdString() + "\n");
        EXPECT_EQ(contentOf(path), older);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("text.txt"));
    }
}

TEST_F(Saving, HelixThatIsClosedWhileTheUserChoosesLeavesNoFile) {
    closeAfterwards();
    opened.activate(opened.firstHelix());
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            delete &opened.subWindow(opened.firstHelix());
            FileDialogs::saveAs(dialog, folder.filePath("dead.txt"));
        })
        .during([&] { opened.action("saveHelixAct").trigger(); });
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_EQ(status(),
              "Not saved: " + folder.filePath("dead.txt") + " (the view has been closed)");
}

TEST(SavingWithoutDocuments, HelixShowsTheSameWarning) {
    MainWindow window;
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.text(), "Select an Helix Viewer");
            box.accept();
        })
        .during([&] { window.findChild<QAction*>("saveHelixAct")->trigger(); });
}
