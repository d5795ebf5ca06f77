// The seven settings of the attach dialog. Without a store of the host none of them outlives the dialog.
#include "xref/attach_dialog.h"

#include "host/app.h"
#include "host/attach_services.h"
#include "host/typed_reads.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace {

struct SettingButton {
    const char* key;
    QAbstractButton* button;
};

std::vector<SettingButton> settingButtons(const hostInsertExternalReferenceDialog& dialog) {
    return {{"xAttachRefGrabScale", dialog.scaleOnScreenCheck},
            {"xAttachRefGrabAngle", dialog.rotationOnScreenCheck},
            {"xAttachRefGrabInsPoint", dialog.insertionOnScreenCheck},
            {"xAttachRefAutoZoom", dialog.autoZoomCheck},
            {"xAttachRefUniformScale", dialog.uniformScaleCheck},
            {"xAttachRefType", dialog.attachmentRadio}};
}

constexpr const char* kPathTypeKey = "xAttachRefPathType";

Ref<IParam> settingsStore() {
    const Ref<IAttachServices> services = appService<IAttachServices>();
    return services ? Ref<IParam>::take(services->settings()) : Ref<IParam>();
}

} // namespace

void hostInsertExternalReferenceDialog::loadAttachSettings() {
    const Ref<IParam> store = settingsStore();
    for (const auto& [key, button] : settingButtons(*this)) {
        int value = button->isChecked();
        readValue(store.get(), key, &value);
        button->setChecked(value != 0);
        // A radio button that is on goes off only when the other one goes on.
        if (button == attachmentRadio && value == 0)
            overlayRadio->setChecked(true);
    }
    int row = pathTypeCombo->currentIndex();
    readValue(store.get(), kPathTypeKey, &row);
    if (row >= 0 && row < pathTypeCombo->count())
        pathTypeCombo->setCurrentIndex(row);
}

bool hostInsertExternalReferenceDialog::isOnScreenCheck(const QObject* control) const {
    return control == scaleOnScreenCheck || control == rotationOnScreenCheck ||
           control == insertionOnScreenCheck;
}

void hostInsertExternalReferenceDialog::saveAttachSettings() const {
    const Ref<IParam> store = settingsStore();
    // For several files the three boxes may be off by force, which says nothing about what the user wants.
    for (const auto& [key, button] : settingButtons(*this))
        if (!multipleFiles || placedApart || !isOnScreenCheck(button))
            writeValue(store.get(), key, int(button->isChecked()));
    writeValue(store.get(), kPathTypeKey, pathTypeCombo->currentIndex());
}
