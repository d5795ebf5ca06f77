// A line edit for a length. It remembers the exact number behind the rounded text, so that changing the unit
// to and fro loses nothing.
#pragma once

#include <QLineEdit>
#include <optional>

namespace standin {

class LengthEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit LengthEdit(QWidget* parent = nullptr);
    void setLength(double value);
    // Nothing when the text is no finite number. A decimal comma counts as a point.
    std::optional<double> length() const { return exact; }
    // Shows the same length in another unit; a text that is no number stays.
    void convert(double factor);
    static QString shown(double value);

private:
    std::optional<double> exact;
};

} // namespace standin
