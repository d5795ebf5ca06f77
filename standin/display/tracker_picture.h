// What a tracker shows while its prompt is open: a picture of its objects that is painted once and then
// moved, turned and stretched with the cursor.
#pragma once

#include "host/tracker.h"
#include "sdk/db/database.h"
#include "standin/display/shape.h"
#include "standin/display/view.h"

#include <QColor>
#include <QPixmap>
#include <QTransform>

namespace standin {

struct OpenPrompt;

class TrackerPicture : public HostDrawableSink {
public:
    // The tracker outlives the picture.
    TrackerPicture(const OpenPrompt& prompt, OdDbDatabasePtr database);
    ~TrackerPicture() override;
    TrackerPicture(const TrackerPicture&) = delete;
    TrackerPicture& operator=(const TrackerPicture&) = delete;

    const OpenPrompt* prompt() const { return &shownPrompt; }
    void setCursor(const QPointF& point); // in the drawing
    void paint(QPainter& painter, const View& view, const QColor& foreground);

    void addDrawable(OdRxObject* drawable, int, int, int, int) override;
    void removeDrawable(OdRxObject* drawable, int, int, int, int) override;

private:
    struct Drawable {
        OdRxObject* object;
        QPointF anchor; // what follows the cursor
        Item item;
    };
    QTransform movement(const QPointF& anchor) const;
    void paintPictures(const View& view, const QColor& foreground);

    const OpenPrompt& shownPrompt;
    OdDbDatabasePtr drawing;
    std::vector<Drawable> drawables;
    std::vector<QPixmap> pictures; // one for each drawable
    std::vector<View> pictured;    // what they show
    double paintedScale = 0;
    QPointF cursor;
};

} // namespace standin
