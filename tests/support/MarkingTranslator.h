#pragma once

#include <QCoreApplication>
#include <QTranslator>

/** As long as it lives, every translated text begins with its context, "MainWindow/Ready". */
class MarkingTranslator : public QTranslator {
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*count*/) const override {
        const QString source = QString::fromUtf8(text);
        // Keys stay keys.
        return source.startsWith("Ctrl+") ? "Shift+" + source : marked(context, source);
    }

    bool isEmpty() const override { return false; }

    static QString marked(const char* context, const QString& text) {
        return QString("%1/%2").arg(context, text);
    }
};
