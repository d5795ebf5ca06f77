// What the dialog leaves in the saved drawing: nothing after Cancel, the edits after OK, in every version of
// the drawing file.
#include "dwgprops/dwg_props_command.h"
#include "tests/dwgprops/dialog_driver.h"

namespace {

std::string header(const std::string& version) {
    return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n" + version +
           "\n  9\n$TDCREATE\n 40\n2460377.586909722\n  9\n$TDUPDATE\n 40\n2460378.0\n"
           "  9\n$CUSTOMPROPERTYTAG\n  1\nb\n  9\n$CUSTOMPROPERTY\n  1\n1\n"
           "  9\n$CUSTOMPROPERTYTAG\n  1\na\n  9\n$CUSTOMPROPERTY\n  1\n2\n  9\n$HANDSEED\n  5\nFF\n  "
           "0\nENDSEC\n";
}
std::string drawingOf(const std::string& version) {
    return header(version) + "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";
}

class SavedDrawing : public DrawingProperties, public testing::WithParamInterface<const char*> {
protected:
    SavedDrawing() { useDrawing(OdDbDatabase::readBytes(drawingOf(GetParam()))); }
    static void leaveWith(void (dwgProps::*way)()) {
        onNextDialog<dwgProps>([way](dwgProps& dialog) {
            OpenProperties::in<QLineEdit>(&dialog, "titleEdit")->setText(QStringLiteral("A house"));
            auto* const page = OpenProperties::in<QWidget>(&dialog, "customTab");
            auto* const table = OpenProperties::in<QTableWidget>(page, "table");
            const int row = static_cast<int>(shownProperties(*table).size());
            table->setItem(row, 0, new QTableWidgetItem(QString::fromUtf8("new \xD0\x96")));
            table->setItem(row, 1, new QTableWidgetItem("50% ^J"));
            (dialog.*way)();
        });
        runDwgProps();
    }
};

} // namespace

TEST_P(SavedDrawing, IsTagForTagAsItWasAfterCancel) {
    leaveWith(&dwgProps::onCancel);
    EXPECT_EQ(drawing->writeBytes(), drawingOf(GetParam()));
    EXPECT_FALSE(drawing->isModified());
}

TEST_P(SavedDrawing, HoldsTheEditsAfterOk) {
    const Properties before = properties();
    leaveWith(&dwgProps::onOK);
    useDrawing(OdDbDatabase::readBytes(drawing->writeBytes()));
    Properties expected = before;
    expected.emplace_back(QString::fromUtf8("new \xD0\x96"), "50% ^J");
    EXPECT_EQ(properties(), expected);
    EXPECT_EQ(summary()->getTitle(), OdString(L"A house"));
}

TEST_P(SavedDrawing, ShowsItsDatesInTheDialog) {
    const OpenProperties dialog(kStatistics);
    EXPECT_EQ(dialog.control<QWidget>("statisticTab")->findChild<QLabel*>("createdLabel")->text(),
              QStringLiteral("07 March 2024 14:05:09"));
}

INSTANTIATE_TEST_SUITE_P(Versions, SavedDrawing,
                         testing::Values("AC1009", "AC1012", "AC1014", "AC1015", "AC1018", "AC1021", "AC1024",
                                         "AC1027", "AC1032"));
