// The search box itself: its three states (idle, primed with a star, typed) and what ends them.
#include "options/pages/searching_line_edit.h"

#include "options/pages/search_marks.h"

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTimer>
#include <QTreeWidget>

namespace {
const QLatin1String kStar("*");
}

SearchingLineEdit::SearchingLineEdit(QTreeWidget* optionTree, QTextEdit* descriptionPane, QWidget* parent,
                                     const QString& background, const QString& foreground)
    : QLineEdit(parent), tree(optionTree), description(descriptionPane), highlightBackground(background),
      highlightForeground(foreground) {
    setPlaceholderText(tr("Search..."));
    statusLabel = new QLabel;
    statusLabel->setObjectName(QStringLiteral("statusLabel"));
    buildClearAction();
    connectAll();
}

void SearchingLineEdit::buildClearAction() {
    clearAction = new QAction(this);
    clearAction->setObjectName(QStringLiteral("clearAction"));
    clearAction->setToolTip(tr("Clear"));
    addAction(clearAction, QLineEdit::TrailingPosition);
    clearAction->setVisible(false);
}

void SearchingLineEdit::connectAll() {
    connect(clearAction, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, [this] { clearAction->setVisible(!holdsNothing()); });
    // Meant: whenever the focus leaves an empty box the root becomes current, also without a search.
    connect(this, &SearchingLineEdit::focusOut, this, [this] {
        if (holdsNothing())
            reset(QString());
    });
    connect(this, &QLineEdit::textChanged, this, &SearchingLineEdit::reset);
}

void SearchingLineEdit::setClearIcon(const QIcon& icon) { clearAction->setIcon(icon); }

bool SearchingLineEdit::holdsNothing() const { return text().isEmpty() || text() == kStar; }

void SearchingLineEdit::setTextQuietly(const QString& newText) {
    const QSignalBlocker blocker(this);
    setText(newText);
}

// Return is not passed on, so that the dialog's default button does not fire. The expansion is saved whether
// a search follows or not; a second Return saves what the search before it has left. Both are meant.
void SearchingLineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    savedExpansion.expanded.clear();
    savedExpansion.save(tree->invisibleRootItem());
    startSearch();
    emit searchStarted();
}

// What the user types lands before the star: a plain word typed into a fresh box is searched as a prefix.
void SearchingLineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!text().isEmpty())
        return;
    setTextQuietly(kStar);
    QTimer::singleShot(0, this, [this] { setCursorPosition(0); });
    emit focusGained();
    setPlaceholderText(QString());
}

void SearchingLineEdit::focusOutEvent(QFocusEvent* event) {
    if (text().isEmpty()) {
        setPlaceholderText(tr("Search..."));
        emit searchFinished();
    } else if (text() == kStar) {
        setTextQuietly(QString());
        setPlaceholderText(tr("Search..."));
        emit searchFinished();
    }
    QLineEdit::focusOutEvent(event);
    emit focusOut();
}

void SearchingLineEdit::removeHighlight(QString& text) const {
    SearchMark(highlightBackground, highlightForeground).remove(text);
}

#include "moc_searching_line_edit.cpp"
