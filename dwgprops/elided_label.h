// A label that shortens its text to its width.
#pragma once

#include <QLabel>

class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();
    QString fullText;
};
