// What can be done first, over the empty drawing that the program starts with.
#pragma once

#include <QFrame>

class QPushButton;
class QVBoxLayout;

namespace workbench {

// Stays in the middle of its parent until it is left by a command, by a click beside it, or by Escape.
class StartPage : public QFrame {
    Q_OBJECT
public:
    // `recent` and `samples` are paths of drawings.
    StartPage(const QStringList& recent, const QStringList& samples, QWidget* parent);
    ~StartPage() override;

signals:
    void commandChosen(const QString& command);
    void drawingChosen(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildColumn();
    void addHeading(const QString& text);
    QPushButton* addEntry(const QString& name, const QString& text);
    void addCommands();
    void addDrawings(const QString& heading, const QString& name, const QStringList& paths);
    void moveToMiddle();

    QWidget* body = nullptr; // scrolls where the window is too low for it
    QVBoxLayout* column = nullptr;
};

} // namespace workbench
