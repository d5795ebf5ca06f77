// The shipped option tree in a test's host, and a user who changes an option of any kind.
#include "tests/options/shipped_tree.h"

#include "sdk/rx/color.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>

namespace {

bool holdsOption(const TreeItem* item) {
    return item->nodeType >= kNodeCheck && item->nodeType <= kNodeCombo && item->nodeType != kNodePaper &&
           item->nodeType != kNodeRasterFormat;
}

} // namespace

ShippedTree::ShippedTree() {
    loadFile("preftree.yaml", host.config());
    loadFile("formats.yaml", host.ioParams());
    loadFile("profile_defaults.yaml", host.profile());
    QStringList problems;
    variables = std::make_unique<standin::VarService>(
        standin::SysVarTable::fromFile(SHIPPED_DATA_DIR "/sysvars.yaml", &problems),
        [this](OdRxObject*) { return &drawing; });
    variables->changed = [this](const QString& name) { variablesChanged.push_back(name.toStdString()); };
    EXPECT_EQ(problems, QStringList());
    host.documents.vars = variables.get();
    host.stdDirs().dirs["TemplatesDir"] = folder.path().toStdWString();
    host.stdDirs().dirs["AppDataDir"] = folder.path().toStdWString();
    qputenv("HOME", folder.path().toUtf8());
    QDir(folder.path()).mkdir("other");
    standin::registry().colorDialog = [](OdCmColor& color, auto&&...) {
        // Two colours of the palette, so that one of them is a change for every row.
        const std::uint32_t chosen = OdCmEntityColor::lookUpRGB(color.red() == 255 ? 104 : 30);
        color.setRGB(std::uint8_t(chosen >> 16), std::uint8_t(chosen >> 8), std::uint8_t(chosen));
        return 1;
    };
}

ShippedTree::~ShippedTree() {
    dialog.reset();
    qputenv("HOME", homeBefore);
}

void ShippedTree::loadFile(const char* name, IParam& target) {
    QFile file(QString(SHIPPED_DATA_DIR "/") + name);
    ASSERT_TRUE(file.open(QFile::ReadOnly)) << name;
    const standin::YamlResult result = standin::parseYaml(file.readAll().toStdString(), name);
    ASSERT_TRUE(result.clean()) << result.report();
    Param_CopyTo(result.tree.get(), &target);
}

std::vector<TreeItem*> ShippedTree::dataRows() {
    std::vector<TreeItem*> rows;
    for (QTreeWidgetItemIterator it(dialog->tree); *it; ++it)
        if (dialog->optionItems.contains(static_cast<TreeItem*>(*it)))
            rows.push_back(static_cast<TreeItem*>(*it));
    return rows;
}

std::vector<TreeItem*> ShippedTree::options() {
    std::vector<TreeItem*> rows;
    for (TreeItem* item : dataRows())
        if (holdsOption(item))
            rows.push_back(item);
    return rows;
}

QString ShippedTree::shown(TreeItem* item) {
    if (auto* button = editorOf<QAbstractButton>(item); button && button->isCheckable())
        return button->isChecked() ? "on" : "off";
    if (editorOf<QToolButton>(item)) // the byte above the colour belongs to the cursor's choice
        return QString::number(item->colorValue & 0xFFFFFF, 16);
    if (auto* box = editorOf<QComboBox>(item))
        return box->currentText();
    if (auto* edit = editorOf<QLineEdit>(item))
        return edit->text();
    return QString::number(item->numberValue, 'g', 12);
}

std::map<std::string, QString> ShippedTree::shownByName() {
    std::map<std::string, QString> all;
    for (TreeItem* item : options())
        all[item->nodeName.toStdString()] = shown(item);
    return all;
}

void ShippedTree::change(TreeItem* item) {
    if (auto* swatch = editorOf<QToolButton>(item)) {
        swatch->click();
        swatch->click();
    } else if (auto* button = editorOf<QAbstractButton>(item)) {
        button->click();
    } else if (auto* box = editorOf<QComboBox>(item)) {
        box->setCurrentIndex((box->currentIndex() + 1) % box->count());
    } else if (auto* edit = editorOf<QLineEdit>(item)) {
        edit->setText(item->nodeType == kNodeEdit      ? "changed"
                      : item->nodeType == kNodeEditDir ? folder.path() + "/other"
                                                       : otherFile(item));
        QTest::keyClick(edit, Qt::Key_Return);
    } else if (auto* spinBox = editorOf<QAbstractSpinBox>(item)) {
        const double before = item->numberValue;
        spinBox->stepUp();
        if (item->numberValue == before)
            spinBox->stepDown();
    }
}

QString ShippedTree::otherFile(TreeItem* item) {
    int id = 0;
    readValue(nodeOf(item), "ID", &id);
    return id == kIdTemplateFiles ? "other.dwt" : id == kIdStandardFiles ? "other.dws" : "other.log";
}

QString ShippedTree::profileText() {
    auto& owner = dynamic_cast<standin::SectionOwner&>(host.profile());
    return QString::fromStdString(standin::writeYaml(owner.section()));
}

bool ShippedTree::isKnownVariable(const CXString& key) { return variables->table().find(key.c_str()); }
