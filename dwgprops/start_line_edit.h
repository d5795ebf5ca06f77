// Two line edits that show their text from the first character.
#pragma once

#include <QLineEdit>

// Shows the start after every change of size.
class m_LineEdit : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

// Shows the start once the user has left it.
class SummaryLineEdit : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

protected:
    void focusOutEvent(QFocusEvent* event) override;
};
