// The tab with the facts about the drawing's file. It only shows, and is not refreshed while the dialog is
// open.
#pragma once

#include <QWidget>

class QFileInfo;
class QGridLayout;
class QLabel;

class GeneralTab : public QWidget {
    Q_OBJECT
public:
    explicit GeneralTab(const QFileInfo& fileInfo);

    // What kind of file the name promises; its suffix when the system does not know the kind.
    static QString formatFileType(const QString& path);
    // "2.00 KB (2048 bytes)"; empty for 0. Two decimals in single precision, the byte count exact. The text
    // ends in a blank when there is no byte count, and that is meant.
    static QString formatFileSize(qint64 size);

private:
    void addName(QGridLayout& grid, const QFileInfo& fileInfo);
    void addFacts(QGridLayout& grid, const QFileInfo& fileInfo);
    void addFileFacts(QGridLayout& grid, const QFileInfo& fileInfo);
    void addDates(QGridLayout& grid, const QFileInfo& fileInfo);
    void addAttributes(QGridLayout& grid, const QFileInfo& fileInfo);
    void addRow(QGridLayout& grid, int row, const QString& label, QLabel* value, const char* name);
    QWidget* newCheckBox(const QString& text, bool checked, const char* name);
};
