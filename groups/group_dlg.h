// The dialog "Object Grouping": the groups of a drawing, and the controls that create, change, explode and
// order them. Some buttons work at once, others end the dialog with a result for which the command does the
// work.
#pragma once

#include "groups/group_data.h"
#include "sdk/db/dictionary.h"

#include <QDialog>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

class CGroupDlg : public QDialog {
    Q_OBJECT
public:
    enum Result {
        kAccepted = 1,
        kEnded = 2, // of the command's loop; no button gives it
        kCancelled = 3,
        kNew = 4,
        kRemove = 5,
        kAdd = 7,
        kReorder = 8,
        kFindName = 9,
        kHighlight = 10
    };

    // `data` is not touched after the last run of the dialog: it may go before the dialog does.
    CGroupDlg(QWidget* parent, OdDbObjectId groupDictionaryId, GroupData& data);
    ~CGroupDlg() override;

    // Shows the drawing's groups anew, after a creation.
    void refillTable();
    // The message of a GroupDialogError, empty for any other code.
    static QString errorMessage(int code);

protected:
    void closeEvent(QCloseEvent* event) override; // counts as Cancel

private:
    static constexpr int kRowHeight = 22;
    enum Order { kCollated = 0, kSorted = 1 }; // of the three fills of the table
    struct Row {
        QString name;
        bool selectable;
        OdDbObjectId id;
    };

    void build();
    void buildIdentification();
    void buildButtons();
    void flatten();
    void layOut();
    QGroupBox* identificationBox();
    QGroupBox* createBox();
    QGroupBox* changeBox();
    void connectControls();
    void connectChecks();
    void connectWork();

    void fillTable();
    void buildFilter();
    void filter();
    void makeRoomForReasons();
    void fitWindow();
    void showFill(int chosenRow); // no row when it is negative
    void chooseRow(int row);
    std::vector<Row> rowsOf(const OdDbDictionaryPtr& dictionary, Order order, bool strict);
    void noteRow(const OdString& name, bool anonymous, int row, bool strict);
    void showRows(const std::vector<Row>& rows, bool withIds);
    void clearTable();
    void fillForIncludeUnnamed();
    void enableGroupButtons(bool enabled);
    OdDbGroupPtr groupForRow(int row, OdDb::OpenMode mode) const;
    OdDbGroupPtr currentGroup() const;
    void captureControls(bool store);

    void selectionChanged();
    void showGroup(const OdDbGroupPtr& group);
    void updateHighlight();
    void highlightChanged();
    void unnamedChanged();
    void endForWork(Result result);
    void endForNew();
    int checkNewName(const QString& name);
    void tellRefusal(int error);
    bool isListed(const QString& name) const;
    int countNamedRows() const;
    void explode();
    void giveUpRow(int row);
    void rename();
    void changeDescription();
    void changeSelectable();
    void showHelp();

    OdDbObjectId dictionaryId;
    GroupData* data;
    OdDbObjectIdArray rowIds; // index = table row
    int namedRows = 0;        // of the last fill

    const bool guided;               // whether the host wants the dialog to lead its user
    QLineEdit* filterEdit = nullptr; // null without that

    QTableWidget* groupTable;
    QLineEdit* nameEdit;
    QLineEdit* descriptionEdit;
    QPushButton* findNameButton;
    QCheckBox* highlightCheck;
    QCheckBox* includeUnnamedCheck;
    QPushButton* newButton;
    QCheckBox* selectableCheck;
    QCheckBox* unnamedCheck;
    QPushButton* removeButton;
    QPushButton* addButton;
    QPushButton* renameButton;
    QPushButton* reorderButton;
    QPushButton* descriptionButton;
    QPushButton* explodeButton;
    QPushButton* selectableButton;
    QLabel* messageLabel;
    QPushButton* okButton;
    QPushButton* cancelButton;
    QPushButton* helpButton;
};
