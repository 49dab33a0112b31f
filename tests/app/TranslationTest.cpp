// What the user reads can be translated: each text under the class that it belongs to.

#include "app/AppearanceWindow.h"
#include "app/DocumentSaving.h"
#include "app/HelixWindow.h"
#include "app/HyperboloidParameterDialog.h"
#include "app/MainWindow.h"
#include "app/Messages.h"
#include "app/RefusedParametersText.h"
#include "app/StartUp.h"
#include "app/StatusLabels.h"
#include "app/SteeringText.h"
#include "app/SurfaceConditionText.h"
#include "app/WindowMenu.h"
#include "helix/Helix.h"
#include "tests/app/BareFrames.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FileDialogs.h"
#include "tests/support/MarkingTranslator.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSplashScreen>
#include <QStatusBar>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/** The texts of a kind of widget, in the order of their creation. */
template <typename Widget>
QStringList texts(const QWidget& window) {
    QStringList found;
    for (const Widget* widget : window.findChildren<Widget*>()) {
        found << widget->text();
    }
    return found;
}

QStringList marked(const char* context, const QStringList& all) {
    QStringList found;
    for (const QString& text : all) {
        found << MarkingTranslator::marked(context, text);
    }
    return found;
}

/** Each command's text and status tip, as far as it has them, and the titles of the menus. */
QStringList commandTexts(const MainWindow& window) {
    QStringList found;
    for (const QAction* action : window.findChildren<QAction*>()) {
        found << action->text() << action->statusTip();
    }
    for (const QAction* title : window.menuBar()->actions()) {
        found << title->text();
    }
    found.removeAll(QString());
    return found;
}

QKeySequence shortcutOf(const MainWindow& window, const char* name) {
    return window.findChild<QAction*>(name)->shortcut();
}

} // namespace

TEST(Translation, CommandsAndMenusBelongToTheMainWindow) {
    const MainWindow plain;
    const QStringList all = commandTexts(plain);
    // 18 texts, 10 tips, 6 menus; the menu bar's titles are actions of the window, too.
    EXPECT_EQ(all.size(), 18 + 10 + 2 * 6);
    const MarkingTranslator translator;
    const MainWindow translated;
    EXPECT_EQ(commandTexts(translated), marked("MainWindow", all));
    EXPECT_EQ(shortcutOf(translated, "tileAct"), QKeySequence("Ctrl+Shift+T"));
    EXPECT_EQ(shortcutOf(translated, "hyperboloidParamsAct"), QKeySequence("Ctrl+Shift+P"));
}

TEST(Translation, TitleAndGreetingBelongToTheMainWindow) {
    const MarkingTranslator translator;
    const MainWindow window;
    EXPECT_EQ(window.windowTitle(), "MainWindow/Visualisation of Torvane");
    EXPECT_EQ(window.statusBar()->currentMessage(), "MainWindow/Ready");
}

TEST(Translation, EntriesOfDocumentsBelongToTheMainWindow) {
    QMdiArea area;
    auto* document = new QWidget;
    document->setWindowTitle("Viewer 17");
    area.addSubWindow(document);
    QObject owner;
    QMenu menu;
    WindowMenu windowMenu(menu, area, &owner);
    const MarkingTranslator translator;
    windowMenu.update();
    EXPECT_EQ(menu.actions().constLast()->text(), "MainWindow/&1 Viewer 17");
}

TEST(Translation, LabelsAndButtonsOfTheParameterDialogBelongToItsKindOfWindow) {
    const HyperboloidParameters set;
    const HyperboloidParameterDialog plain(set, nullptr);
    const QStringList labels = texts<QLabel>(plain);
    EXPECT_EQ(labels.size(), 15);
    const MarkingTranslator translator;
    const HyperboloidParameterDialog translated(set, nullptr);
    EXPECT_EQ(texts<QLabel>(translated), marked("QMainWindow", labels));
    EXPECT_EQ(texts<QPushButton>(translated), marked("QMainWindow", {"Cancel", "Ok"}));
    EXPECT_EQ(HyperboloidParameterDialog::nameOf(&HyperboloidParameters::K13), "QMainWindow/K13");
}

TEST(Translation, LabelsOfTheSliderWindowsAreTranslated) {
    const MainWindow receiver;
    const Helix helix(0.71F, 0.53F, -0.31F, 0.9F, 0.4F, 0.2F);
    const auto hyperboloid = BareFrames::hyperboloid(Hyperboloid::USPACE);
    const MarkingTranslator translator;
    EXPECT_EQ(texts<QLabel>(AppearanceWindow(*hyperboloid, &receiver)),
              marked("QMainWindow", {"Transparency:", "Lightness:", "Saturation:"}));
    EXPECT_EQ(texts<QLabel>(HelixWindow(helix, &receiver)),
              marked("HelixWindow", {"&Tube Radius:", "&Ribbon Range:", "&Number of Turns:",
                                     "&Precision Line:", "&Precision Tube:"}));
}

TEST(Translation, KindOfTextFileIsTranslated) {
    const MarkingTranslator translator;
    QWidget parent;
    const auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    DialogDriver()
        .then<QFileDialog>([](QFileDialog& dialog) {
            EXPECT_EQ(dialog.nameFilters(), QStringList("QMainWindow/Text (*.txt)"));
            dialog.reject();
        })
        .during([&] { (void)DocumentSaving::saveText(x.get(), true, &parent); });
}

TEST(Translation, WhatCameOfSavingBelongsToTheMainWindow) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("x.txt");
    QWidget parent;
    auto x = BareFrames::hyperboloid(Hyperboloid::XSPACE);
    const MarkingTranslator translator;
    EXPECT_EQ(DocumentSaving::writeText(path, *x, true), "MainWindow/Saved " + path);
    std::optional<QString> said;
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            x.reset();
            FileDialogs::saveAs(dialog, folder.filePath("dead.txt"));
        })
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.text(), "MainWindow/Select a Viewer");
            box.accept();
        })
        .during([&] {
            said = DocumentSaving::saveText(x.get(), true, &parent);
            (void)DocumentSaving::saveImage(nullptr, &parent);
        });
    EXPECT_EQ(said, "MainWindow/Not saved: " + folder.filePath("dead.txt") +
                        " (MainWindow/the view has been closed)");
}

TEST(Translation, BrokenConditionIsSaidAsItIsAndItsButtonTranslated) {
    const MarkingTranslator translator;
    QWidget parent;
    DialogDriver()
        .then<QDialog>([](QDialog& box) {
            EXPECT_EQ(texts<QLabel>(box).constFirst(), "This condition isn't satysfied:");
            EXPECT_EQ(texts<QPushButton>(box), QStringList("QMainWindow/Ok"));
            box.accept();
        })
        .during([&] { Messages::brokenCondition(":/images/err2.png", &parent); });
}

TEST(Translation, WhatIsSaidOfASurfaceBelongsToTheMainWindow) {
    using Cause = SurfaceCondition::Cause;
    using Drawn = SurfaceCondition::Drawn;
    const MarkingTranslator translator;
    SurfaceCondition condition;
    condition.drawn = Drawn::unitHyperboloid;
    condition.causes = {Cause::zeroK13, Cause::zeroUHat};
    EXPECT_EQ(SurfaceConditionText::of(condition),
              "MainWindow/Unit hyperboloid, not the quadric: MainWindow/K13 = 0MainWindow/ and "
              "MainWindow/Û = 0");
    condition.drawn = Drawn::nothing;
    EXPECT_EQ(SurfaceConditionText::explanation(condition),
              "MainWindow/The vertices have no finite coordinates.");
    HyperboloidParameters refused;
    refused.K1 = 1.51;
    EXPECT_TRUE(
        RefusedParametersText::of(refused, HyperboloidParameters())
            .startsWith("MainWindow/Refused: QMainWindow/K1 = 1.51, QMainWindow/K2 = 1.50"));
}

TEST(Translation, WhatIsSaidOfSteeringBelongsToTheMainWindow) {
    const auto m = BareFrames::hyperboloid(Hyperboloid::MSPACE);
    const auto helix = BareFrames::helix();
    QStatusBar bar;
    StatusLabels labels(bar);
    const MarkingTranslator translator;
    const QString surface = "MainWindow/" + m->windowTitle() + " (M)";
    EXPECT_EQ(SteeringText::of({m.get()}),
              QStringList("MainWindow/" + surface +
                          " steers no helix: activate a helix, then this view"));
    m->SetPreviousHelix(helix.get());
    EXPECT_EQ(SteeringText::of({m.get()}),
              QStringList("MainWindow/" + surface + " steers " + helix->windowTitle()));
    labels.show(m.get());
    EXPECT_EQ(bar.findChild<QLabel*>("steeredHelixLabel")->text(),
              "MainWindow/" + helix->windowTitle() + ": " + helix->pointText());
}

TEST(Translation, AboutBoxIsTranslatedAndTheCallForAHelixIsNot) {
    const MarkingTranslator translator;
    QWidget parent;
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "MainWindow/About MDI");
            EXPECT_EQ(box.text(), "MainWindow/The <b>Lumarin</b> example shows how to use multiple "
                                  "Coin3D viewers with SoQt.");
            box.accept();
        })
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.text(), "Select an Helix Viewer");
            box.accept();
        })
        .during([&] {
            Messages::about(&parent);
            Messages::selectHelixViewer();
        });
}

TEST(Translation, SplashIsTranslated) {
    const MarkingTranslator translator;
    QSplashScreen splash(StartUp::splashPicture());
    StartUp::showSplash(splash);
    EXPECT_EQ(splash.message(), "QObject/Computing...");
}
