// The tab with the table of custom properties. It only edits the table; the dialog reads it on OK.
#pragma once

#include "sdk/db/summary_info.h"

#include <QWidget>
#include <set>

class AddDlg;
class CustomDelegate;
class CustomTableWidget;
class QFileInfo;
class QPushButton;
class QTableWidgetItem;

class CustomTab : public QWidget {
    Q_OBJECT
public:
    CustomTab(const QFileInfo& fileInfo, const OdDbDatabaseSummaryInfoPtr& summaryInfo);
    bool eventFilter(QObject* watched, QEvent* event) override;

    bool nameInUse(const QString& text) const; // in a named row, exactly this text
    bool isBlankName(const QString& text) const;
    bool hasForbiddenChar(const QString& text) const;
    void startEdit(QTableWidgetItem* item);
    void closeEditor();
    void onDelete();
    int minimumRows(int n) const; // the table never shows fewer than minRows

    CustomTableWidget* table;
    int editingRow = -1;
    QPushButton* addButton;
    QPushButton* deleteButton;
    int minRows = 10;
    int maxNameLength = 255;
    QString forbiddenChars = QStringLiteral("<>/\\\":;?*|,=`");

private:
    void build(const OdDbDatabaseSummaryInfo& info);
    void fill(const OdDbDatabaseSummaryInfo& info);
    void layOut();
    void connectSignals();
    void setRow(int row, const QString& name, const QString& value);
    void normaliseCell(int row, int column);
    void editNextRow();
    void updateDeleteButton();
    void onAdd();
    void checkName(AddDlg& dialog);
    void removeRows(const std::set<int>& rows);

    CustomDelegate* delegate = nullptr;
};
