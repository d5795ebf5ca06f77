// A window with an option tree as the Options dialog has one: rows, description pane, search box, collapse
// buttons and a default button, without any rule of the dialog itself.
#pragma once

#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/pages/search/collapse_widget.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/store/tree_item.h"
#include "tests/support/poll.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

class OptionWindow : public QDialog {
public:
    enum Root { WithRoot, WithoutRoot };

    explicit OptionWindow(Root wanted = WithRoot) {
        tree = new QTreeWidget(this);
        tree->setHeaderHidden(true);
        description = new QTextEdit(this);
        description->setReadOnly(true);
        if (wanted == WithRoot)
            makeRoot();
        searchEdit = new SearchingLineEdit(tree, description, this, "green", "white");
        collapse = new CollapseWidget(tree, searchEdit, this);
        okButton = new QPushButton("OK", this);
        layOut();
        okButton->setDefault(true);
    }

    TreeItem* add(TreeItem* parent, const QString& label, const QString& text = {},
                  QWidget* editor = nullptr) {
        auto* item = new TreeItem(parent, QStringList(label));
        item->description = text;
        setRow(item, editor);
        return item;
    }

    void setRow(TreeItem* item, QWidget* editor) {
        tree->setItemWidget(item, 0, new QPrefWidget(item, 1, editor, false, 1, this));
    }

    void open() {
        show();
        QApplication::setActiveWindow(this);
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
        okButton->setFocus();
        ASSERT_TRUE(waitUntil([this] { return okButton->hasFocus(); }));
    }

    void search(const QString& text) {
        searchEdit->setText(text);
        QTest::keyClick(searchEdit, Qt::Key_Return);
    }

    QString labelText(TreeItem* item) const {
        return static_cast<QPrefWidget*>(tree->itemWidget(item, 0))->label()->text();
    }

    QTreeWidget* tree = nullptr;
    QTextEdit* description = nullptr;
    SearchingLineEdit* searchEdit = nullptr;
    CollapseWidget* collapse = nullptr;
    QPushButton* okButton = nullptr;
    TreeItem* root = nullptr;

private:
    void makeRoot() {
        root = new TreeItem(tree, QStringList("Options"));
        setRow(root, nullptr);
        root->setExpanded(true);
    }

    void layOut() {
        auto* box = new QVBoxLayout(this);
        const QList<QWidget*> widgets{tree,
                                      description,
                                      searchEdit->statusLabel,
                                      searchEdit,
                                      okButton,
                                      collapse->collapseButton,
                                      collapse->expandButton};
        for (QWidget* widget : widgets)
            box->addWidget(widget);
        resize(500, 600);
    }
};
