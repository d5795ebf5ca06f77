// What a tracker shows while its prompt is open: its objects, moved, turned and stretched with the cursor.
// Few shapes are painted anew for each place and stay sharp; of many a picture is painted once and moved.
#pragma once

#include "host/tracker.h"
#include "sdk/db/database.h"
#include "standin/display/shape.h"
#include "standin/display/view.h"

#include <QColor>
#include <QPixmap>
#include <QTransform>
#include <optional>

namespace standin {

struct OpenPrompt;

class TrackerPicture : public HostDrawableSink {
public:
    // The tracker outlives the picture, or the picture leaves it.
    TrackerPicture(const OpenPrompt& prompt, OdDbDatabasePtr database);
    ~TrackerPicture() override;
    TrackerPicture(const TrackerPicture&) = delete;
    TrackerPicture& operator=(const TrackerPicture&) = delete;

    const OpenPrompt* prompt() const { return open; } // null once the tracker was left
    // What is shown stays where it is, and neither the prompt nor the tracker is asked any more.
    void leaveTracker();
    bool hasBase() const { return base.has_value(); }
    void setCursor(const QPointF& point); // in the drawing
    void paint(QPainter& painter, const View& view, const QColor& foreground);
    // What the objects cover when they stand where they were made; empty without any.
    Box box() const;

    void addDrawable(OdRxObject* drawable, int, int, int, int) override;
    void removeDrawable(OdRxObject* drawable, int, int, int, int) override;

private:
    struct Drawable {
        OdRxObject* object;
        QPointF anchor; // what follows the cursor
        Item item;
        QPixmap picture; // of many shapes
        View pictured;   // what it shows
        double paintedScale = 0;
    };
    QTransform movement(const QPointF& anchor) const;
    static void paintPicture(Drawable& drawable, const View& view, const QColor& foreground);
    static void drawPicture(QPainter& painter, Drawable& drawable, const QTransform& moved, const View& view,
                            const QColor& foreground);

    const OpenPrompt* open;
    const std::optional<OdGePoint3d> base;
    const int kind; // of the prompt
    OdDbDatabasePtr drawing;
    std::vector<Drawable> drawables;
    QPointF cursor;
};

} // namespace standin
