// System variables: the table, the service, and the values kept in the profile.
#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/sysvars/read_context.h"
#include "standin/sysvars/var_service.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace standin;

namespace {

const char* const table = R"(variables:
  SWITCH: {type: bool, scope: application, default: 1, description: "A switch."}
  SMALL: {type: int8, scope: application, default: 1, min: 0, max: 3, description: "A byte."}
  SIZE: {type: int16, scope: application, default: 5, min: 1, max: 100, description: "A size."}
  BIG: {type: int32, scope: application, default: 70000, description: "A long one."}
  FACTOR: {type: real, scope: drawing, default: 1.5, min: 0.5, max: 10.0, description: "A factor."}
  WORD: {type: string, scope: application, default: "abc", description: "A text."}
  FIXED: {type: int16, scope: drawing, default: 7, readonly: true, description: "Not to be set."}
)";

struct SysvarsTest : testing::Test {
    SysVarTable tableFrom(const char* text) {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) >= 0);
        file.close();
        return SysVarTable::fromFile(path(), &problems);
    }
    QString path() const { return folder.filePath("sysvars.yaml"); }
    OdResBufPtr get(const wchar_t* name, OdRxObject* context = nullptr) {
        OdResBufPtr value;
        return service.getVar(name, &value, context, 0) == kVarUnavailable ? OdResBufPtr() : value;
    }
    int set(const wchar_t* name, double number) {
        const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtDouble);
        value->setDouble(number);
        return service.setVar(name, value.get(), nullptr, 0);
    }
    int setText(const wchar_t* name, const wchar_t* text) {
        const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtString);
        value->setString(text);
        return service.setVar(name, value.get(), nullptr, 0);
    }
    QTemporaryDir folder;
    QStringList problems;
    DrawingVars first, second;
    DrawingVars* current = &first;
    OdRxObjectPtr secondContext{new OdRxObject};
    VarService service{tableFrom(table), [this](OdRxObject* context) {
                           return context == secondContext.get() ? &second : current;
                       }};
};

TEST_F(SysvarsTest, EachTypeCarriesItsOwnGroupCode) {
    EXPECT_EQ(get(L"SWITCH")->restype(), 290);
    EXPECT_EQ(get(L"SMALL")->restype(), 280);
    EXPECT_EQ(OdDxfCode::_getType(get(L"SIZE")->restype()), OdDxfCode::Integer16);
    EXPECT_EQ(OdDxfCode::_getType(get(L"BIG")->restype()), OdDxfCode::Integer32);
    EXPECT_EQ(get(L"FACTOR")->restype(), 5001);
    EXPECT_EQ(get(L"WORD")->restype(), 5005);
}

TEST_F(SysvarsTest, NamesAreFoundInAnyCase) {
    EXPECT_EQ(get(L"size")->getInt16(), 5);
    EXPECT_EQ(set(L"Size", 9), kVarOk);
    EXPECT_EQ(get(L"SIZE")->getInt16(), 9);
}

TEST_F(SysvarsTest, UnknownVariableIsUnavailable) {
    OdResBufPtr value;
    EXPECT_EQ(service.getVar(L"NOSUCH", &value, nullptr, 0), 5000);
    EXPECT_TRUE(value.isNull());
    EXPECT_EQ(set(L"NOSUCH", 1), kVarUnavailable);
}

TEST_F(SysvarsTest, ValueOutsideTheLimitsLeavesTheVariable) {
    EXPECT_EQ(set(L"SIZE", 0), kVarUnavailable);
    EXPECT_EQ(set(L"SIZE", 101), kVarUnavailable);
    EXPECT_EQ(get(L"SIZE")->getInt16(), 5);
    EXPECT_EQ(set(L"SIZE", 1), kVarOk);
    EXPECT_EQ(set(L"SIZE", 100), kVarOk);
}

TEST_F(SysvarsTest, WidthOfTheTypeIsALimitToo) {
    EXPECT_EQ(set(L"SWITCH", 2), kVarUnavailable);
    EXPECT_EQ(set(L"BIG", 3e9), kVarUnavailable);
    EXPECT_EQ(set(L"BIG", -2147483648.0), kVarOk);
}

TEST_F(SysvarsTest, NumberThatIsNoneIsRefused) {
    EXPECT_EQ(set(L"FACTOR", std::numeric_limits<double>::quiet_NaN()), kVarUnavailable);
    EXPECT_EQ(set(L"FACTOR", std::numeric_limits<double>::infinity()), kVarUnavailable);
}

TEST_F(SysvarsTest, TextAndNumbersDoNotMix) {
    EXPECT_EQ(set(L"WORD", 3), kVarUnavailable);
    EXPECT_EQ(setText(L"SIZE", L"9"), kVarUnavailable);
    EXPECT_EQ(setText(L"WORD", L""), kVarOk);
    EXPECT_TRUE(get(L"WORD")->getString().isEmpty());
}

TEST_F(SysvarsTest, ReadOnlyVariableStays) {
    EXPECT_EQ(set(L"FIXED", 8), kVarUnavailable);
    EXPECT_EQ(get(L"FIXED")->getInt16(), 7);
}

TEST_F(SysvarsTest, ValueGivenOutIsACopy) {
    get(L"SIZE")->setInt16(42);
    EXPECT_EQ(get(L"SIZE")->getInt16(), 5);
}

TEST_F(SysvarsTest, DrawingVariablesBelongToTheDrawing) {
    EXPECT_EQ(set(L"FACTOR", 3), kVarOk);
    EXPECT_EQ(get(L"FACTOR")->getDouble(), 3);
    EXPECT_EQ(get(L"FACTOR", secondContext.get())->getDouble(), 1.5);
    current = &second;
    EXPECT_EQ(get(L"FACTOR")->getDouble(), 1.5);
}

TEST_F(SysvarsTest, ApplicationVariablesAreTheSameInEveryContext) {
    EXPECT_EQ(set(L"SIZE", 9), kVarOk);
    EXPECT_EQ(get(L"SIZE", secondContext.get())->getInt16(), 9);
}

TEST_F(SysvarsTest, DrawingVariableWithoutADrawingIsUnavailable) {
    current = nullptr;
    EXPECT_TRUE(get(L"FACTOR").isNull());
    EXPECT_EQ(set(L"FACTOR", 3), kVarUnavailable);
    EXPECT_FALSE(get(L"SIZE").isNull());
}

TEST_F(SysvarsTest, ApplicationVariablesAreKeptInTheProfile) {
    const auto section = Ref<IParam>::take(new_MemParam());
    service.keepIn(section);
    set(L"SIZE", 33);
    setText(L"WORD", L"Größe");
    set(L"FACTOR", 3);
    VarService later(tableFrom(table), [this](OdRxObject*) { return &second; });
    later.keepIn(section);
    OdResBufPtr value;
    later.getVar(L"SIZE", &value, nullptr, 0);
    EXPECT_EQ(value->getInt16(), 33);
    later.getVar(L"WORD", &value, nullptr, 0);
    EXPECT_EQ(value->getString(), OdString(L"Größe"));
    later.getVar(L"FACTOR", &value, nullptr, 0);
    EXPECT_EQ(value->getDouble(), 1.5);
    later.getVar(L"BIG", &value, nullptr, 0);
    EXPECT_EQ(value->getInt32(), 70000);
}

TEST_F(SysvarsTest, UnusableValueInTheProfileGivesTheDefault) {
    const auto section = Ref<IParam>::take(new_MemParam());
    CKWVariant value;
    value = 33;
    section->setValue("SIZE", &value);
    section->setValue("BIG", &value);
    service.keepIn(section);
    ASSERT_EQ(get(L"SIZE")->getInt16(), 33);
    ASSERT_EQ(get(L"BIG")->getInt32(), 33);
    value = 5000;
    section->setValue("SIZE", &value);
    value = "text";
    section->setValue("BIG", &value);
    service.keepIn(section);
    EXPECT_EQ(get(L"SIZE")->getInt16(), 5);
    EXPECT_EQ(get(L"BIG")->getInt32(), 70000);
}

TEST_F(SysvarsTest, ChangeIsTold) {
    QStringList changes;
    service.changed = [&](const QString& name) { changes << name; };
    set(L"SIZE", 9);
    set(L"SIZE", 900);
    EXPECT_EQ(changes, QStringList({"SIZE"}));
}

TEST_F(SysvarsTest, BrokenEntryIsLeftOutAndToldWithItsLine) {
    const SysVarTable read = tableFrom("variables:\n  GOOD: {type: int16, scope: drawing, default: 1}\n"
                                       "  BAD: {type: float, scope: drawing, default: 1}\n"
                                       "  WORSE: {type: int16, scope: drawing, default: 9, max: 3}\n");
    EXPECT_NE(read.find("GOOD"), nullptr);
    EXPECT_EQ(read.all().size(), 1u);
    ASSERT_EQ(problems.size(), 2);
    EXPECT_TRUE(problems[0].startsWith(path() + ":3:")) << problems[0].toStdString();
    EXPECT_TRUE(problems[1].startsWith(path() + ":4:")) << problems[1].toStdString();
}

TEST_F(SysvarsTest, FileThatIsNoTableIsTold) {
    EXPECT_TRUE(tableFrom("variables: [").all().empty());
    EXPECT_EQ(problems.size(), 1);
    SysVarTable::fromFile(folder.filePath("missing.yaml"), &problems);
    EXPECT_EQ(problems.size(), 2);
}

TEST_F(SysvarsTest, ShippedTableReadsWithoutProblems) {
    const SysVarTable shipped =
        SysVarTable::fromFile(QStringLiteral(SHIPPED_DATA_DIR "/sysvars.yaml"), &problems);
    EXPECT_TRUE(problems.isEmpty()) << problems.join('\n').toStdString();
    EXPECT_GE(shipped.all().size(), 80u);
    for (const SysVarDef& definition : shipped.all())
        EXPECT_FALSE(definition.description.isEmpty()) << definition.name.toStdString();
    EXPECT_EQ(shipped.find("pickstyle")->type, VarType::Int8);
}

TEST_F(SysvarsTest, ValuesAreReadFromTextAndWrittenAsText) {
    const SysVarTable& variables = service.table();
    EXPECT_EQ(valueFromText(*variables.find("SIZE"), " 12 ")->getInt16(), 12);
    EXPECT_TRUE(valueFromText(*variables.find("SIZE"), "1.5").isNull());
    EXPECT_TRUE(valueFromText(*variables.find("FACTOR"), "1,5").isNull());
    EXPECT_EQ(valueText(*variables.find("FACTOR"), *valueFromText(*variables.find("FACTOR"), "0.1")), "0.1");
    EXPECT_EQ(valueText(*variables.find("WORD"), *valueFromText(*variables.find("WORD"), "a b")), "a b");
}

TEST_F(SysvarsTest, OptionTreeIsHeldWhileItIsWalked) {
    auto tree = Ref<IParam>::take(new_MemParam());
    service.openOptionTree(tree.get());
    EXPECT_EQ(tree->AddRef(), 3);
    tree->Release();
    service.closeOptionTree(tree.get());
    EXPECT_EQ(tree->AddRef(), 2);
    tree->Release();
}

TEST(SysvarsContext, ReadContextStandsForItsDatabase) {
    const OdRxObjectPtr database(new OdRxObject);
    const OdRxObjectPtr context(new ReadContext(database));
    EXPECT_EQ(databaseOf(context.get()), database.get());
    EXPECT_EQ(databaseOf(database.get()), database.get());
    EXPECT_EQ(databaseOf(nullptr), nullptr);
}

TEST_F(SysvarsTest, WhatAnotherWorkbenchHasSetReachesTheVariables) {
    const auto section = Ref<IParam>::take(new_MemParam());
    service.keepIn(section);
    EXPECT_EQ(get(L"SIZE")->getInt16(), 5);
    const CKWVariant theirs(9, kVtInt);
    section->setValue("SIZE", &theirs);
    EXPECT_EQ(get(L"SIZE")->getInt16(), 9);
    const CKWVariant outside(900, kVtInt);
    section->setValue("SIZE", &outside);
    EXPECT_EQ(get(L"SIZE")->getInt16(), 5) << "a value outside the limits counts as none";
}

TEST_F(SysvarsTest, AVariableThatIsSetToWhatItIsWritesNothing) {
    const auto section = Ref<IParam>::take(new_MemParam());
    service.keepIn(section);
    int stored = 0;
    EXPECT_EQ(set(L"SIZE", 5), kVarOk);
    EXPECT_EQ(readValue(section.get(), "SIZE", &stored), 0) << "the default is no value of the user's";
    EXPECT_EQ(set(L"SIZE", 8), kVarOk);
    EXPECT_EQ(readValue(section.get(), "SIZE", &stored), 1);
    EXPECT_EQ(set(L"SIZE", 5), kVarOk);
    EXPECT_EQ(readValue(section.get(), "SIZE", &stored), 1);
    EXPECT_EQ(stored, 5) << "back to the default is a change";
}

TEST_F(SysvarsTest, AnEmptyTextStaysEmpty) {
    const auto section = Ref<IParam>::take(new_MemParam());
    service.keepIn(section);
    EXPECT_EQ(setText(L"WORD", L""), kVarOk);
    EXPECT_EQ(get(L"WORD")->getString(), OdString(L""));
    service.keepIn(section);
    EXPECT_EQ(get(L"WORD")->getString(), OdString(L"")) << "after a restart";
}

} // namespace
