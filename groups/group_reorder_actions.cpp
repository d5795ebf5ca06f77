// What the buttons of the dialog "Order Group" do.
#include "groups/group_reorder_dlg.h"

#include <QLabel>
#include <QLineEdit>
#include <algorithm>

namespace {

bool isPositionDigit(QChar c) {
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
           (c.unicode() >= 128 && c.category() == QChar::Number_DecimalDigit);
}

void openForWrite(const OdDbGroupPtr& group) {
    if (!group->isWriteEnabled())
        group->upgradeOpen();
}

} // namespace

bool parsePosition(const QString& text, int& value) {
    const QString digits = text.trimmed();
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isPositionDigit))
        return false;
    bool ok = false;
    value = digits.toInt(&ok, 10);
    return ok;
}

// The label speaks of less than all members, the check allows what stands behind the larger position: meant.
void CGroupReorderDlg::reorder() {
    messageLabel->clear();
    const OdDbGroupPtr group = data->group;
    const int size = static_cast<int>(group->numEntities());
    const QString countText = countEdit->text().trimmed();
    int from = 0, to = 0, count = 0;
    if (!parsePosition(removeFromEdit->text(), from) || from >= size)
        return refuse(QDialog::tr("Cannot remove from that position."), removeFromEdit);
    if (!parsePosition(newPositionEdit->text(), to) || to >= size)
        return refuse(QDialog::tr("Cannot replace at that position."), newPositionEdit);
    if (!parsePosition(countText.isEmpty() ? QStringLiteral("1") : countText, count) ||
        count > size - std::max(from, to) || count <= 0)
        return refuse(QDialog::tr("Cannot move that number of objects."), countEdit);
    openForWrite(group);
    group->transfer(static_cast<unsigned>(from), static_cast<unsigned>(to), static_cast<unsigned>(count));
    messageLabel->setText(QDialog::tr("Group has been re-ordered."));
}

void CGroupReorderDlg::refuse(const QString& message, QLineEdit* edit) {
    messageLabel->setText(message);
    edit->setFocus();
    edit->selectAll();
}

void CGroupReorderDlg::reverseOrder() {
    const OdDbGroupPtr group = data->group;
    openForWrite(group);
    group->reverse();
    messageLabel->setText(QDialog::tr("Object's order has been reversed."));
}

void CGroupReorderDlg::highlightMembers() { done(kHighlight); }
