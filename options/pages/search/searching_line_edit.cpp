// The search box itself: its three states (idle, primed with a star, typed) and what ends them.
#include "options/pages/search/searching_line_edit.h"

#include "host/dialog_habits.h"
#include "options/pages/search/search_marks.h"

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTimer>
#include <QTreeWidget>

namespace {
const QLatin1String kStar("*");
const int kPauseInTyping = 300; // milliseconds
} // namespace

SearchingLineEdit::SearchingLineEdit(QTreeWidget* optionTree, QTextEdit* descriptionPane, QWidget* parent,
                                     const QString& background, const QString& foreground)
    : QLineEdit(parent), typing(hasHabit(DialogHabit::SearchWhileTyping)), tree(optionTree),
      description(descriptionPane), highlightBackground(background), highlightForeground(foreground) {
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
    if (typing)
        connectTyping();
}

void SearchingLineEdit::connectTyping() {
    pause.setSingleShot(true);
    pause.setInterval(kPauseInTyping);
    connect(this, &QLineEdit::textEdited, this, &SearchingLineEdit::onTyped);
    connect(&pause, &QTimer::timeout, this, &SearchingLineEdit::onPause);
}

// Who types a wildcard into the fresh box means the text as typed: the box's own star goes.
void SearchingLineEdit::onTyped(const QString& typed) {
    primed = primed && typed.endsWith(kStar);
    const QString own = typed.left(typed.size() - 1);
    if (primed && (own.contains('*') || own.contains('?'))) {
        primed = false;
        const int caret = cursorPosition();
        setTextQuietly(own);
        setCursorPosition(caret);
        clearAction->setVisible(!holdsNothing());
    }
    pause.start();
}

void SearchingLineEdit::onPause() {
    if (!holdsNothing())
        searchNow();
    else if (searchRuns)
        reset(QString());
}

void SearchingLineEdit::setClearIcon(const QIcon& icon) { clearAction->setIcon(icon); }

bool SearchingLineEdit::holdsNothing() const { return text().isEmpty() || text() == kStar; }

void SearchingLineEdit::setTextQuietly(const QString& newText) {
    const QSignalBlocker blocker(this);
    setText(newText);
}

// Return is not passed on, so that the dialog's default button does not fire.
void SearchingLineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        searchNow();
    else if (typing && event->key() == Qt::Key_Down)
        tree->setFocus(Qt::OtherFocusReason); // to what was found
    else
        QLineEdit::keyPressEvent(event);
}

// The expansion is saved whether a search follows or not; a second Return saves what the search before it has
// left. Both are meant, but for searches while typing: of a row of them the first one saves.
void SearchingLineEdit::searchNow() {
    pause.stop();
    if (!typing || !searchRuns) {
        savedExpansion.expanded.clear();
        savedExpansion.save(tree->invisibleRootItem());
    }
    startSearch();
    emit searchStarted();
}

// What the user types lands before the star: a plain word typed into a fresh box is searched as a prefix.
void SearchingLineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!text().isEmpty())
        return;
    setTextQuietly(kStar);
    primed = true;
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
