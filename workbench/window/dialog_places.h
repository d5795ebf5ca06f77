// Where dialogs and pages of help come up and how large: over the middle of the main window, never larger
// than the screen's free area, and as large as their user left them.
#pragma once

#include <QObject>
#include <QRect>
#include <functional>

class QMainWindow;

namespace workbench {

// The place of a window of `size` that is to stand over the middle of `below`, moved and cut so that it and
// its frame lie within `area`.
QRect placeOver(const QRect& below, QSize size, const QRect& area);

// The same beside `shown`, which is not to be covered; `place` itself where it covers nothing of it, or where
// no side has room.
QRect placeBeside(const QRect& shown, const QRect& place, const QRect& area);

// Watches every dialog and every further window of the application for its lifetime. Sizes, and
// places that their user gave them, are kept in the profile, by the name of the dialog; boxes with a message,
// progress and the system's dialogs have the size of what they show. A dialog that needs more than the screen
// has is made to scroll.
class DialogPlaces : public QObject {
    Q_OBJECT
public:
    explicit DialogPlaces(QMainWindow& mainWindow);
    ~DialogPlaces() override;

    // Called when what is shown has changed: the dialog that is open gives way, unless its user has put it.
    void keepMarksInSight();
    std::function<QRect()> shown; // on the screen; what dialogs leave in sight when there is room

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isPlaced(const QWidget& widget) const;
    void place(QWidget& dialog);
    void remember(const QWidget& dialog) const;

    QMainWindow& window;
};

} // namespace workbench
