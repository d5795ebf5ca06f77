// The row of an option: what the tree shows in place of the item's own text.
#pragma once

#include <QString>
#include <QWidget>

class ClickableLabel;
class TreeItem;

class QPrefWidget : public QWidget {
public:
    // Takes the text of column 0 out of `item` into the label. `position` 0 places the editor before the
    // label, 1 behind it; with any other number the editor is not placed. `editor` may be null.
    QPrefWidget(TreeItem* item, int position, QWidget* editor, bool cutAtAngleBracket, int doubleClickEnabled,
                QWidget* parent);
    ~QPrefWidget() override;

    ClickableLabel* label() const { return rowLabel; }
    void showText(const QString& text); // as the label and as its tool tip
    void applyToolTipStyle();           // after every change of theme

private:
    void buildLabel(const QString& text, int doubleClickEnabled);
    void layOut(int position, QWidget* editor);

    ClickableLabel* rowLabel = nullptr;
    QString labelStyleSheet; // the label's own, from before the tool-tip style was put on it
};
