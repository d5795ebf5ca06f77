// The option tree that the program ships, in a host with the shipped formats and the real table of system
// variables.
#pragma once

#include "standin/params/yaml_tree.h"
#include "standin/sysvars/var_service.h"
#include "tests/options/options_fixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>

class ShippedTree : public OptionsFixture {
protected:
    ShippedTree();
    ~ShippedTree() override;

    // The rows that hold an option, in the order of the tree; those of the pages hold none.
    std::vector<TreeItem*> options();
    // All rows of the data, also those without a value.
    std::vector<TreeItem*> dataRows();
    IParam* nodeOf(TreeItem* item) { return dialog->optionItems.value(item); }
    QWidget* editorOf(TreeItem* item) {
        return dialog->rowWidgets.value(item)->findChild<QWidget*>(item->nodeName,
                                                                   Qt::FindDirectChildrenOnly);
    }
    template <class Editor> Editor* editorOf(TreeItem* item) { return dynamic_cast<Editor*>(editorOf(item)); }
    // What a row shows, in words that can be compared from one opening to the next.
    QString shown(TreeItem* item);
    std::map<std::string, QString> shownByName();
    // Changes the option of a row as a user does.
    void change(TreeItem* item);
    QString profileText();
    bool isKnownVariable(const CXString& key);

    QTemporaryDir folder; // an existing directory for the directory rows
    std::vector<std::string> variablesChanged;
    standin::DrawingVars drawing;
    std::unique_ptr<standin::VarService> variables;

private:
    void loadFile(const char* name, IParam& target);
    QString otherFile(TreeItem* item);

    QByteArray homeBefore = qgetenv("HOME");
};
