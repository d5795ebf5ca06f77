#include "groups/removal.h"

#include "groups/group_messages.h"
#include "groups/selection_step.h"
#include "host/modal_runner.h"
#include "host/transaction_guard.h"

bool mayRemove(const OdDbGroupPtr& group, std::size_t count, const OdString& name, const QString& title,
               QMessageBox::StandardButton defaultButton) {
    OdDbObjectIdArray members;
    group->allEntityIds(members);
    if (count != members.size() || count < 2)
        return true;
    QMessageBox box(QMessageBox::Question, title, group_messages::removingAll(name),
                    QMessageBox::Ok | QMessageBox::Cancel);
    box.setTextFormat(Qt::PlainText);
    // As QMessageBox::question has it: the button that accepts where no default is named.
    box.setDefaultButton(defaultButton == QMessageBox::NoButton ? QMessageBox::Ok : defaultButton);
    return runModal(box) == QMessageBox::Ok;
}

void removeInTransaction(const OdDbDatabasePtr& database, const OdDbGroupPtr& group,
                         const OdDbObjectIdArray& ids) {
    DbTransactionGuard guard(database);
    guard.begin();
    group->remove(ids);
    guard.commit();
}

int removeByPrompt(const OdDbDatabasePtr& database, HostEditorSelection* editor, GroupData& data,
                   bool alreadyHighlighted) {
    DbTransactionGuard guard(database);
    guard.begin();
    const int failure = removeObjectsPrompt(editor, data, alreadyHighlighted);
    if (failure == 0)
        guard.commit();
    else
        guard.abort();
    return failure;
}
