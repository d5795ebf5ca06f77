// Apply on the shipped tree over the stores of the workbench: what reaches the disk, and in how many writes.
#include "host/app.h"
#include "standin/params/application.h"
#include "tests/options/shipped_tree.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QFileInfo>

namespace {

class ApplyToDisk : public ShippedTree {
protected:
    ApplyToDisk() {
        standin::ApplicationSetup setup;
        setup.dataDir = QStringLiteral(SHIPPED_DATA_DIR);
        setup.rootDir = root.path();
        setup.io.newSaveFile = [this](const QString& path) {
            ++writes[QFileInfo(path).fileName().toStdString()];
            return std::make_unique<QSaveFile>(path);
        };
        application = std::make_unique<standin::Application>(setup);
        variables->keepIn(openChild(appService<IProfile>().get(), "SysVars", 1));
        application->flush();
        writes.clear();
    }
    // The dialog goes while its stores are there.
    ~ApplyToDisk() override {
        dialog.reset();
        host.documents.vars = nullptr;
        variables.reset();
    }
    // Every check and every number that is enabled.
    int changeMany() {
        int changed = 0;
        for (TreeItem* item : options())
            if (item->isEnabled() && (editorOf<QCheckBox>(item) || editorOf<QAbstractSpinBox>(item))) {
                change(item);
                ++changed;
            }
        return changed;
    }

    QTemporaryDir root;
    std::map<std::string, int> writes; // by the name of the file
    std::unique_ptr<standin::Application> application;
};

TEST_F(ApplyToDisk, OneApplyOfManyChangesIsOneWriteOfTheProfile) {
    open();
    ASSERT_GT(changeMany(), 50);
    apply();
    EXPECT_TRUE(writes.empty()) << "nothing is written before all is applied";
    EXPECT_TRUE(waitUntil([this] { return !writes.empty(); }));
    QCoreApplication::processEvents();
    application->flush();
    EXPECT_EQ(writes["profile.yaml"], 1);
    for (const auto& [name, count] : writes)
        EXPECT_EQ(count, 1) << name;
}

TEST_F(ApplyToDisk, CancelWritesNoFile) {
    open();
    ASSERT_GT(changeMany(), 50);
    dialog->cancelButton->click();
    application->flush();
    EXPECT_TRUE(writes.empty());
}

} // namespace
