// The host's colour dialog: the palette of 255 colours, and any colour.
#pragma once

#include "host/color_dialog.h"

#include <QDialog>

class QColorDialog;
class QDialogButtonBox;
class QTabWidget;

namespace standin {

// The palette as a grid of swatches.
class PaletteGrid : public QWidget {
    Q_OBJECT
public:
    explicit PaletteGrid(QWidget* parent);
    ~PaletteGrid() override;
    int current() const { return currentIndex; } // 1 to 255, 0 for none
    void setCurrent(int index);
    static QColor colorOf(int index);
    QSize sizeHint() const override;

signals:
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    QRect cellOf(int index) const;
    int indexAt(const QPoint& position) const;
    void pick(int index);
    int currentIndex = 0;
};

class ColorDialog : public QDialog {
    Q_OBJECT
public:
    ColorDialog(const QColor& start, OdCm::DialogTabs tabs, QWidget* parent);
    ~ColorDialog() override;
    QColor color() const;

private:
    void build(const QColor& start, OdCm::DialogTabs tabs);
    void layOut();
    void connectSignals();
    QTabWidget* tabWidget = nullptr;
    PaletteGrid* paletteGrid = nullptr;
    QColorDialog* trueColorPage = nullptr;
    QDialogButtonBox* buttonBox = nullptr;
};

} // namespace standin
