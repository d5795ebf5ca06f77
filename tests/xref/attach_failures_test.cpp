// Bad input: what the user is told, and that the drawing stays as it was.
#include "sdk/db/xref_man.h"
#include "tests/xref/xref_fixture.h"
#include "xref/attach_failures.h"
#include "xref/attach_host.h"
#include "xref/attach_reference.h"
#include "xref/create_xref_reference.h"

#include <unistd.h>

namespace {

class AttachFailures : public XRefTest {
protected:
    AttachFailures() { before = drawing->writeBytes(); }
    static bool attachFile(const QString& path) {
        return attachReference(hostqt::odString(path), {}, OdGeScale3d(1), false, false, false, false, false,
                               0, false, 0);
    }
    void expectRefusal(const QString& path, const QStringList& messages) {
        EXPECT_FALSE(attachFile(path));
        EXPECT_EQ(noticeTexts(), messages);
        EXPECT_TRUE(referenceNames().isEmpty());
        EXPECT_EQ(drawing->writeBytes(), before);
        EXPECT_EQ(drawing->numActiveTransactions(), 0);
    }
    std::string before;
    const QString invalid = QStringLiteral("Drawing file is not valid.");
    const QString unsupported = QStringLiteral(
        "This version of file format is not supported. \nConvert it to supported format to open file.");
};

} // namespace

TEST_F(AttachFailures, MissingFileIsNamedInTheMessage) {
    const QString path = inFolder("gone.dxf");
    expectRefusal(path, {QStringLiteral("\"%1\" cannot be found.").arg(path)});
    EXPECT_EQ(host.notices()[0].kind, 0);
    EXPECT_EQ(host.notices()[0].buttons, 7);
}

TEST_F(AttachFailures, DirectoryIsNoFile) {
    QDir(folder.path()).mkdir("part.dxf");
    const QString path = inFolder("part.dxf");
    expectRefusal(path, {QStringLiteral("\"%1\" cannot be found.").arg(path)});
}

namespace {

// A user that may not read everything: root lays its rights down for a while.
class OrdinaryUser {
public:
    OrdinaryUser() : effective(geteuid()) {
        if (effective == 0) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(seteuid(effective), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    uid_t effective;
};

} // namespace

TEST_F(AttachFailures, FileThatMayNotBeReadIsToldWithItsPath) {
    const QString path = write("secret.dxf");
    QFile::setPermissions(folder.path(), QFile::ReadOther | QFile::ExeOther | QFile::ReadOwner |
                                             QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(path, {});
    const OrdinaryUser user;
    expectRefusal(path, {QStringLiteral("\"%1\" cannot be found.").arg(path)});
}

TEST_F(AttachFailures, FileNameOf300CharactersIsToldLikeAMissingFile) {
    const QString path = inFolder(QString(300, 'n') + ".dxf");
    expectRefusal(path, {QStringLiteral("\"%1\" cannot be found.").arg(path)});
}

TEST_F(AttachFailures, DrawingsOwnBaseNameIsToldToTheServicesWithThePath) {
    provideServices();
    QDir(folder.path()).mkdir("other");
    const QString path = write("other/site.dxf");
    expectRefusal(path, {});
    EXPECT_EQ(io.formatted, QStringList("Error: Possible circular reference to current drawing."));
    EXPECT_EQ(services->refused,
              QStringList(path + ": Error: Possible circular reference to current drawing."));
}

TEST_F(AttachFailures, BlockOfTheSameNameThatIsNoReferenceStaysBesideTheNewOne) {
    addPlainBlock(L"part");
    EXPECT_TRUE(attachFile(write("part.dxf")));
    EXPECT_EQ(referenceNames(), QStringList("part_1"));
    EXPECT_FALSE(block("part")->isFromExternalReference());
}

namespace {

// No handle is given out twice, so the next one counts on when a definition was taken back.
std::string withoutSeed(std::string bytes) {
    const std::size_t value = bytes.find('\n', bytes.find("$HANDSEED") + 11) + 1;
    return bytes.erase(value, bytes.find('\n', value) - value);
}

} // namespace

TEST_F(AttachFailures, BadFileBesideTwoThousandReferencesLeavesThemAsTheyWere) {
    for (int i = 0; i < 2000; ++i)
        define(QStringLiteral("r%1").arg(i), inFolder(QStringLiteral("r%1.dxf").arg(i)));
    before = withoutSeed(drawing->writeBytes());
    EXPECT_FALSE(attachFile(writeBytes("bad.dxf", "x")));
    EXPECT_EQ(noticeTexts(), QStringList(invalid));
    EXPECT_TRUE(withoutSeed(drawing->writeBytes()) == before);
    EXPECT_TRUE(attachFile(write("part.dxf")));
    EXPECT_EQ(referenceNames().size(), 2001);
    EXPECT_EQ(inserted().size(), 1u);
}

TEST_F(AttachFailures, EmptyFileIsNotValid) { expectRefusal(writeBytes("empty.dxf", ""), {invalid}); }

TEST_F(AttachFailures, BinaryDrawingIsNotSupported) {
    QByteArray bytes = "AC1032";
    bytes.append(QByteArray(500, '\0'));
    expectRefusal(writeBytes("binary.dwg", bytes), {unsupported});
}

TEST_F(AttachFailures, GarbageIsNotValid) {
    expectRefusal(writeBytes("garbage.dxf", QByteArray(2000, '\x81')), {invalid});
}

TEST_F(AttachFailures, TextThatIsNoDrawingIsNotValid) {
    expectRefusal(writeBytes("letter.dxf", "Dear reader,\nthis is a letter.\n"), {invalid});
}

TEST_F(AttachFailures, TruncatedFileIsNotValid) {
    QFile whole(write("whole.dxf"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    expectRefusal(writeBytes("half.dxf", bytes.left(bytes.indexOf("BLOCKS") + 3)), {invalid});
}

TEST_F(AttachFailures, LinkThatLeadsToItselfIsToldLikeAMissingFile) {
    const QString path = inFolder("loop.dxf");
    QFile::link(path, path);
    expectRefusal(path, {QStringLiteral("\"%1\" cannot be found.").arg(path)});
}

TEST_F(AttachFailures, EmptyPathIsRefusedInSilence) { expectRefusal(QString(), {}); }

TEST_F(AttachFailures, DrawingThatAttachesTheCurrentOneIsSilentWithoutServices) {
    drawing->writeFile(odPath("site.dxf"));
    before = drawing->writeBytes();
    expectRefusal(writeReferring("part.dxf", {"site.dxf"}), {});
    EXPECT_TRUE(io.lines.isEmpty());
}

TEST_F(AttachFailures, DrawingThatAttachesTheCurrentOneAtAnyDepthIsToldToTheServices) {
    provideServices();
    drawing->writeFile(odPath("site.dxf"));
    before = drawing->writeBytes();
    writeReferring("deep.dxf", {"site.dxf"});
    writeReferring("middle.dxf", {"deep.dxf"});
    const QString path = writeReferring("part.dxf", {"middle.dxf"});
    expectRefusal(path, {});
    const QString reason = path + ": Object refers to itself";
    EXPECT_EQ(services->reported, QStringList("XattachCmd Exception "));
    EXPECT_EQ(services->refused, QStringList(reason));
}

TEST_F(AttachFailures, DrawingThatOverlaysTheCurrentOneIsAttached) {
    drawing->writeFile(odPath("site.dxf"));
    EXPECT_TRUE(attachFile(writeReferring("part.dxf", {"site.dxf"}, true)));
}

TEST_F(AttachFailures, CurrentDrawingUnderAnotherNameIsRefused) {
    drawing->writeFile(odPath("site.dxf"));
    before = drawing->writeBytes();
    QFile::link(inFolder("site.dxf"), inFolder("other.dxf"));
    expectRefusal(inFolder("other.dxf"), {});
}

TEST_F(AttachFailures, FileNamesOfAnyCharactersAreAttachedAndSurviveSaving) {
    for (const char* name : {"a\"b'c.dxf", "a\nb.dxf", "a  b.dxf", "ä,=`|*?.dxf", "100%s.dxf"}) {
        const QString path = write(name);
        EXPECT_TRUE(attachFile(path)) << name;
        const OdDbDatabasePtr read = OdDbDatabase::readBytes(drawing->writeBytes());
        const auto reference = odrxCast<OdDbBlockReference>(
            odrxCast<OdDbBlockTableRecord>(read->getModelSpaceId().safeOpenObject())
                ->entityIds()
                .back()
                .safeOpenObject());
        const auto record = odrxCast<OdDbBlockTableRecord>(reference->blockTableRecord().safeOpenObject());
        EXPECT_EQ(hostqt::qString(record->pathName()), path);
    }
}

TEST_F(AttachFailures, TextDrawingUnderTheNameOfABinaryOneIsAttached) {
    EXPECT_TRUE(attachFile(write("part.dwg")));
}

TEST_F(AttachFailures, DrawingsThatAttachEachOtherAreAttachedOnce) {
    writeReferring("a.dxf", {"b.dxf"});
    writeReferring("b.dxf", {"a.dxf"});
    EXPECT_TRUE(attachFile(inFolder("a.dxf")));
    EXPECT_EQ(referenceNames(), QStringList("a"));
}

TEST_F(AttachFailures, ExistingReferenceWhoseFileIsGoneStaysAsItWas) {
    const QString path = inFolder("gone.dxf");
    define("gone", path);
    EXPECT_FALSE(attachFile(path));
    EXPECT_EQ(noticeTexts(), QStringList(QStringLiteral("\"%1\" cannot be found.").arg(path)));
    EXPECT_EQ(referenceNames(), QStringList("gone"));
}

TEST_F(AttachFailures, FileThatDisappearsBetweenTheDialogAndOkIsTold) {
    const QString path = write("part.dxf");
    QString name = QStringLiteral("part");
    OdDbBlockReferencePtr reference;
    bool hadDefinition = true;
    OdDbObjectId id;
    ASSERT_TRUE(createXRefReference(path, name, false, reference, hadDefinition, id));
    OdDbXRefMan::load(block("part").get());
    QFile::remove(path);
    EXPECT_FALSE(attachFile(path));
    EXPECT_EQ(noticeTexts(), QStringList(QStringLiteral("\"%1\" cannot be found.").arg(path)));
}

namespace {

struct CodeCell {
    const char* name;
    OdResult code;
    QString message; // empty: none is shown
};
void PrintTo(const CodeCell& cell, std::ostream* out) { *out << cell.name; }
class FailureCodes : public AttachFailures, public testing::WithParamInterface<CodeCell> {};

} // namespace

TEST_P(FailureCodes, AreToldAsTheirRowSays) {
    tellAttachFailure(&io, L"/x/100%s.dxf", OdError(GetParam().code));
    EXPECT_EQ(noticeTexts(), GetParam().message.isEmpty() ? QStringList() : QStringList(GetParam().message));
    EXPECT_TRUE(io.lines.isEmpty());
    EXPECT_TRUE(io.formatted.isEmpty());
}

TEST_P(FailureCodes, AreToldWithThePathToTheServices) {
    provideServices();
    tellAttachFailure(&io, L"/x/100%s.dxf", OdError(GetParam().code));
    EXPECT_EQ(services->reported.contains("XattachCmd Exception "), GetParam().message.isEmpty());
    EXPECT_TRUE((services->reported + services->refused).last().startsWith("/x/100%s.dxf: "));
    const bool showsABoxItself = !GetParam().message.isEmpty();
    EXPECT_EQ(services->refused,
              showsABoxItself ? QStringList() : QStringList("/x/100%s.dxf: Key not found"));
}

const CodeCell codes[] = {
    {"Unsupported", eUnsupportedFileFormat,
     "This version of file format is not supported. \nConvert it to supported format to open file."},
    {"BadFile", eBadDwgFile, "Drawing file is not valid."},
    {"ReadError", eDxfReadError, "Drawing file is not valid."},
    {"InvalidDrawing", eInvalidDrawing, "Drawing file is not valid."},
    {"CantOpen", eCantOpenFile, "\"/x/100%s.dxf\" cannot be found."},
    {"AnyOther", eKeyNotFound, {}},
};
INSTANTIATE_TEST_SUITE_P(All, FailureCodes, testing::ValuesIn(codes),
                         [](const auto& row) { return row.param.name; });

TEST_F(AttachFailures, ExceptionOfAnotherKindEndsLikeAnyOtherCode) {
    provideServices();
    io.onQuestion = [](const XRefIO::Question&, HostEdPointTracker*) { throw std::runtime_error("broken"); };
    EXPECT_FALSE(attachReference(hostqt::odString(write("part.dxf")), {}, OdGeScale3d(1), false, false, true,
                                 false, false, 0, false, 0));
    EXPECT_EQ(services->reported, QStringList("XattachCmd Exception "));
    EXPECT_EQ(services->refused, QStringList(inFolder("part.dxf")));
}

TEST_F(AttachFailures, WithoutADocumentTheConsoleIsTheManagersOwn) {
    host.closeDocument();
    EXPECT_EQ(attach::io(), &io);
    standin::registry().documents = nullptr;
    EXPECT_EQ(attach::io(), nullptr);
}

// Notes the fixed numbers that come with a text.
class NotedNumbers : public CKWUnknownImpl<IEvents> {
public:
    int notify(int kind, const wchar_t*, int reserved, int buttons) override {
        numbers = {kind, reserved, buttons};
        return 5;
    }
    std::vector<int> numbers;
};

TEST_F(AttachFailures, NoticesCarryTheirNumbersAndGiveTheAnswer) {
    const auto noted = Ref<NotedNumbers>::share(new NotedNumbers);
    standin::registry().events = noted.get();
    for (const NoticeKind kind : {kFileNotice, kInputNotice, kConflictNotice}) {
        EXPECT_EQ(attach::notice(kind, L"text"), 5);
        EXPECT_EQ(noted->numbers, (std::vector<int>{kind, 0, 7}));
    }
    standin::registry().events = nullptr;
    EXPECT_EQ(attach::notice(kFileNotice, L"text"), 0) << "nobody answers";
}

TEST_F(AttachFailures, MessagesAreTranslated) {
    host.translations[L"Drawing file is not valid."] = L"Keine Zeichnung.";
    attachFile(writeBytes("empty.dxf", ""));
    EXPECT_EQ(noticeTexts(), QStringList("Keine Zeichnung."));
}
