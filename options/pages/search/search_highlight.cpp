// The marks of a search in the description pane.
#include "options/pages/search/search_expression.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/store/tree_item.h"

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>

namespace {

// The pane's colours are fixed; it does not use those of the labels.
QTextCharFormat markFormat() {
    QTextCharFormat format;
    format.setBackground(QBrush(Qt::darkGreen, Qt::SolidPattern));
    format.setForeground(QBrush(Qt::white, Qt::SolidPattern));
    return format;
}

void clearFormat(QTextDocument* document) {
    QTextCursor everything(document);
    everything.select(QTextCursor::Document);
    everything.setCharFormat(QTextCharFormat());
}

} // namespace

// An empty box or the bare star is nothing special here.
void SearchingLineEdit::refreshDescription(QTreeWidgetItem* item) {
    const QString itemDescription = static_cast<TreeItem*>(item)->description;
    if (buildSearchExpression(text()).match(itemDescription).hasMatch())
        highlightDescription(text());
}

void SearchingLineEdit::highlightDescription(const QString& searchText) {
    const QString plainText = description->toPlainText();
    if (searchText.isEmpty()) {
        description->setPlainText(plainText); // drops all formatting
        return;
    }
    const QTextCharFormat format = markFormat();
    const QRegularExpression expression = buildSearchExpression(searchText);
    clearFormat(description->document());
    QRegularExpressionMatchIterator matches = expression.globalMatch(plainText);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        QTextCursor cursor(description->document());
        cursor.setPosition(match.capturedStart());
        cursor.setPosition(match.capturedStart() + match.capturedLength(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}
