// The drawing area: shows the current drawing and lets the user look around in it, pick objects and points.
#pragma once

#include "standin/display/marks_image.h"
#include "workbench/canvas/sheet.h"
#include "workbench/settings.h"

#include <QWidget>
#include <map>
#include <memory>
#include <optional>

namespace standin {
class CommandLoop;
class Console;
class DocumentManager;
class EditorSelection;
struct OpenPrompt;
class TrackerPicture;
} // namespace standin

namespace workbench {

class Canvas : public QWidget {
    Q_OBJECT
public:
    Canvas(standin::Console& console, const standin::CommandLoop& commandLoop,
           standin::DocumentManager& documentManager, QWidget* parent);
    ~Canvas() override;
    void apply(const Settings& settings);

    // All of these do nothing without a drawing.
    void zoomExtents();
    void zoomWindow(const OdGePoint3d& first, const OdGePoint3d& second);
    void zoomBy(double factor);
    void zoomToScale(double pixelsPerUnit);
    bool zoomPrevious(); // false when there is no view before this one
    void zoomTo(const OdDbObjectId& id);
    void refresh(); // something was highlighted, selected or changed
    // Prepares the picture of the current drawing anew, as when other drawings are shown in it than before.
    void regenerate();
    // What of a drawing is not shown, as far as that was not said before.
    void printUnshown(const standin::Document& document);
    // Waits until the picture that is shown is finished; while the view moves it is a rough one.
    Q_INVOKABLE void finishPicture();
    bool isPictureFinished() const;
    void escape();              // gives up a window that is being drawn, else the selection
    QRect placeOfMarks() const; // on the screen, of what is highlighted; empty without any
    // What is shown of the drawing, up to date; null when it was never the current one.
    const standin::DisplayList* listOf(const OdDbDatabase& drawing);
    const standin::View* view() const { return sheet ? &sheet->view() : nullptr; }

signals:
    void cursorMoved(const QPointF& point); // in the drawing
    void cursorLeft();
    void marksChanged();                  // what is highlighted or selected may be something else
    void menuWanted(const QPoint& place); // on the screen: a right click while no command runs

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void connectSignals();
    void bringUpToDate();
    void keepUpToDate();
    void tellWhatIsLeftOut();
    void showCurrent();
    void forgetClosed();
    std::unique_ptr<Sheet> makeSheet(standin::Document& document);
    void viewChanged();
    void promptChanged();
    const standin::OpenPrompt* pointPrompt() const;
    standin::EditorSelection& editor() const;
    OdDbObjectIdArray objectsAt(const Sheet& shown, const OdGePoint3d& point) const;
    OdGePoint3d drawingPoint(const QPointF& pixel) const;
    void press(const QPoint& pixel, Qt::KeyboardModifiers modifiers);
    void finishWindow(const QPoint& pixel, Qt::KeyboardModifiers modifiers);
    void choose(const OdDbObjectIdArray& ids, Qt::KeyboardModifiers modifiers);

    standin::PictureOrder sceneOrder() const;
    standin::PictureOrder marksOrder();
    void paintPrompt(QPainter& painter, const standin::OpenPrompt& prompt);
    void paintWindow(QPainter& painter, const QPointF& first, const QPointF& second) const;
    void paintWelcome(QPainter& painter) const;
    void paintCursor(QPainter& painter) const;
    void paintPickBox(QPainter& painter, const QColor& color) const;
    bool picksObjects() const; // a click takes what lies there
    static int pickBox();      // pixels from the middle of the cursor to each side
    void showWholeOf(const standin::TrackerPicture& picture);

    standin::Console& io;
    const standin::CommandLoop& loop;
    standin::DocumentManager& documents;
    std::map<const standin::Document*, std::unique_ptr<Sheet>> sheets;
    Sheet* sheet = nullptr; // of the current drawing
    standin::LivePicture scene;
    standin::MarksImage marks;
    std::unique_ptr<standin::TrackerPicture> tracked; // of the prompt that is open
    QColor background, rubberBand;
    CursorSettings cursorLook;
    QPoint cursorAt{-1, -1};
    QPoint pressedAt, panFrom;
    std::optional<OdGePoint3d> windowCorner; // of a selection window that is being drawn
    bool panning = false;
};

} // namespace workbench
