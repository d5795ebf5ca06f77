// A translation into a language in which a mark tells what was translated.
#pragma once

#include <QCoreApplication>
#include <QTranslator>

// Marks every text of one context.
class ContextMarker : public QTranslator {
public:
    explicit ContextMarker(const char* markedContext) : context(markedContext) {
        QCoreApplication::installTranslator(this);
    }
    ~ContextMarker() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* textContext, const char* text, const char*, int) const override {
        return qstrcmp(textContext, context) == 0 ? QLatin1Char('~') + QLatin1String(text) : QString();
    }

private:
    const char* context;
};
