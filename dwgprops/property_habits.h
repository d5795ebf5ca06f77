// What hosts with the habit want of the dialog of the drawing properties: everything in sight and in reach of
// the keys.
#pragma once

class QDialog;
class QTableWidget;
class QTabWidget;

// Room for all tabs without arrows, and the keys that change between them.
void showAllTabs(QDialog& dialog, QTabWidget& tabs);
// The first column as wide as its contents, within reason.
void fitFirstColumn(QTableWidget& table);
void letKeysInto(QTableWidget& table);
