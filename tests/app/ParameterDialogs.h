#pragma once

#include "hyperboloid/HyperboloidParameters.h"
#include "tests/support/DialogDriver.h"

#include <QBoxLayout>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTest>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/** A user in front of the dialog that asks for the hyperboloid's parameters. */
namespace ParameterDialogs {

/** A field by its label, as the user finds it. */
inline QAbstractSpinBox& field(const QWidget& dialog, const QString& label) {
    for (int i = 0; i < dialog.layout()->itemAt(0)->layout()->count(); i += 2) {
        const QLayout& columns = *dialog.layout()->itemAt(0)->layout();
        QLayout& labels = *columns.itemAt(i)->layout();
        for (int row = 0; row < labels.count(); ++row) {
            if (qobject_cast<QLabel*>(labels.itemAt(row)->widget())->text() == label) {
                return *qobject_cast<QAbstractSpinBox*>(
                    columns.itemAt(i + 1)->layout()->itemAt(row)->widget());
            }
        }
    }
    throw std::runtime_error(label.toStdString());
}

inline void type(const QWidget& dialog, const QString& label, const QString& text) {
    QAbstractSpinBox& box = field(dialog, label);
    box.selectAll();
    QTest::keyClicks(&box, text);
}

inline QPushButton& button(const QWidget& dialog, const QString& text) {
    for (QPushButton* candidate : dialog.findChildren<QPushButton*>()) {
        if (candidate->text() == text) {
            return *candidate;
        }
    }
    throw std::runtime_error(text.toStdString());
}

inline void click(const QWidget& dialog, const QString& text) {
    QTest::mouseClick(&button(dialog, text), Qt::LeftButton);
}

inline void pressEnter(QWidget& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

inline void pressEscape(QWidget& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
}

using Typed = std::vector<std::pair<QString, QString>>;

/** Fills fields and accepts. */
inline DialogDriver::Step enter(const Typed& values) {
    return [values](QWidget& dialog) {
        for (const auto& [label, text] : values) {
            type(dialog, label, text);
        }
        pressEnter(dialog);
    };
}

inline void expectError(QWidget& dialog, const char* picturePath) {
    EXPECT_EQ(dialog.metaObject()->className(), std::string("QDialog"));
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), "");
    auto* layout = qobject_cast<QVBoxLayout*>(dialog.layout());
    ASSERT_NE(layout, nullptr);
    ASSERT_EQ(layout->count(), 3);
    EXPECT_EQ(qobject_cast<QLabel*>(layout->itemAt(0)->widget())->text(),
              "This condition isn't satysfied:");
    const QPixmap picture =
        qobject_cast<QLabel*>(layout->itemAt(1)->widget())->pixmap(Qt::ReturnByValue);
    EXPECT_FALSE(picture.isNull());
    EXPECT_EQ(picture.toImage(), QPixmap(picturePath).toImage());
    EXPECT_GE(layout->itemAt(1)->widget()->width(), picture.width());
    EXPECT_GE(layout->itemAt(1)->widget()->height(), picture.height());
    auto* ok = qobject_cast<QPushButton*>(layout->itemAt(2)->widget());
    ASSERT_NE(ok, nullptr);
    EXPECT_EQ(ok->text(), "Ok");
    EXPECT_TRUE(ok->isDefault());
}

inline DialogDriver::Step seeError(const char* picturePath) {
    return [picturePath](QWidget& dialog) {
        expectError(dialog, picturePath);
        click(dialog, "Ok");
    };
}

/** No two equal, and each to be had with the decimals of its field. */
inline HyperboloidParameters distinctSet() {
    return {1.37, 1.91, 2.23, 0.61, -0.43, 0.83, -0.29, 0.17, 30, 20, 0.53, 6.11, 5.03, 0.04, 0.06};
}

/** The fifteen values of a set in the order of the fields. */
inline std::vector<double> valuesOf(const HyperboloidParameters& set) {
    std::vector<double> values;
    for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
        values.push_back(parameter.valueIn(set));
    }
    return values;
}

} // namespace ParameterDialogs
