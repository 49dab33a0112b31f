#include "app/ElidedLabel.h"

#include <QStyle>
#include <QStylePainter>
#include <QTextDocument>

ElidedLabel::ElidedLabel(int lettersAlwaysShown, QWidget* parent)
    : QLabel(parent)
    , leastLetters(lettersAlwaysShown) {
    setTextFormat(Qt::PlainText);
    // Two texts side by side are not to be read as one.
    setContentsMargins(0, 0, fontMetrics().height(), 0);
}

void ElidedLabel::showText(const QString& text, const QStringList& details) {
    setText(text);
    // More than the text needs would be taken from what stands beside it.
    setMaximumWidth(sizeHint().width());
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
