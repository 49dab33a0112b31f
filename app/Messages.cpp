#include "app/Messages.h"

#include "resources/TorvaneResources.h"

#include <QCoreApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <iostream>

void Messages::selectHelixViewer() {
    QMessageBox box;
    box.setText("Select an Helix Viewer");
    box.setIcon(QMessageBox::Warning);
    box.exec();
}

void Messages::brokenCondition(const char* picturePath, QWidget* parent) {
    QDialog box(parent);
    // On purpose spelt so, and not translated: users know the message by this text.
    auto* text = new QLabel("This condition isn't satysfied:");
    registerTorvaneResources();
    auto* picture = new QLabel;
    picture->setPixmap(QPixmap(picturePath));
    auto* ok = new QPushButton(QCoreApplication::translate("QMainWindow", "Ok"));
    ok->setDefault(true);
    QObject::connect(ok, SIGNAL(clicked()), &box, SLOT(accept()));

    auto* layout = new QVBoxLayout;
    layout->addWidget(text);
    layout->addWidget(picture);
    layout->addWidget(ok);
    box.setLayout(layout);
    box.exec();
}

void Messages::about(QWidget* parent) {
    // Title and name are those that users know (docs/kept-on-purpose.md).
    QMessageBox::about(
        parent, QCoreApplication::translate("MainWindow", "About MDI"),
        QCoreApplication::translate("MainWindow",
                                    "The <b>Lumarin</b> example shows how to use multiple Coin3D "
                                    "viewers with SoQt."));
}

void Messages::cannotStart(const QString& reason) {
    std::cerr << reason.toStdString() << std::endl;
    QMessageBox box;
    box.setWindowTitle("Torvane");
    box.setText(reason);
    box.setIcon(QMessageBox::Critical);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.exec();
}

void Messages::warn(const QString& text, QWidget* parent) {
    QMessageBox box(parent);
    box.setText(text);
    box.setIcon(QMessageBox::Warning);
    box.exec();
}

QString Messages::askForFileToSave(const QString& nameFilter, const QString& suffix,
                                   QWidget* parent) {
    QFileDialog dialog(parent);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(nameFilter);
    dialog.setViewMode(QFileDialog::Detail);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}
