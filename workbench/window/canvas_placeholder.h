// The drawing area while drawings aren't drawn: the name of the drawing, and what to type.
#pragma once

#include "workbench/settings.h"

#include <QWidget>

namespace workbench {

class CanvasPlaceholder : public QWidget {
    Q_OBJECT
public:
    explicit CanvasPlaceholder(QWidget* parent);
    ~CanvasPlaceholder() override;
    void showDrawing(const QString& name); // an empty name: none is open
    void apply(const Settings& settings);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void drawTexts(QPainter& painter) const;
    void drawCursor(QPainter& painter) const;
    QString drawingName;
    QColor background;
    CursorSettings cursorLook;
    QPoint cursorAt{-1, -1};
};

} // namespace workbench
