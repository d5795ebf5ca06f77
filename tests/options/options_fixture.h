// A host with an option tree of the test's own, and the Options dialog on it.
#pragma once

#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/window/preferences.h"
#include "tests/options/option_tree_writer.h"
#include "tests/support/fixture_host.h"
#include "tests/support/poll.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTreeWidgetItemIterator>
#include <gtest/gtest.h>
#include <memory>

class OptionsFixture : public testing::Test {
protected:
    OptionTreeWriter tree() { return OptionTreeWriter(sectionOf(host.config(), "PrefTree")); }
    // A node directly below the root of the tree.
    OptionTreeWriter node(const char* name) { return tree().node(name); }

    Preferences& open() {
        tree(); // the host supplies at least an empty one
        dialog.reset();
        dialog = std::make_unique<Preferences>(nullptr);
        dialog->setWindowTitle("Options");
        return *dialog;
    }
    // The dialog on the screen, with every row in view, ready for mouse and keyboard.
    Preferences& show() {
        open();
        dialog->tree->expandAll();
        dialog->show();
        EXPECT_TRUE(waitUntil([this] { return dialog->isActiveWindow(); }));
        return *dialog;
    }
    // After another window has closed: a window manager makes the dialog the active one again.
    void comeBack() {
        QApplication::setActiveWindow(dialog.get());
        EXPECT_TRUE(waitUntil([this] { return dialog->isActiveWindow(); }));
    }
    void apply() { dialog->applyButton->click(); }

    TreeItem* item(const char* nodeName) {
        for (QTreeWidgetItemIterator it(dialog->tree); *it; ++it)
            if (static_cast<TreeItem*>(*it)->nodeName == nodeName)
                return static_cast<TreeItem*>(*it);
        ADD_FAILURE() << "no item " << nodeName;
        return nullptr;
    }
    QPrefWidget* row(const char* nodeName) { return dialog->rowWidgets.value(item(nodeName)); }
    QString labelOf(const char* nodeName) { return row(nodeName)->label()->text(); }
    // The editor of a row, by the name of its node.
    template <class Editor> Editor* editor(const char* nodeName) {
        Editor* found = dialog->tree->findChild<Editor*>(nodeName);
        EXPECT_TRUE(found) << "no editor " << nodeName;
        return found;
    }

    // The profile.
    template <class Value> void store(const char* section, const char* key, const Value& value) {
        writeValue(sectionOf(host.profile(), section).get(), key, value);
    }
    CKWVariant stored(const char* section, const char* key) {
        CKWVariant value;
        if (const Ref<IParam> opened = openChild(&host.profile(), section))
            opened->getValue(key, &value);
        return value;
    }
    int storedInt(const char* section, const char* key) { return stored(section, key); }
    QString storedText(const char* section, const char* key) {
        CXStringW text;
        readValue(openChild(&host.profile(), section).get(), key, &text);
        return hostqt::qString(text);
    }
    bool isStored(const char* section, const char* key) { return stored(section, key).vt != kVtEmpty; }

    FixtureHost host;
    std::unique_ptr<Preferences> dialog;

private:
    static Ref<IParam> sectionOf(IParam& root, const char* name) {
        return Ref<IParam>::take(root.openSection(name, 1));
    }
};
