// The typed reads and writes of options, without a dialog.
#include "options/store/option_values.h"

#include "options/store/option_store.h"
#include "tests/options/option_tree_writer.h"
#include "tests/support/fixture_host.h"
#include "tests/support/test_application.h"

#include <gtest/gtest.h>

namespace {

class OptionValues : public testing::Test {
protected:
    OptionTreeWriter inProfile() {
        option.profile("Section", "Key");
        return option;
    }
    OptionTreeWriter inVariable() {
        option.variable("VAR");
        return option;
    }
    IParam* node() { return option.get(); }
    template <class Value> void store(const Value& value) {
        CKWVariant variant;
        variant = value;
        Ref<IParam>::take(host.profile().openSection("Section", 1))->setValue("Key", &variant);
    }
    CKWVariant stored() {
        CKWVariant value;
        if (const Ref<IParam> section = openChild(&host.profile(), "Section"))
            section->getValue("Key", &value);
        return value;
    }
    OdResBufPtr written() { return host.vars.value("VAR"); }
    int readInt(int untouched = -77) {
        int value = untouched;
        readIntOption(node(), nullptr, &value);
        return value;
    }

    FixtureHost host;
    OptionTreeWriter option{Ref<IParam>::take(new_MemParam())};
};

TEST_F(OptionValues, IntIsReadFromTheProfile) {
    inProfile();
    store(42);
    int value = 0;
    EXPECT_EQ(readIntOption(node(), nullptr, &value), 1);
    EXPECT_EQ(value, 42);
}

TEST_F(OptionValues, AMissingProfileValueIsNotReadAndItsSectionIsNotMade) {
    inProfile();
    int value = 5;
    EXPECT_EQ(readIntOption(node(), nullptr, &value), 0);
    EXPECT_EQ(value, 5);
    EXPECT_FALSE(openChild(&host.profile(), "Section"));
}

TEST_F(OptionValues, ATextInTheProfileIsNoInt) {
    inProfile();
    store(CXString("42"));
    EXPECT_EQ(readInt(), -77);
}

TEST_F(OptionValues, ADoubleStoredAsIntegerIsNotRead) {
    inProfile();
    store(3);
    double value = 1.5;
    EXPECT_EQ(readDoubleOption(node(), nullptr, &value), 0);
    EXPECT_EQ(value, 1.5);
    store(3.25);
    EXPECT_EQ(readDoubleOption(node(), nullptr, &value), 1);
    EXPECT_EQ(value, 3.25);
}

TEST_F(OptionValues, TextOfEitherWidthIsReadAsWideText) {
    inProfile();
    CXStringW value;
    store(CXString("narrow"));
    EXPECT_EQ(readStringOption(node(), nullptr, &value), 1);
    EXPECT_STREQ(value.c_str(), L"narrow");
    store(CXStringW(L"wide \u00e9"));
    EXPECT_EQ(readStringOption(node(), nullptr, &value), 1);
    EXPECT_STREQ(value.c_str(), L"wide \u00e9");
}

TEST_F(OptionValues, AColorInTheProfileKeepsItsHighByte) {
    inProfile();
    store(0xFF102030u);
    unsigned int value = 0;
    EXPECT_EQ(readColorOption(node(), nullptr, &value), 1);
    EXPECT_EQ(value, 0xFF102030u);
}

TEST_F(OptionValues, ASaveFormatNumberIsCopiedFromTheProfileAsItStands) {
    inProfile();
    store(CXString("three"));
    CKWVariant value;
    EXPECT_EQ(readSaveFormatOption(node(), nullptr, &value), 1);
    EXPECT_EQ(value.vt, kVtString);
}

TEST_F(OptionValues, IntOfABooleanVariableIsItsTruth) {
    inVariable();
    host.vars.set("VAR", true);
    EXPECT_EQ(readInt(), 1);
    host.vars.set("VAR", false);
    EXPECT_EQ(readInt(), 0);
    host.vars["VAR"]->setInt32(8); // a boolean buffer answers as one, whatever it holds
    EXPECT_EQ(readInt(), 1);
}

TEST_F(OptionValues, IntOfAnyOtherVariableIsItsNumber) {
    inVariable();
    host.vars.set("VAR", -9);
    EXPECT_EQ(readInt(), -9);
    host.vars.set("VAR", 100000, OdResBuf::kRtInt32);
    EXPECT_EQ(readInt(), 100000);
}

TEST_F(OptionValues, RealTextAndColorOfAVariable) {
    inVariable();
    host.vars.set("VAR", 2.5);
    double real = 0;
    EXPECT_EQ(readDoubleOption(node(), nullptr, &real), 1);
    EXPECT_EQ(real, 2.5);
    host.vars.set("VAR", L"Standard");
    CXStringW text;
    EXPECT_EQ(readStringOption(node(), nullptr, &text), 1);
    EXPECT_STREQ(text.c_str(), L"Standard");
    host.vars.set("VAR", 0x332211, OdResBuf::kRtInt32);
    unsigned int color = 0;
    EXPECT_EQ(readColorOption(node(), nullptr, &color), 1);
    EXPECT_EQ(color, 0x332211u);
}

TEST_F(OptionValues, ARealVariableTakesAWholeNumberToo) {
    inVariable();
    host.vars.set("VAR", 7);
    double real = 0;
    EXPECT_EQ(readDoubleOption(node(), nullptr, &real), 1);
    EXPECT_EQ(real, 7.0);
}

TEST_F(OptionValues, AVariableGivesNoSaveFormatNumberButCountsAsRead) {
    inVariable();
    host.vars.set("VAR", 3);
    CKWVariant value;
    EXPECT_EQ(readSaveFormatOption(node(), nullptr, &value), 1);
    EXPECT_EQ(value.vt, kVtEmpty);
}

TEST_F(OptionValues, AVariableThatCannotBeReadIsNotRead) {
    inVariable();
    EXPECT_EQ(readInt(), -77);
    EXPECT_EQ(host.vars.reads.size(), 1u);
}

TEST_F(OptionValues, AReadPassesAContextAndAWriteNone) {
    inVariable();
    host.vars.set("VAR", 1);
    const int before = TestApplication::self()->testServices.contextsMade;
    readInt();
    EXPECT_EQ(TestApplication::self()->testServices.contextsMade, before + 1);
    writeIntOption(node(), nullptr, 2);
    ASSERT_EQ(host.vars.reads.size(), 2u);
    EXPECT_TRUE(host.vars.reads[0].withContext);
    EXPECT_FALSE(host.vars.reads[1].withContext);
    ASSERT_EQ(host.vars.writes.size(), 1u);
    EXPECT_FALSE(host.vars.writes[0].withContext);
    EXPECT_EQ(TestApplication::self()->testServices.contextsMade, before + 1);
}

TEST_F(OptionValues, AnotherStoreIsNeitherReadNorWritten) {
    inProfile().set("IFace", "IElsewhere");
    store(4);
    EXPECT_EQ(readInt(), -77);
    writeIntOption(node(), nullptr, 9);
    EXPECT_EQ(int(stored()), 4);
}

TEST_F(OptionValues, AStoreIsKnownByItsExactName) {
    inProfile();
    store(4);
    host.vars.set("Key", 5);
    const std::pair<const char*, int> stores[] = {
        {"IProfile", 4}, {"iprofile", -77}, {"IPROFILE", -77}, {"SysVar", 5}, {"sysvar", -77}};
    for (const auto& [name, value] : stores) {
        option.set("IFace", name);
        EXPECT_EQ(readInt(), value) << name;
    }
}

// Keeps the buffers that it has handed out and taken.
class BufferWatch : public FixtureVars {
public:
    int getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int reserved) override {
        EXPECT_EQ(reserved, 0);
        const int status = FixtureVars::getVar(name, out, context, reserved);
        given = *out;
        return status;
    }
    int setVar(const OdString& name, OdResBuf* value, OdRxObject* context, int reserved) override {
        EXPECT_EQ(reserved, 0);
        taken.push_back(value == given.get());
        return FixtureVars::setVar(name, value, context, reserved);
    }
    OdResBufPtr given;
    std::vector<bool> taken;
};

TEST_F(OptionValues, AWriteGivesBackTheBufferThatItHasRead) {
    inVariable();
    BufferWatch watch;
    watch.set("VAR", 1);
    host.documents.vars = &watch;
    writeIntOption(node(), nullptr, 2);
    writeDoubleOption(node(), nullptr, 2);
    writeStringOption(node(), nullptr, CXStringW(L"2"));
    writeColorOption(node(), nullptr, 2);
    EXPECT_EQ(watch.taken, std::vector<bool>(4, true));
    host.documents.vars = &host.vars;
}

TEST_F(OptionValues, WithoutAProfileNothingIsReadOrWritten) {
    inProfile();
    store(4);
    host.withhold(typeid(IProfile));
    EXPECT_EQ(readInt(), -77);
    writeIntOption(node(), nullptr, 9);
    EXPECT_EQ(int(stored()), 4);
}

TEST_F(OptionValues, WithoutAnApplicationNothingIsReadOrWritten) {
    inProfile();
    store(4);
    host.withholdApplication();
    EXPECT_EQ(readInt(), -77);
    writeStringOption(node(), nullptr, CXStringW(L"x"));
    EXPECT_EQ(int(stored()), 4);
}

TEST_F(OptionValues, WithoutNodesNothingHappens) {
    int value = 3;
    EXPECT_EQ(readIntOption(nullptr, nullptr, &value), 0);
    EXPECT_EQ(value, 3);
    writeIntOption(nullptr, nullptr, 1);
    EXPECT_TRUE(childNames(&host.profile()).empty());
    EXPECT_TRUE(host.vars.reads.empty());
}

TEST_F(OptionValues, APlaceOfTheParentServesTheChild) {
    option.profile("Section", "Key");
    const OptionTreeWriter child{Ref<IParam>::take(new_MemParam())};
    writeIntOption(child.get(), node(), 12);
    EXPECT_EQ(int(stored()), 12);
    int value = 0;
    EXPECT_EQ(readIntOption(child.get(), node(), &value), 1);
    EXPECT_EQ(value, 12);
}

TEST_F(OptionValues, EachWriteIntoTheProfileHasItsTypeCode) {
    inProfile();
    writeIntOption(node(), nullptr, -3);
    EXPECT_EQ(stored().vt, kVtInt);
    EXPECT_EQ(int(stored()), -3);
    writeDoubleOption(node(), nullptr, 2.0);
    EXPECT_EQ(stored().vt, kVtDouble);
    EXPECT_EQ(double(stored()), 2.0);
    writeTextOption(node(), nullptr, CXString("text"));
    EXPECT_EQ(stored().vt, kVtString);
    EXPECT_STREQ(stored(), "text");
    writeStringOption(node(), nullptr, CXStringW(L"wide"));
    EXPECT_EQ(stored().vt, kVtWideString);
    EXPECT_STREQ(static_cast<wchar_t*>(stored()), L"wide");
    writeColorOption(node(), nullptr, 0xFF0000AAu);
    EXPECT_EQ(stored().vt, kVtUInt);
    EXPECT_EQ(static_cast<unsigned int>(stored()), 0xFF0000AAu);
    writePaletteOption(node(), nullptr, 255);
    EXPECT_EQ(stored().vt, kVtUInt16);
    EXPECT_EQ(int(stored()), 255);
    writeSaveFormatOption(node(), nullptr, 4);
    EXPECT_EQ(stored().vt, kVtInt);
    EXPECT_EQ(int(stored()), 4);
}

TEST_F(OptionValues, AnIntIsSetByTheClassOfTheVariable) {
    inVariable();
    host.vars.set("VAR", false);
    writeIntOption(node(), nullptr, 6);
    EXPECT_EQ(written()->getInt32(), 1); // a boolean
    host.vars.set("VAR", 0, OdResBuf::kDxfInt8);
    writeIntOption(node(), nullptr, 300);
    EXPECT_EQ(written()->getInt32(), 300); // class 4 takes 16 bits
    host.vars.set("VAR", 0, OdResBuf::kRtInt16);
    writeIntOption(node(), nullptr, 0x1FFFE);
    EXPECT_EQ(written()->getInt32(), -2); // the low 16 bits, sign-extended
    host.vars.set("VAR", 0, OdResBuf::kRtInt32);
    writeIntOption(node(), nullptr, 0x1FFFE);
    EXPECT_EQ(written()->getInt32(), 0x1FFFE);
}

TEST_F(OptionValues, AVariableOfAnotherClassIsWrittenBackUnchangedByAnInt) {
    inVariable();
    host.vars.set("VAR", 2.5);
    writeIntOption(node(), nullptr, 6);
    ASSERT_EQ(host.vars.writes.size(), 1u);
    EXPECT_EQ(written()->getDouble(), 2.5);
}

TEST_F(OptionValues, APaletteIndexIsSetAsAnInt) {
    inVariable();
    host.vars.set("VAR", 1);
    writePaletteOption(node(), nullptr, 200);
    EXPECT_EQ(written()->getInt32(), 200);
}

TEST_F(OptionValues, RealTextAndColorReachTheVariable) {
    inVariable();
    host.vars.set("VAR", 1.0);
    writeDoubleOption(node(), nullptr, 0.125);
    EXPECT_EQ(written()->getDouble(), 0.125);
    host.vars.set("VAR", L"old");
    writeTextOption(node(), nullptr, CXString("new"));
    EXPECT_EQ(written()->getString(), OdString(L"new"));
    host.vars.set("VAR", 0, OdResBuf::kRtInt32);
    writeColorOption(node(), nullptr, 0xFF000001u);
    EXPECT_EQ(static_cast<unsigned int>(written()->getInt32()), 0xFF000001u);
}

TEST_F(OptionValues, WideTextSetsAVariableToItsOldValue) {
    inVariable();
    host.vars.set("VAR", L"old");
    writeStringOption(node(), nullptr, CXStringW(L"new"));
    ASSERT_EQ(host.vars.writes.size(), 1u);
    EXPECT_EQ(host.vars.writes[0].value->getString(), OdString(L"old"));
}

TEST_F(OptionValues, ASaveFormatNumberSetsAVariableToItsOldValue) {
    inVariable();
    host.vars.set("VAR", 2);
    writeSaveFormatOption(node(), nullptr, 7);
    ASSERT_EQ(host.vars.writes.size(), 1u);
    EXPECT_EQ(host.vars.writes[0].value->getInt32(), 2);
}

TEST_F(OptionValues, AVariableThatCannotBeReadIsNotWritten) {
    inVariable();
    writeIntOption(node(), nullptr, 7);
    writeDoubleOption(node(), nullptr, 7);
    writeStringOption(node(), nullptr, CXStringW(L"7"));
    EXPECT_EQ(host.vars.reads.size(), 3u);
    EXPECT_TRUE(host.vars.writes.empty());
}

TEST_F(OptionValues, TheReferencesAreGivenBackWhenAServiceThrows) {
    inProfile();
    store(1);
    auto& rules = host.rules(host.profile());
    rules.mayChange = [](auto&&...) -> bool { throw std::runtime_error("disk"); };
    const std::int64_t before = (host.profile().AddRef(), host.profile().Release());
    EXPECT_THROW(writeIntOption(node(), nullptr, 2), std::runtime_error);
    EXPECT_EQ((host.profile().AddRef(), host.profile().Release()), before);
}

} // namespace
