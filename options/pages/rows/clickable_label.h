// The label of an option row: a label that tells when it was double-clicked.
#pragma once

#include <QLabel>
#include <cstdint>

class ClickableLabel : public QLabel {
    Q_OBJECT
public:
    ClickableLabel(const QString& text, QWidget* parent, int enabled);

signals:
    void doubleClicked(); // a slot may delete the label

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    std::int32_t doubleClickEnabled; // non-zero: the signal is emitted
};
