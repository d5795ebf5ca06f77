// A file may be called "<b>x</b>", and a tool tip has no setting for plain text.
#include "host/tool_tip.h"

#include <QString>
#include <QTextDocument>

QString hostqt::plainToolTip(const QString& text) {
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<span style=\"white-space: pre-wrap\">") + text.toHtmlEscaped() +
           QStringLiteral("</span>");
}
