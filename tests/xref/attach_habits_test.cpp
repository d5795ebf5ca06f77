// The attach command and its dialog in a host that wants more of them than their settled behaviour.
#include "host/reference_files.h"
#include "tests/support/test_habits.h"
#include "tests/xref/attach_dialog_fixture.h"
#include "xref/attach_command.h"
#include "xref/file_selection.h"

namespace {

const double pi = 3.14159265358979323846;

struct AttachHabits : AttachDialog {
    // Attaches files whose names the host asks for, so that no dialog of files comes up.
    void attach(const QStringList& chosen) {
        for (const QString& file : chosen)
            files->chosen.push_back(hostqt::odString(file));
        habits.add(files);
        Ref<OdQCmd_hostAttachExternalReferenceCommand>::share(new OdQCmd_hostAttachExternalReferenceCommand)
            ->Run(nullptr);
    }
    // The rotation of the reference after `hands` have filled the dialog in.
    double turnedBy(const std::function<void()>& hands) {
        open(write("part.dxf"));
        click("insertionOnScreenCheck");
        hands();
        click("okButton");
        return inserted().at(0)->rotation();
    }
    QString bad(const char* name) { return writeBytes(name, "no drawing"); }

    TestHabits habits{{DialogHabit::AnglesAsAtPrompts, DialogHabit::BadFilesRefusedAtOnce,
                       DialogHabit::UnitOfFileShown, DialogHabit::FilesPlacedApart}};
    Ref<TestAttachFiles> files = Ref<TestAttachFiles>::share(new TestAttachFiles);
};

TEST_F(AttachHabits, AnAngleIsInDegreesWithTheUnitBesideItAndTurnsTheReference) {
    open(write("part.dxf"));
    EXPECT_EQ(control<QLabel>("angleUnitLabel")->text(), "degrees");
    EXPECT_EQ(text("angleEdit"), "0");
    EXPECT_EQ(control<QLineEdit>("angleEdit")->toolTip(), "In degrees, as at the prompts of this drawing.");
    click("insertionOnScreenCheck");
    type("angleEdit", "90");
    click("okButton");
    ASSERT_EQ(inserted().size(), 1u);
    EXPECT_NEAR(inserted()[0]->rotation(), pi / 2, 1e-12);
}

TEST_F(AttachHabits, TheDialogTurnsAsThePromptDoesInTheUnitsOfTheDrawing) {
    struct Case {
        int style;
        const char* unit;
        double base;
        bool clockwise;
    };
    for (const Case& c :
         {Case{0, "degrees", 0, false}, Case{2, "grads", 0, false}, Case{3, "radians", 0, false},
          Case{0, "degrees", 90, false}, Case{0, "degrees", 30, true}}) {
        host.vars.set("AUNITS", c.style);
        host.vars.set("ANGBASE", c.base);
        host.vars.set("ANGDIR", c.clockwise);
        EXPECT_NEAR(turnedBy([] {}), 0, 1e-9) << "an untouched angle turns, unit " << c.unit;
        EXPECT_EQ(control<QLabel>("angleUnitLabel")->text(), c.unit);
        const double byDialog = turnedBy([this] { type("angleEdit", "0.5"); });
        const double byPrompt = turnedBy([this] {
            click("rotationOnScreenCheck");
            io.script({typed(L"0.5")});
        });
        EXPECT_NEAR(byDialog, byPrompt, 1e-9) << c.unit << " base " << c.base;
    }
}

TEST_F(AttachHabits, TheRotationOfTheMapIsShownInTheUnit) {
    give("ROTATION", pi / 6);
    open(write("part.dxf"));
    EXPECT_EQ(text("angleEdit"), "30");
}

TEST_F(AttachHabits, TheUnitOfTheFileIsShownAndSeveralVary) {
    drawing->setINSUNITS(OdDb::kUnitsMeters);
    open(write("part.dxf", OdDb::kUnitsMillimeters));
    EXPECT_EQ(text("unitEdit"), "Millimetres");
    EXPECT_EQ(text("factorEdit"), "0.001");
    open(write("plain.dxf"));
    EXPECT_EQ(text("unitEdit"), "Unitless");
    open(write("a.dxf") + ";" + write("b.dxf"));
    EXPECT_EQ(text("unitEdit"), "Varies");
}

TEST_F(AttachHabits, AFileThatIsNoDrawingIsRefusedWithItsNameAndReasonAndTheOthersGoOn) {
    drawing->setINSUNITS(OdDb::kUnitsMeters);
    io.script({pick(1, 2)});
    attach({bad("bad.dxf"), inFolder("missing.dxf"), write("good.dxf"), write("site.dxf")});
    EXPECT_EQ(
        noticeTexts(),
        QStringList({inFolder("bad.dxf") + ": Drawing file is not valid.",
                     inFolder("missing.dxf") + ": \"" + inFolder("missing.dxf") + "\" cannot be found.",
                     inFolder("site.dxf") + ": Error: Possible circular reference to current drawing."}))
        << noticeTexts().join('\n').toStdString();
    EXPECT_EQ(referenceNames(), QStringList("good"));
    EXPECT_EQ(inserted().size(), 1u);
}

TEST_F(AttachHabits, WithNoFileLeftNothingIsTouched) {
    const std::string before = drawing->writeBytes();
    attach({bad("bad.dxf"), write("a;b.dxf"), write(".dxf")});
    ASSERT_EQ(noticeTexts().size(), 3) << noticeTexts().join('\n').toStdString();
    EXPECT_TRUE(noticeTexts()[1].startsWith(inFolder("a;b.dxf") + ": "));
    EXPECT_EQ(drawing->writeBytes(), before);
    EXPECT_TRUE(io.questions.empty());
}

TEST_F(AttachHabits, BrowseRefusesABadFileAndKeepsTheOneBefore) {
    open(write("part.dxf"));
    FileDialogDriver badOne(bad("bad.dxf"));
    dialog->onBrowse();
    EXPECT_EQ(noticeTexts(), QStringList(inFolder("bad.dxf") + ": Drawing file is not valid."));
    EXPECT_EQ(dialog->path, inFolder("part.dxf"));
    addPlainBlock(L"other");
    FileDialogDriver goodOne(write("other.dxf"));
    dialog->onBrowse();
    EXPECT_EQ(dialog->path, inFolder("other.dxf"));
    EXPECT_EQ(referenceNames(), QStringList("other_1"));
    EXPECT_EQ(control<QComboBox>("nameCombo")->currentText(), "other_1");
}

TEST_F(AttachHabits, SeveralFilesAreAskedForOneAfterTheOther) {
    provideServices();
    open(write("a.dxf") + ";" + write("b.dxf"));
    EXPECT_TRUE(enabled("insertionOnScreenCheck"));
    EXPECT_TRUE(checked("insertionOnScreenCheck"));
    io.script({pick(1, 2), pick(30, 40)});
    click("okButton");
    ASSERT_EQ(inserted().size(), 2u);
    EXPECT_EQ(inserted()[0]->position(), OdGePoint3d(1, 2, 0));
    EXPECT_EQ(inserted()[1]->position(), OdGePoint3d(30, 40, 0));
    EXPECT_EQ(services->reported, QStringList({"Placing a.dxf (1 of 2).", "Placing b.dxf (2 of 2)."}));
}

TEST_F(AttachHabits, EscapeAtOneOfSeveralAsksForNoMore) {
    open(write("a.dxf") + ";" + write("b.dxf") + ";" + write("c.dxf"));
    io.script({pick(1, 2), cancel(), pick(5, 6)});
    click("okButton");
    EXPECT_EQ(io.questions.size(), 2u);
    EXPECT_EQ(ended, QDialog::Rejected);
}

TEST_F(AttachHabits, SeveralFilesAtOnePointStandBesideEachOther) {
    open(write("a.dxf") + ";" + write("b.dxf") + ";" + write("c.dxf"));
    click("insertionOnScreenCheck");
    type("insertXEdit", "100");
    type("scaleXEdit", "2");
    click("okButton");
    const auto found = inserted();
    ASSERT_EQ(found.size(), 3u);
    EXPECT_EQ(found[0]->position(), OdGePoint3d(100, 0, 0));
    for (std::size_t i = 1; i < found.size(); ++i) {
        const double formerEnd = found[i - 1]->position().x + 20; // a line of length 10, twice as large
        EXPECT_GT(found[i]->position().x, formerEnd) << "they overlap";
        EXPECT_LT(found[i]->position().x, formerEnd + 20) << "they are far apart";
        EXPECT_EQ(found[i]->position().y, 0);
    }
}

// Folders as the host remembers them.
class TestReferenceFiles : public CKWUnknownImpl<IReferenceFiles> {
public:
    CXStringW startFolder(OdDbDatabase* drawing) override {
        asked = drawing;
        return hostqt::cxStringW(start);
    }
    void chosenIn(const wchar_t* folder) override { chosen << QString::fromWCharArray(folder); }
    OdDbDatabase* asked = nullptr;
    QString start;
    QStringList chosen;
};

TEST_F(AttachHabits, TheFileDialogStartsWhereTheHostSaysAndTellsWhereAFileWasChosen) {
    const auto folders = Ref<TestReferenceFiles>::share(new TestReferenceFiles);
    habits.add(folders);
    QTemporaryDir lib;
    folders->start = lib.path();
    FileDialogDriver cancelled;
    selectXRefFiles(nullptr, true);
    EXPECT_EQ(cancelled.directory, lib.path());
    EXPECT_EQ(folders->asked, drawing.get());
    EXPECT_EQ(folders->chosen, QStringList()) << "nothing was chosen";
    FileDialogDriver chosen(write("part.dxf"));
    EXPECT_EQ(selectXRefFiles(nullptr, true), QStringList(inFolder("part.dxf")));
    EXPECT_EQ(folders->chosen, QStringList(folder.path()));
    folders->start.clear();
    FileDialogDriver root;
    selectXRefFiles(nullptr, false);
    EXPECT_EQ(root.directory, "/");
}

} // namespace
