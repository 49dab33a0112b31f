#pragma once

#include <QLabel>

/**
 * A line of plain text that leaves out its end where there is no room for it; the tool tip tells
 * all.
 */
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    /** @param lettersAlwaysShown about how many letters of its text can always be read */
    explicit ElidedLabel(int lettersAlwaysShown, QWidget* parent = nullptr);

    /**
     * Shows a text; without one the label takes no room.
     *
     * @param details what the tool tip says, a line for each; the text itself when empty
     */
    void showText(const QString& text, const QStringList& details = {});

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int leastLetters;
};
