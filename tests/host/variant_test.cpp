// The tagged variant.
#include "host/variant.h"

#include "host/ref.h"
#include "sdk/rx/alloc.h"

#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>

namespace {

class Counted : public CKWUnknownImpl<IKWUnknown> {
public:
    explicit Counted(bool& goneFlag) : gone(goneFlag) {}
    ~Counted() override { gone = true; }

private:
    bool& gone;
};

TEST(VariantTest, TheTypeCodeIsTheFirstMemberAndHasSixteenBits) {
    EXPECT_EQ(offsetof(tagKWVARIANT, vt), 0u);
    EXPECT_EQ(sizeof(tagKWVARIANT::vt), 2u);
}

TEST(VariantTest, EachAssignmentSetsItsCode) {
    CKWVariant value;
    EXPECT_EQ(value.vt, 0);
    EXPECT_TRUE(isIntegerType((value = 1).vt));
    EXPECT_TRUE(isIntegerType((value = 1u).vt));
    EXPECT_TRUE(isIntegerType((value = static_cast<unsigned short>(1)).vt));
    EXPECT_EQ((value = 1.5).vt, 8);
    EXPECT_EQ((value = "a").vt, 10);
    EXPECT_EQ((value = CXString("a")).vt, 10);
    EXPECT_EQ((value = L"a").vt, 19);
    EXPECT_EQ((value = CXStringW(L"a")).vt, 19);
    EXPECT_EQ((value = tagSIZE{1, 2}).vt, 11);
    EXPECT_EQ((value = tagRSIZE{1, 2}).vt, 12);
    EXPECT_EQ((value = tagRPOINT{1, 2}).vt, 14);
    EXPECT_EQ((value = static_cast<IKWUnknown*>(nullptr)).vt, 18);
    EXPECT_EQ(CKWVariant(3, 5).vt, 5);
    EXPECT_EQ(CKWVariant(CXStringW(L"a")).vt, 19);
}

TEST(VariantTest, AWrongReadGivesNothing) {
    CKWVariant value;
    value = "12";
    EXPECT_EQ(int(value), 0);
    EXPECT_EQ(double(value), 0.0);
    EXPECT_EQ(static_cast<wchar_t*>(value), nullptr);
    EXPECT_EQ(static_cast<IKWUnknown*>(value), nullptr);
    EXPECT_EQ(static_cast<unsigned int>(value), 0u);
    EXPECT_EQ(tagSIZE(value).cx, 0);
    EXPECT_EQ(tagSIZE(value).cy, 0);
    EXPECT_EQ(tagRSIZE(value).cx, 0);
    EXPECT_EQ(tagRSIZE(value).cy, 0);
    EXPECT_EQ(tagRPOINT(value).x, 0);
    EXPECT_EQ(tagRPOINT(value).y, 0);
    value = 12;
    EXPECT_EQ(static_cast<char*>(value), nullptr);
    EXPECT_EQ(double(value), 0.0);
}

TEST(VariantTest, CopiesOwnTheirTexts) {
    CKWVariant first;
    first = L"text";
    const CKWVariant second(first);
    CKWVariant third;
    third = first;
    first.Clear();
    EXPECT_EQ(first.vt, 0);
    EXPECT_STREQ(static_cast<wchar_t*>(second), L"text");
    EXPECT_STREQ(static_cast<wchar_t*>(third), L"text");
}

TEST(VariantTest, AssigningItsOwnTextOrItselfKeepsTheValue) {
    CKWVariant value;
    value = "text";
    value = static_cast<char*>(value);
    EXPECT_STREQ(static_cast<char*>(value), "text");
    const CKWVariant& same = value;
    value = same;
    EXPECT_STREQ(static_cast<char*>(value), "text");
}

TEST(VariantTest, AnObjectIsHeldUntilTheLastVariantLetsGo) {
    bool gone = false;
    CKWVariant value;
    {
        const auto object = Ref<IKWUnknown>::share(new Counted(gone));
        value = object.get();
    }
    CKWVariant copy(value);
    value.Clear();
    EXPECT_FALSE(gone);
    copy = 5;
    EXPECT_TRUE(gone);
}

TEST(VariantTest, ItsTextsComeFromTheDrawingAllocator) {
    const std::uint64_t taken = odrxAllocCount(), given = odrxFreeCount();
    {
        CKWVariant narrow, wide;
        narrow = "abc";
        wide = L"abc";
        const CKWVariant copy(wide);
    }
    EXPECT_EQ(odrxAllocCount() - taken, 3u);
    EXPECT_EQ(odrxFreeCount() - given, 3u);
}

TEST(VariantTest, EachAssignmentLetsGoOfTheValueBefore) {
    const auto assignments = std::initializer_list<void (*)(CKWVariant&)>{
        [](CKWVariant& value) { value = 1; },
        [](CKWVariant& value) { value = 1u; },
        [](CKWVariant& value) { value = static_cast<unsigned short>(1); },
        [](CKWVariant& value) { value = 1.5; },
        [](CKWVariant& value) { value = "new"; },
        [](CKWVariant& value) { value = L"new"; },
        [](CKWVariant& value) { value = CXString("new"); },
        [](CKWVariant& value) { value = CXStringW(L"new"); },
        [](CKWVariant& value) {
            value = tagSIZE{1, 2};
        },
        [](CKWVariant& value) {
            value = tagRSIZE{1, 2};
        },
        [](CKWVariant& value) {
            value = tagRPOINT{1, 2};
        },
        [](CKWVariant& value) { value = static_cast<IKWUnknown*>(nullptr); },
        [](CKWVariant& value) { value = CKWVariant(); }};
    int number = 0;
    for (const auto assign : assignments) {
        bool gone = false;
        CKWVariant value;
        {
            const auto object = Ref<IKWUnknown>::share(new Counted(gone));
            value = object.get();
        }
        ASSERT_FALSE(gone);
        assign(value);
        EXPECT_TRUE(gone) << number;
        const std::uint64_t inUse = odrxAllocCount() - odrxFreeCount();
        {
            CKWVariant text;
            text = "old";
            assign(text);
        }
        EXPECT_EQ(odrxAllocCount() - odrxFreeCount(), inUse) << number++;
    }
}

// As a variant on the stack begins: with what was there before.
TEST(VariantTest, AVariantThatIsBuiltFreesNothing) {
    bool gone = false;
    const auto object = Ref<IKWUnknown>::share(new Counted(gone));
    CKWVariant former;
    former = object.get();
    alignas(CKWVariant) unsigned char place[sizeof(CKWVariant)];
    for (const auto build : std::initializer_list<CKWVariant* (*)(void*)>{
             [](void* memory) { return new (memory) CKWVariant; },
             [](void* memory) { return new (memory) CKWVariant(3, kVtInt); },
             [](void* memory) { return new (memory) CKWVariant(CXStringW(L"a")); },
             [](void* memory) { return new (memory) CKWVariant(tagKWVARIANT()); }}) {
        std::memcpy(place, static_cast<const void*>(&former), sizeof place);
        build(place)->~CKWVariant();
        EXPECT_EQ(object->AddRef(), 3u);
        object->Release();
    }
}

TEST(VariantTest, ClearingTwiceIsHarmless) {
    CKWVariant value;
    value = "text";
    value.Clear();
    value.Clear();
    EXPECT_EQ(value.vt, 0);
}

} // namespace
