// Keys of the input line: history, completion, Enter and Escape.
#include "workbench/window/console_line.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

namespace workbench {

ConsoleLine::ConsoleLine(QWidget* parent) : QLineEdit(parent) {
    setObjectName(QStringLiteral("commandLine"));
    setFrame(false);
    offered = new QStringListModel(this);
    commandCompleter = new QCompleter(offered, this);
    commandCompleter->setCaseSensitivity(Qt::CaseInsensitive);
    commandCompleter->setMaxVisibleItems(8);
    setCompleter(commandCompleter);
    connect(this, &QLineEdit::textEdited, this, &ConsoleLine::offerCompletions);
}

ConsoleLine::~ConsoleLine() = default;

void ConsoleLine::setCompletes(bool on) {
    completes = on;
    offered->setStringList({});
}

// QLineEdit asks its completer before this signal comes; the list is refreshed and shown from here.
void ConsoleLine::offerCompletions(const QString& typed) {
    offered->setStringList(completes && completions ? completions(typed) : QStringList());
    commandCompleter->setCompletionPrefix(typed);
    if (commandCompleter->completionCount() > 0)
        commandCompleter->complete();
    else
        commandCompleter->popup()->hide();
}

void ConsoleLine::completeFirst() {
    const QStringList found = completions ? completions(text()) : QStringList();
    if (!found.isEmpty())
        setText(found.first());
    commandCompleter->popup()->hide();
}

void ConsoleLine::enter() {
    const QString line = text();
    commandCompleter->popup()->hide();
    clear();
    history.add(line);
    emit entered(line);
}

void ConsoleLine::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return enter();
    case Qt::Key_Up:
        return setText(history.older(text()));
    case Qt::Key_Down:
        return setText(history.newer(text()));
    case Qt::Key_Escape:
        clear();
        emit escaped();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

// An empty line has nothing to undo or to select: those keys are the window's then.
bool ConsoleLine::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && text().isEmpty() &&
        static_cast<QKeyEvent*>(event)->modifiers() & Qt::ControlModifier) {
        event->ignore();
        return false;
    }
    const bool isTab =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab;
    if (isTab && !text().isEmpty()) { // else it goes on to what is next in the window
        completeFirst();
        return true;
    }
    return QLineEdit::event(event);
}

} // namespace workbench

#include "moc_console_line.cpp"
