#include "app/ElidedLabel.h"

#include <QStyle>
#include <QStylePainter>
#include <QTextDocument>

ElidedLabel::ElidedLabel(int lettersAlwaysShown, QWidget* parent)
    : QLabel(parent)
    , leastLetters(lettersAlwaysShown) {
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::showText(const QString& text, const QStringList& details) {
    setText(text);
    // As rich text a tool tip breaks its lines; as plain text it would be as wide as it is long.
    setToolTip(Qt::convertFromPlainText(details.isEmpty() ? text : details.join('\n'),
                                        Qt::WhiteSpaceNormal));
    setVisible(!text.isEmpty());
}

QSize ElidedLabel::minimumSizeHint() const {
    const int width = leastLetters * fontMetrics().averageCharWidth();
    return {qMin(width, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    Q_UNUSED(event)
    QStylePainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    painter.drawItemText(place, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                         foregroundRole());
}
