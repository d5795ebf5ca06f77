// Lists the former versions of a drawing's file and lets the user choose one to open.
#pragma once

#include "standin/history/version_store.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;

namespace workbench {

class VersionsDialog : public QDialog {
    Q_OBJECT
public:
    // `versions` with the oldest first; the latest is shown first.
    VersionsDialog(const QString& drawing, std::vector<standin::FileVersion> versions, QWidget* parent);
    // After exec() has accepted.
    const standin::FileVersion& chosen() const;

private:
    void build();
    void fill();
    void layOut();
    void connectSignals();
    int versionOfRow(int row) const { return static_cast<int>(shown.size()) - 1 - row; }
    bool canOpen(int row) const;
    void openRow();

    const std::vector<standin::FileVersion> shown;
    QLabel* introLabel = nullptr;
    QTableWidget* versionsTable = nullptr;
    QPushButton* openButton = nullptr;
    QPushButton* closeButton = nullptr;
};

} // namespace workbench
