// The checks of the numbers in the attach dialog.
#include "xref/attach_dialog.h"

#include "host/command_io.h"
#include "host/text.h"
#include "xref/attach_host.h"

#include <QCheckBox>
#include <QLineEdit>
#include <cmath>

namespace {

void refuse(QLineEdit* edit, const wchar_t* message) {
    attach::notice(kInputNotice, attach::word(message));
    edit->setFocus();
}

QString reformatted(const QLineEdit* edit) {
    OdString text;
    hostdbRToS(edit->text().toDouble(), -1, 1, text, -1, -1);
    return hostqt::qString(text);
}

} // namespace

bool hostInsertExternalReferenceDialog::requireDistance(QLineEdit* edit, const wchar_t* message) const {
    double value = 0;
    if (hostdbDisToF(hostqt::odStringFromWidget(edit->text()), -1, value))
        return true;
    refuse(edit, message);
    return false;
}

bool hostInsertExternalReferenceDialog::requireFactor(QLineEdit* edit, bool free) const {
    if (std::fabs(edit->text().toDouble()) > 1e-13 || free)
        return true;
    refuse(edit, L"Invalid scale factor. Please enter non-zero numbers.");
    return false;
}

void hostInsertExternalReferenceDialog::onOK() {
    for (QLineEdit* edit : {insertXEdit, insertYEdit, insertZEdit})
        if (!requireDistance(edit, L"Invalid insertion point."))
            return;
    // The angle goes through the reader of distances, on purpose.
    if (!requireDistance(angleEdit, L"Invalid rotation setting."))
        return;
    const bool onScreen = scaleOnScreenCheck->isChecked();
    if (!requireFactor(scaleXEdit, onScreen))
        return;
    const bool uniform = uniformScaleCheck->isChecked();
    if (requireFactor(scaleYEdit, onScreen || uniform) && requireFactor(scaleZEdit, onScreen || uniform))
        accept();
}

void hostInsertExternalReferenceDialog::onUniformChanged() {
    if (scaleOnScreenCheck->isChecked())
        return;
    const bool uniform = uniformScaleCheck->isChecked();
    for (QLineEdit* edit : {scaleYEdit, scaleZEdit}) {
        edit->setText(uniform ? scaleXEdit->text() : reformatted(edit));
        edit->setEnabled(!uniform);
    }
}
