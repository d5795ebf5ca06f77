// The line of the console panel in which the user types.
#pragma once

#include "standin/console/history.h"

#include <QLineEdit>
#include <QStringListModel>
#include <functional>

class QCompleter;

namespace workbench {

class ConsoleLine : public QLineEdit {
    Q_OBJECT
public:
    explicit ConsoleLine(QWidget* parent);
    ~ConsoleLine() override;
    // The commands that begin with a text; asked at each change of the line while `completes` is on.
    std::function<QStringList(const QString& beginning)> completions;
    void setCompletes(bool on);
    standin::CommandHistory history;

signals:
    void entered(const QString& line); // an empty one too
    void escaped();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override; // Tab completes instead of leaving

private:
    void enter();
    void offerCompletions(const QString& typed);
    void completeFirst();
    QCompleter* commandCompleter = nullptr;
    QStringListModel* offered = nullptr;
    bool completes = true;
};

} // namespace workbench
