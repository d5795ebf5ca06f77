// The Options dialog with one page in it, and a user's hands: rows are found by what they show, buttons, rows
// and dialogs are clicked.
#pragma once

#include "options/window/preferences.h"
#include "tests/support/fixture_host.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <gtest/gtest.h>
#include <memory>

class ClickableLabel;

// Sections and values of a store, written in one line each.
Ref<IParam> sectionOf(IParam& parent, const char* path);
template <class T> void setValue(const Ref<IParam>& section, const char* name, const T& value) {
    CKWVariant variant;
    variant = value;
    section->setValue(name, &variant);
}
CKWVariant valueOf(IParam& parent, const char* path, const char* name); // empty when missing
QString textOf(const CKWVariant& value);
QStringList childrenOf(IParam& parent);

// The control of a dialog by its name.
template <class T> T* named(const QWidget& dialog, const char* name) {
    T* found = dialog.findChild<T*>(QLatin1String(name));
    if (!found)
        ADD_FAILURE() << "no control named " << name;
    return found;
}
void clickOn(const QWidget& dialog, const char* button);
void typeInto(const QWidget& dialog, const char* edit, const QString& text); // in place of what is there

class PageFixture : public testing::Test {
protected:
    explicit PageFixture(int pageId);
    ~PageFixture() override;

    // Builds and shows the dialog over an option tree whose one node, "Page", has the page's ID.
    Preferences& open();
    TreeItem* page() const;
    TreeItem* row(const QString& text) const; // a row below the page by its label without marks
    TreeItem* current() const { return static_cast<TreeItem*>(preferences->tree->currentItem()); }
    ClickableLabel* labelOf(TreeItem* item) const;
    QString shown(TreeItem* item) const; // the label's text as it stands
    QStringList rowsBelow(TreeItem* item) const;
    QCheckBox* checkBoxOf(TreeItem* item) const;
    bool checkBoxStandsBeforeLabel(TreeItem* item) const;

    void select(TreeItem* item); // clicks into the tree beside the label
    void doubleClick(TreeItem* item);
    void searchFor(const QString& text);
    // Opens the row's menu and clicks the entry; false when the entry is disabled.
    bool chooseInMenu(TreeItem* item, const QString& entry);
    void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    // Acts on the next dialog that comes up modally. The act has to end it.
    void whenDialogOpens(std::function<void(QDialog&)> act);
    int dialogsOpened = 0;

    FixtureHost host;
    std::unique_ptr<Preferences> preferences;

private:
    void poll(std::function<bool()> act);
    int id;
};
