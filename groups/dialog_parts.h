// What the dialogs of the group commands have in common.
#pragma once

#include "sdk/db/object_id.h"

#include <QVariant>

class QDialog;
class QHBoxLayout;
class QLayout;
class QPushButton;
class QTableWidget;
class QWidget;

namespace group_dialogs {

// A dialog window with a title and a close button, without an icon, of a fixed size.
void setUpWindow(QDialog& dialog, const char* objectName, const QString& title, int width, int height);
// A control with its field's name as object name.
template <class Control> Control* named(Control* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    return control;
}
// A table that shows groups, one a row, of which one can be chosen.
void setUpTable(QTableWidget& table, const QStringList& headers);
int firstSelectedRow(const QTableWidget& table); // -1 without a selection
void scrollToRow(QTableWidget& table, int row);
QString yesOrNo(bool yes);
constexpr const char* helpTopic = "IDH_GroupCmd[1]";
// Little room around and between parts: the windows are of a fixed size.
void tighten(QLayout& layout);
QHBoxLayout* centredRow(std::initializer_list<QPushButton*> buttons);

// An id as the user data of a table item, and back; the null id for anything that is no id.
QVariant dataOfId(OdDbObjectId id);
OdDbObjectId idOfData(const QVariant& data);

} // namespace group_dialogs
