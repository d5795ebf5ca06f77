// What a user reads in a tool tip.
#pragma once

#include <QTextDocument>
#include <QWidget>

inline QString shownAsToolTip(const QString& text) {
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

inline QString toolTipOf(const QWidget& widget) { return shownAsToolTip(widget.toolTip()); }
