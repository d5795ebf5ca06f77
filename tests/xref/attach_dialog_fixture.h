// The attach dialog over the drawing of a test, and a user's hands on it.
#pragma once

#include "tests/support/file_dialog_driver.h"
#include "tests/support/poll.h"
#include "tests/xref/xref_fixture.h"
#include "xref/attach_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>
#include <stdexcept>

class AttachDialog : public XRefTest {
protected:
    ~AttachDialog() override { dialog.reset(); }

    // Sets a key of the parameter map for the next dialog.
    void give(const char* key, const QString& text) {
        const CKWVariant value(hostqt::cxStringW(text));
        params->setValue(key, &value);
    }
    void give(const char* key, double number) {
        CKWVariant value;
        value = number;
        params->setValue(key, &value);
    }
    void give(const char* key, int number) {
        CKWVariant value;
        value = number;
        params->setValue(key, &value);
    }
    // Puts a setting into the store of the services, which must be there.
    void store(const char* key, int number) {
        CKWVariant value;
        value = number;
        services->store->setValue(key, &value);
    }
    hostInsertExternalReferenceDialog& open() {
        dialog.reset();
        dialog = std::make_unique<hostInsertExternalReferenceDialog>(nullptr, params.get());
        ended = kStillOpen;
        QObject::connect(dialog.get(), &QDialog::finished, dialog.get(), [this](int how) { ended = how; });
        if (dialog->initialized) {
            dialog->show();
            dialog->activateWindow();
            waitUntil([this] { return dialog->isActiveWindow(); });
        }
        return *dialog;
    }
    hostInsertExternalReferenceDialog& open(const QString& path) {
        give("PATH", path);
        return open();
    }
    template <class Control> Control* control(const char* name) const {
        auto* const found = dialog->findChild<Control*>(QLatin1String(name));
        if (!found)
            throw std::invalid_argument(name);
        return found;
    }
    QLineEdit* edit(const char* name) const { return control<QLineEdit>(name); }
    QString text(const char* name) const { return edit(name)->text(); }
    bool enabled(const char* name) const { return control<QWidget>(name)->isEnabled(); }
    bool checked(const char* name) const { return control<QAbstractButton>(name)->isChecked(); }
    void click(const char* name) { control<QAbstractButton>(name)->click(); }
    void type(const char* name, const QString& words) {
        edit(name)->selectAll();
        QTest::keyClicks(edit(name), words);
    }
    // Chooses a row as a user does: with the keyboard, so that the list tells that it was activated.
    void choose(const char* list, int row) {
        auto* const combo = control<QComboBox>(list);
        combo->setFocus();
        while (combo->currentIndex() != row) {
            const int before = combo->currentIndex();
            QTest::keyClick(combo, before < row ? Qt::Key_Down : Qt::Key_Up);
            if (combo->currentIndex() == before || combo->currentIndex() == -1)
                break;
        }
    }
    QStringList items(const char* list) const {
        QStringList result;
        const auto* const combo = control<QComboBox>(list);
        for (int i = 0; i < combo->count(); ++i)
            result << combo->itemText(i);
        return result;
    }

    Ref<IParam> params = Ref<IParam>::take(new_MemParam());
    std::unique_ptr<hostInsertExternalReferenceDialog> dialog;
    enum { kStillOpen = -1 };
    int ended = kStillOpen; // how the dialog has ended; its result() begins as a rejection
    const QString notSaved =
        QStringLiteral("Relative path cannot be assigned.\nDrawing file should be saved.");
    const QString notOnOneDisk = QStringLiteral(
        "Relative path cannot be assigned.\nDrawing and reference files should be placed on one disk.");
};
