// A walk over option data of the test's own, and the rows that it has made.
#pragma once

#include "tests/options/open_dialog.h"

class WalkFixture : public testing::Test {
protected:
    WalkFixture() : tree(optionTree(host)) {}
    FixtureHost host;
    OptionTreeWriter tree;
};

inline QWidget* rowOf(const Preferences& dialog, const char* name) {
    return dialog.rowWidgets.value(itemOf(dialog, name));
}

template <class Editor> Editor* editorOf(const Preferences& dialog, const char* name) {
    return rowOf(dialog, name)->findChild<Editor*>();
}

inline bool isOn(const Preferences& dialog, const char* name) {
    return itemOf(dialog, name)->isEnabled() && rowOf(dialog, name)->isEnabled();
}
