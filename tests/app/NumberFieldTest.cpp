// A number field by itself, filled by keys and from the clipboard as by a user of several
// countries.

#include "app/NumberField.h"

#include "tests/support/MarkingTranslator.h"
#include "tests/support/Waiting.h"
#include "tests/support/Wheel.h"

#include <QApplication>
#include <QClipboard>
#include <QSlider>
#include <QTextDocumentFragment>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

/** What a user of the locale enters into fields from -100 to 100 that begin at 1,37 and at 64. */
class NumberFieldTest : public testing::TestWithParam<const char*> {
public:
    NumberFieldTest(const NumberFieldTest&) = delete;
    NumberFieldTest& operator=(const NumberFieldTest&) = delete;

protected:
    NumberFieldTest() {
        QLocale::setDefault(QLocale(GetParam()));
        decimal = new DecimalField(&window);
        decimal->setRange(-100, 100);
        decimal->setValue(1.37);
        whole = new WholeField(&window);
        whole->setRange(-2000, 2000);
        whole->setValue(64);
        whole->move(0, 50);
        window.resize(300, 100);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window, patience));
    }
    ~NumberFieldTest() override { QLocale::setDefault(QLocale::c()); }

    static void begin(QAbstractSpinBox& field) {
        field.setFocus();
        field.selectAll();
    }
    static void type(QAbstractSpinBox& field, const QString& text) {
        begin(field);
        QTest::keyClicks(&field, text);
    }
    static void paste(QAbstractSpinBox& field, const QString& text) {
        begin(field);
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    }

    /** The field's text after the user has left it for the other one. */
    QString leave(QAbstractSpinBox& field) const {
        QTest::keyClick(&field, Qt::Key_Tab);
        EXPECT_FALSE(field.hasFocus());
        return field.text();
    }

    /** The window of the tip that is seen, null when there is none. */
    static QWidget* tipWindow() {
        for (QWidget* shownWindow : QApplication::topLevelWidgets()) {
            if (shownWindow->isVisible() && shownWindow->inherits("QTipLabel")) {
                return shownWindow;
            }
        }
        return nullptr;
    }

    /** What is read in the tip that comes, which is closed then. */
    static QString tip() {
        if (!waitUntil([] { return tipWindow() != nullptr; })) {
            return "no tip";
        }
        QString text = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
        // The toolkit's own way to hide it takes its time.
        tipWindow()->close();
        return text;
    }

    /** What the tip says of a text that the field of decimals does not take. */
    QString explained(const QString& refused) const {
        return '"' + refused + "\" is not taken: enter a number from " + shown(-100) + " to " +
               shown(100) + " with at most 2 decimals.";
    }

    QString shown(double value) const { return window.locale().toString(value, 'f', 2); }

    QWidget window;
    DecimalField* decimal;
    WholeField* whole;
};

} // namespace

TEST_P(NumberFieldTest, TakesPointAndCommaTypedAndPasted) {
    for (const auto& enter : {type, paste}) {
        for (const char* text : {"2.5", "2,5", "+2,5", " 2.5 ", "25e-1"}) {
            decimal->setValue(1.37);
            enter(*decimal, text);
            EXPECT_EQ(decimal->value(), 2.5) << text;
            EXPECT_EQ(leave(*decimal), shown(2.5)) << text;
        }
        enter(*decimal, "-37,25");
        EXPECT_EQ(leave(*decimal), shown(-37.25));
        enter(*decimal, "1e2");
        EXPECT_EQ(leave(*decimal), shown(100));
    }
}

TEST_P(NumberFieldTest, TakesBothDecimalKeysOfTheKeypad) {
    for (const char* text : {".", ","}) {
        begin(*decimal);
        for (const auto& [key, sign] :
             {std::pair(Qt::Key_4, "4"),
              std::pair(*text == '.' ? Qt::Key_Period : Qt::Key_Comma, text),
              std::pair(Qt::Key_2, "2")}) {
            QTest::sendKeyEvent(QTest::Click, decimal, key, QString(sign), Qt::KeypadModifier);
        }
        EXPECT_EQ(decimal->value(), 4.2) << text;
        decimal->setValue(1.37);
    }
}

TEST_P(NumberFieldTest, NeverTakesAnotherNumberThanTheOneEntered) {
    for (const auto& enter : {type, paste}) {
        for (const char* text : {"1,000.5", "1.000,5", "1 000", "1.2.5", "2,,5", "2;5", "5-", "1x2",
                                 "200", "200.5", "-100.01", "0.125", "1e3", "1e-3", "-", ""}) {
            decimal->setValue(1.37);
            enter(*decimal, text);
            if (*text == 0) {
                QTest::keyClick(decimal, Qt::Key_Delete);
            }
            EXPECT_EQ(decimal->text(), text) << "every character is seen";
            EXPECT_EQ(leave(*decimal), shown(1.37)) << text;
            EXPECT_EQ(decimal->value(), 1.37) << text;
        }
        for (const char* text : {"2.5", "2,5", "1,000", "1.000", "1 000", "1e2", "2001"}) {
            whole->setValue(64);
            enter(*whole, text);
            EXPECT_EQ(leave(*whole), "64") << text;
        }
    }
}

TEST_P(NumberFieldTest, EnterOnARefusedTextGoesNoFurtherAndSaysWhy) {
    for (const auto& [key, modifier] : {std::pair(Qt::Key_Return, Qt::NoModifier),
                                        std::pair(Qt::Key_Enter, Qt::KeypadModifier)}) {
        type(*decimal, "200");
        QKeyEvent refused(QEvent::KeyPress, key, modifier);
        QApplication::sendEvent(decimal, &refused);
        EXPECT_TRUE(refused.isAccepted()) << key;
        EXPECT_EQ(decimal->text(), shown(1.37));
        EXPECT_EQ(tip(), explained("200"));
    }

    type(*decimal, "12,5");
    QKeyEvent taken(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier);
    QApplication::sendEvent(decimal, &taken);
    EXPECT_FALSE(taken.isAccepted());
    EXPECT_EQ(decimal->value(), 12.5);

    type(*whole, "2.5");
    QTest::keyClick(whole, Qt::Key_Return);
    EXPECT_EQ(tip(), "\"2.5\" is not taken: enter a whole number from -2000 to 2000.");
}

TEST_P(NumberFieldTest, LeavingARefusedTextSaysWhyBelowTheField) {
    window.move(200, 150);
    type(*decimal, "200");
    leave(*decimal);
    ASSERT_TRUE(waitUntil([] { return tipWindow() != nullptr; })) << "leaving does not hide it";
    constexpr int closeBy = 60;
    const int below = tipWindow()->y() - decimal->mapToGlobal(decimal->rect().bottomLeft()).y();
    EXPECT_GT(below, 0);
    EXPECT_LT(below, closeBy);
    EXPECT_EQ(tip(), explained("200"));
}

TEST_P(NumberFieldTest, TheTipShowsARefusedTextAsItWasTyped) {
    for (const char* text : {"%2", "<b>5", "&lt;5", "5  5"}) {
        type(*decimal, text);
        leave(*decimal);
        EXPECT_EQ(tip(), explained(text));
    }
}

TEST_P(NumberFieldTest, TheTipIsTranslated) {
    const MarkingTranslator translator;
    for (QAbstractSpinBox* field :
         {static_cast<QAbstractSpinBox*>(decimal), static_cast<QAbstractSpinBox*>(whole)}) {
        type(*field, "9999");
        leave(*field);
        EXPECT_TRUE(tip().startsWith("NumberField/\"9999\" is not taken"));
    }
}

TEST_P(NumberFieldTest, TheTipIsSeenOnceTheMouseButtonThatLeftTheFieldIsUpAgain) {
    type(*decimal, "200");
    const QPoint other = whole->mapTo(&window, whole->rect().center());
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, other);
    EXPECT_TRUE(whole->hasFocus());
    EXPECT_EQ(decimal->text(), shown(1.37));
    constexpr int longerThanTheTipTakes = 200;
    QTest::qWait(longerThanTheTipTakes);
    EXPECT_FALSE(QToolTip::isVisible()) << "letting go would hide it";
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, other);
    EXPECT_TRUE(tip().startsWith("\"200\" is not taken"));
}

TEST_P(NumberFieldTest, ARefusedTextGivesWayToTheLastValueThatWasSettled) {
    type(*decimal, "12,5");
    QTest::keyClick(decimal, Qt::Key_Return);
    type(*decimal, "3 3");
    EXPECT_EQ(leave(*decimal), shown(12.5));
    type(*decimal, "5,5");
    QTest::keyClick(decimal, Qt::Key_Up);
    type(*decimal, "3 3");
    EXPECT_EQ(leave(*decimal), shown(6.5));
}

TEST_P(NumberFieldTest, AStepFromARefusedTextStartsFromTheLastValueThatWasSettled) {
    decimal->setValue(1.37);
    decimal->setSingleStep(0.01);
    type(*decimal, "200");
    QTest::keyClick(decimal, Qt::Key_Up);
    EXPECT_EQ(decimal->text(), shown(1.38));
    EXPECT_DOUBLE_EQ(decimal->value(), 1.38);
}

TEST_P(NumberFieldTest, ReadsWhatItShowsInALocaleOfItsOwn) {
    for (QAbstractSpinBox* field :
         {static_cast<QAbstractSpinBox*>(decimal), static_cast<QAbstractSpinBox*>(whole)}) {
        // Its minus is not the one of the keyboard.
        field->setLocale(QLocale("sv_SE"));
        field->setProperty("value", -37);
        EXPECT_TRUE(field->text().startsWith(field->locale().negativeSign()));
        EXPECT_TRUE(field->hasAcceptableInput());
    }
}

INSTANTIATE_TEST_SUITE_P(Locales, NumberFieldTest, testing::Values("C", "de_DE", "fr_FR"));

TEST(FocusedWheelTest, TheWheelChangesOnlyTheControlThatHasTheFocus) {
    QWidget window;
    DecimalField decimal(&window);
    WholeField whole(&window);
    FocusedWheel<QSlider> slider(&window);
    QLineEdit other(&window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window, patience));
    const std::vector<QWidget*> controls{&decimal, &whole, &slider};
    for (QWidget* control : controls) {
        other.setFocus();
        EXPECT_FALSE(turnWheel(*control));
        EXPECT_EQ(control->property("value").toDouble(), 0);
        EXPECT_TRUE(other.hasFocus());
        EXPECT_EQ(control->focusPolicy(), Qt::StrongFocus);
        control->setFocus();
        EXPECT_TRUE(turnWheel(*control));
        EXPECT_GT(control->property("value").toDouble(), 0);
    }
}
