// The comment box: Tab leaves it instead of going into the text.
#pragma once

#include <QTextEdit>

class m_TabTextEdit : public QTextEdit {
    Q_OBJECT
public:
    // `nextWidget` takes the focus on Tab; it must live as long as this box.
    explicit m_TabTextEdit(QWidget* nextWidget, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* next;
};
