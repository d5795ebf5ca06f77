// The numbers of the attach dialog in drawings of every unit style: what it shows it also takes.
#include "tests/xref/attach_dialog_fixture.h"

namespace {

class DialogUnits : public AttachDialog, public testing::WithParamInterface<std::tuple<int, int>> {
protected:
    DialogUnits() {
        host.vars.set("LUNITS", std::get<0>(GetParam()));
        host.vars.set("LUPREC", std::get<1>(GetParam()));
    }
};

} // namespace

TEST_P(DialogUnits, TheUntouchedDialogIsTaken) {
    open(write("part.dxf"));
    io.script({pick(1, 2)});
    click("okButton");
    EXPECT_EQ(noticeTexts(), QStringList());
    EXPECT_EQ(ended, QDialog::Accepted);
    EXPECT_EQ(inserted().at(0)->scaleFactors(), OdGeScale3d(1));
}

TEST_P(DialogUnits, FactorsKeepTheirValueWhenUniformScaleIsLeft) {
    for (const char* number : {"0.125", "-7.0123456789", "1000000", "0.00001"}) {
        give("INSERTION_POINT_SPECIFY_ON_SCREEN", 0);
        open(write("part.dxf"));
        click("uniformScaleCheck");
        type("scaleXEdit", number);
        click("uniformScaleCheck");
        EXPECT_EQ(text("scaleYEdit"), number);
        EXPECT_EQ(text("scaleZEdit"), number);
        click("okButton");
        EXPECT_EQ(noticeTexts(), QStringList());
        EXPECT_EQ(inserted().back()->scaleFactors(), OdGeScale3d(QString(number).toDouble()));
    }
}

INSTANTIATE_TEST_SUITE_P(StyleAndPrecision, DialogUnits,
                         testing::Combine(testing::Values(1, 2, 3, 4, 5), testing::Values(0, 2, 4, 8)));

// Of a drawing in feet and inches.
class DialogInFeet : public AttachDialog {
protected:
    DialogInFeet() {
        host.vars.set("LUNITS", 4);
        give("INSERTION_POINT_SPECIFY_ON_SCREEN", 0);
        open(write("part.dxf"));
    }
};

TEST_F(DialogInFeet, FieldsAreCheckedInTheUnitStyleOfTheDrawing) {
    for (const char* field : {"insertXEdit", "insertYEdit", "insertZEdit", "angleEdit"}) {
        edit(field)->setText("2'x");
        click("okButton");
        EXPECT_EQ(noticeTexts().size(), 1) << field;
        EXPECT_TRUE(dialog->isVisible()) << field;
        host.notices().clear();
        edit(field)->setText("2'");
    }
    click("okButton");
    EXPECT_EQ(noticeTexts(), QStringList()) << "feet are a length there";
    EXPECT_EQ(ended, QDialog::Accepted);
}
