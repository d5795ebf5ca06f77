// The attach dialog for who uses it by keyboard or by ear: order, labels, names, and fields that only show.
#include "tests/xref/attach_dialog_fixture.h"

#include <QButtonGroup>
#include <QGroupBox>

namespace {

class AttachAccess : public AttachDialog {
protected:
    // The objectNames that Tab goes through, from the list of names on.
    QStringList tabOrder() const {
        QStringList order;
        const QWidget* const first = control<QWidget>("nameCombo");
        const QWidget* w = first;
        do {
            if (!w->objectName().isEmpty() && (w->focusPolicy() & Qt::TabFocus))
                order << w->objectName();
            w = w->nextInFocusChain();
        } while (w != first);
        return order;
    }
};

} // namespace

TEST_F(AttachAccess, TabGoesDownEachColumnFromTheLeftToTheRight) {
    open(write("part.dxf"));
    EXPECT_EQ(tabOrder(), QStringList({"nameCombo",
                                       "browseButton",
                                       "foundInEdit",
                                       "savedPathEdit",
                                       "attachmentRadio",
                                       "overlayRadio",
                                       "scaleOnScreenCheck",
                                       "scaleXEdit",
                                       "scaleYEdit",
                                       "scaleZEdit",
                                       "uniformScaleCheck",
                                       "insertionOnScreenCheck",
                                       "insertXEdit",
                                       "insertYEdit",
                                       "insertZEdit",
                                       "pathTypeCombo",
                                       "rotationOnScreenCheck",
                                       "angleEdit",
                                       "unitEdit",
                                       "factorEdit",
                                       "autoZoomCheck",
                                       "okButton",
                                       "cancelButton",
                                       "helpButton"}));
}

TEST_F(AttachAccess, EveryLabelStandsForItsControl) {
    open(write("part.dxf"));
    std::map<QString, QStringList> controls;
    for (const QLabel* label : dialog->findChildren<QLabel*>())
        if (!label->text().isEmpty())
            controls[label->text()] << (label->buddy() ? label->buddy()->objectName() : QString());
    for (auto& [text, names] : controls)
        names.sort();
    const std::map<QString, QStringList> expected{{"Name:", {"nameCombo"}},
                                                  {"Found in:", {"foundInEdit"}},
                                                  {"Saved path:", {"savedPathEdit"}},
                                                  {"X:", {"insertXEdit", "scaleXEdit"}},
                                                  {"Y:", {"insertYEdit", "scaleYEdit"}},
                                                  {"Z:", {"insertZEdit", "scaleZEdit"}},
                                                  {"Angle:", {"angleEdit"}},
                                                  {"Unit:", {"unitEdit"}},
                                                  {"Factor:", {"factorEdit"}}};
    EXPECT_EQ(controls, expected);
}

TEST_F(AttachAccess, ControlsThatReadAlikeHaveNamesThatTellThemApart) {
    open(write("part.dxf"));
    const std::pair<const char*, const char*> names[] = {
        {"scaleOnScreenCheck", "Scale, Specify On-screen"},
        {"insertionOnScreenCheck", "Insertion Point, Specify On-screen"},
        {"rotationOnScreenCheck", "Rotation, Specify On-screen"},
        {"scaleXEdit", "Scale, X"},
        {"scaleYEdit", "Scale, Y"},
        {"scaleZEdit", "Scale, Z"},
        {"insertXEdit", "Insertion Point, X"},
        {"insertYEdit", "Insertion Point, Y"},
        {"insertZEdit", "Insertion Point, Z"},
        {"pathTypeCombo", "Path Type"},
        {"previewLabel", "Preview"}};
    for (const auto& [object, name] : names)
        EXPECT_EQ(control<QWidget>(object)->accessibleName(), name) << object;
}

TEST_F(AttachAccess, FieldsThatOnlyShowHaveTheColourOfTheWindow) {
    open(write("part.dxf"));
    const QColor window = dialog->palette().color(QPalette::Window);
    ASSERT_NE(window, edit("scaleXEdit")->palette().color(QPalette::Base));
    for (const char* name : {"foundInEdit", "savedPathEdit", "unitEdit", "factorEdit"})
        EXPECT_EQ(edit(name)->palette().color(QPalette::Base), window) << name;
}

TEST_F(AttachAccess, UnitOfTheAngleStandsInItsToolTip) {
    open(write("part.dxf"));
    EXPECT_TRUE(edit("angleEdit")->toolTip().contains("radians"));
}

TEST_F(AttachAccess, ReturnInAFieldPressesOk) {
    open(write("part.dxf"));
    io.script({pick(1, 2)});
    edit("scaleXEdit")->setFocus();
    QTest::keyClick(edit("scaleXEdit"), Qt::Key_Return);
    EXPECT_EQ(ended, QDialog::Accepted);
    EXPECT_EQ(inserted().size(), 1u);
}

TEST_F(AttachAccess, ControlsStandInTheirGroups) {
    open(write("part.dxf"));
    const std::pair<const char*, const char*> places[] = {{"previewLabel", "Preview"},
                                                          {"attachmentRadio", "Reference Type"},
                                                          {"overlayRadio", "Reference Type"},
                                                          {"scaleOnScreenCheck", "Scale"},
                                                          {"scaleXEdit", "Scale"},
                                                          {"uniformScaleCheck", "Scale"},
                                                          {"insertionOnScreenCheck", "Insertion Point"},
                                                          {"insertZEdit", "Insertion Point"},
                                                          {"pathTypeCombo", "Path Type"},
                                                          {"rotationOnScreenCheck", "Rotation"},
                                                          {"angleEdit", "Rotation"},
                                                          {"unitEdit", "Block Unit"},
                                                          {"factorEdit", "Block Unit"}};
    for (const auto& [object, title] : places) {
        const auto* const group = qobject_cast<QGroupBox*>(control<QWidget>(object)->parentWidget());
        ASSERT_NE(group, nullptr) << object;
        EXPECT_EQ(group->title(), title) << object;
    }
    EXPECT_EQ(control<QWidget>("attachmentRadio")->isVisible(), true);
    EXPECT_EQ(control<QAbstractButton>("attachmentRadio")->text(), "Attachment");
    EXPECT_EQ(control<QAbstractButton>("overlayRadio")->text(), "Overlay");
    EXPECT_EQ(control<QAbstractButton>("okButton")->text(), "OK");
    EXPECT_EQ(control<QAbstractButton>("cancelButton")->text(), "Cancel");
    EXPECT_EQ(control<QAbstractButton>("helpButton")->text(), "Help");
}

TEST_F(AttachAccess, ControlsStandFromLeftToRightAndFromTopToBottom) {
    open(write("part.dxf"));
    const auto place = [this](const char* name) {
        return control<QWidget>(name)->mapTo(dialog.get(), QPoint(0, 0));
    };
    const std::vector<std::vector<const char*>> columns = {
        {"nameCombo", "foundInEdit", "savedPathEdit", "previewLabel", "attachmentRadio", "overlayRadio"},
        {"savedPathEdit", "scaleOnScreenCheck", "scaleXEdit", "scaleYEdit", "scaleZEdit", "uniformScaleCheck",
         "insertionOnScreenCheck", "insertXEdit", "insertYEdit", "insertZEdit", "okButton"},
        {"savedPathEdit", "pathTypeCombo", "rotationOnScreenCheck", "angleEdit", "unitEdit", "factorEdit",
         "autoZoomCheck", "okButton"}};
    for (const auto& column : columns)
        for (std::size_t i = 1; i < column.size(); ++i)
            EXPECT_LT(place(column[i - 1]).y(), place(column[i]).y()) << column[i];
    const std::vector<std::vector<const char*>> rows = {{"nameCombo", "browseButton"},
                                                        {"previewLabel", "scaleXEdit", "angleEdit"},
                                                        {"okButton", "cancelButton", "helpButton"}};
    for (const auto& row : rows)
        for (std::size_t i = 1; i < row.size(); ++i)
            EXPECT_LT(place(row[i - 1]).x(), place(row[i]).x()) << row[i];
    const QWidget* const help = control<QWidget>("helpButton");
    EXPECT_LT(dialog->width() - help->geometry().right(), 20) << "the buttons stand at the right";
}

TEST_F(AttachAccess, TheTwoKindsAreOneChoice) {
    open(write("part.dxf"));
    const QButtonGroup* const kinds = control<QRadioButton>("attachmentRadio")->group();
    ASSERT_NE(kinds, nullptr);
    EXPECT_EQ(control<QRadioButton>("overlayRadio")->group(), kinds);
    EXPECT_TRUE(kinds->exclusive());
}

TEST_F(AttachAccess, GroupsKeepTheirHeightsAndStayAtTheTopOfAHigherWindow) {
    open(write("part.dxf"));
    std::map<QString, QRect> before;
    for (const QGroupBox* group : dialog->findChildren<QGroupBox*>())
        before[group->title()] = group->geometry();
    dialog->resize(dialog->width(), dialog->height() + 300);
    ASSERT_TRUE(
        waitUntil([&] { return control<QWidget>("okButton")->y() > before["Rotation"].bottom() + 200; }));
    for (const QGroupBox* group : dialog->findChildren<QGroupBox*>()) {
        EXPECT_EQ(group->height(), before[group->title()].height()) << group->title().toStdString();
        EXPECT_LE(group->y() - before[group->title()].y(), 100) << group->title().toStdString();
    }
}
