// An option tree of two branches, and searches in it.
#pragma once

#include "tests/options/pages/option_window.h"
#include "tests/support/fixture_host.h"

class Search : public testing::Test {
protected:
    void SetUp() override {
        window.root->description = "All options of this program";
        display = window.add(window.root, "Display", "How the drawing is shown");
        colours = window.add(display, "Colours", "Colours of the canvas");
        background = window.add(colours, "Background colour", "Colour behind the drawing");
        grid = window.add(display, "Grid", "Lines of the grid");
        files = window.add(window.root, "Files", "Folders and files");
        autosave = window.add(files, "Autosave interval", "Minutes between two savings");
        folder = window.add(files, "Folder", "Where the copies go");
        window.open();
        window.tree->setCurrentItem(window.root);
    }

    bool shown(TreeItem* item) const { return !item->isHidden(); }
    QString status() const { return window.searchEdit->statusLabel->text(); }
    QString label(TreeItem* item) const { return window.labelText(item); }
    void setLabel(TreeItem* item, const QString& text) {
        static_cast<QPrefWidget*>(window.tree->itemWidget(item, 0))->label()->setText(text);
    }

    QString marked(const QString& text) const { return opening + text + closing; }

    const QString opening = "<span style=\"background-color: green\"><font color=\"white\">";
    const QString closing = "</font></span>";
    FixtureHost host;
    OptionWindow window;
    TreeItem *display = nullptr, *colours = nullptr, *background = nullptr, *grid = nullptr, *files = nullptr,
             *autosave = nullptr, *folder = nullptr;
};
