// The typed reads: what each accepts, and what becomes of the target otherwise.
#include "host/typed_reads.h"

#include "standin/params/mem_param.h"

#include <gtest/gtest.h>

namespace {

class TypedReadsTest : public testing::Test {
protected:
    Ref<IParam> node = Ref<IParam>::take(new_MemParam());
    template <class T> void set(const T& value) { EXPECT_EQ(writeValue(node.get(), "V", value), 1); }
    void setCode(unsigned short code) {
        const CKWVariant variant(7, code);
        node->setValue("V", &variant);
    }
    template <class T> bool reads(T* target) {
        const int read = readValue(node.get(), "V", target);
        EXPECT_TRUE(read == 0 || read == 1) << read;
        return read != 0;
    }
};

TEST_F(TypedReadsTest, IntegersOfEveryWidthAreReadAsIntAndUnsigned) {
    for (unsigned short code = 1; code <= 7; ++code) {
        setCode(code);
        int number = 0;
        unsigned int count = 0;
        EXPECT_TRUE(reads(&number)) << code;
        EXPECT_TRUE(reads(&count)) << code;
        EXPECT_EQ(number, 7);
        EXPECT_EQ(count, 7u);
    }
}

TEST_F(TypedReadsTest, AColourWithAHighByteKeepsItsBits) {
    set(0xFF102030u);
    int number = 0;
    unsigned int colour = 0;
    EXPECT_TRUE(reads(&number));
    EXPECT_TRUE(reads(&colour));
    EXPECT_EQ(colour, 0xFF102030u);
    EXPECT_EQ(static_cast<unsigned int>(number), 0xFF102030u);
}

TEST_F(TypedReadsTest, ADoubleIsOnlyReadFromADouble) {
    double target = 0.25;
    set(3);
    EXPECT_FALSE(reads(&target));
    set("3.0");
    EXPECT_FALSE(reads(&target));
    EXPECT_EQ(target, 0.25);
    set(3.0);
    EXPECT_TRUE(reads(&target));
    EXPECT_EQ(target, 3.0);
}

TEST_F(TypedReadsTest, AnIntegerIsNotReadFromARealOrText) {
    int target = 9;
    set(3.0);
    EXPECT_FALSE(reads(&target));
    set("3");
    EXPECT_FALSE(reads(&target));
    EXPECT_EQ(target, 9);
}

TEST_F(TypedReadsTest, EightBitTextIsNotReadFromWideText) {
    CXString target("before");
    set(L"wide");
    EXPECT_FALSE(reads(&target));
    EXPECT_STREQ(target, "before");
    set("");
    EXPECT_TRUE(reads(&target)) << "empty text is text";
    EXPECT_STREQ(target, "");
}

TEST_F(TypedReadsTest, WideTextIsReadFromBothWidths) {
    CXStringW target;
    set(L"wide");
    EXPECT_TRUE(reads(&target));
    EXPECT_STREQ(target, L"wide");
    set("narrow");
    EXPECT_TRUE(reads(&target));
    EXPECT_STREQ(target, L"narrow");
}

TEST_F(TypedReadsTest, EmptyWideTextReplacesTheTargetAndIsNoSuccess) {
    CXStringW target(L"before");
    set(L"");
    EXPECT_FALSE(reads(&target));
    EXPECT_STREQ(target, L"");
}

TEST_F(TypedReadsTest, AnyOtherCodeGivesEmptyWideText) {
    for (const unsigned short code : {1, 8, 11, 12, 14}) {
        CXStringW target(L"before");
        setCode(code);
        EXPECT_FALSE(reads(&target)) << code;
        EXPECT_STREQ(target, L"") << code;
    }
}

TEST_F(TypedReadsTest, AMissingOrEmptyValueLeavesTheWideTargetAlone) {
    CXStringW target(L"before");
    EXPECT_FALSE(reads(&target));
    EXPECT_STREQ(target, L"before");
    setCode(0);
    EXPECT_FALSE(reads(&target));
    EXPECT_STREQ(target, L"before");
}

// A store that has put an object into the variant before it found that it can't answer.
class FailingStore : public standin::ParamOf<IParam> {
public:
    using ParamOf::ParamOf;
    int getValue(const char*, tagKWVARIANT* out) override {
        *static_cast<CKWVariant*>(out) = given.get();
        return 0;
    }
    Ref<IParam> given = Ref<IParam>::take(new_MemParam());
};

TEST_F(TypedReadsTest, AFailedReadLeavesNothingOfItsVariantBehind) {
    FailingStore store;
    int number = 4;
    CXStringW text(L"before");
    EXPECT_EQ(readValue(&store, "V", &number), 0);
    EXPECT_EQ(readValue(&store, "V", &text), 0);
    EXPECT_EQ(number, 4);
    EXPECT_STREQ(text, L"before");
    EXPECT_EQ(store.given->AddRef(), 2) << "the references that the variants held were given back";
    store.given->Release();
}

TEST_F(TypedReadsTest, RecordsAreReadFromTheirOwnCodeOnly) {
    tagSIZE size{-1, -1};
    tagRSIZE rsize{-1, -1};
    tagRPOINT point{-1, -1};
    set(tagRSIZE{1, 2});
    EXPECT_FALSE(reads(&size));
    EXPECT_FALSE(reads(&point));
    EXPECT_TRUE(reads(&rsize));
    EXPECT_EQ(rsize.cy, 2);
    set(tagSIZE{3, 4});
    EXPECT_TRUE(reads(&size));
    EXPECT_FALSE(reads(&rsize));
    set(tagRPOINT{5, 6});
    EXPECT_TRUE(reads(&point));
    EXPECT_EQ(point.y, 6);
    EXPECT_EQ(size.cy, 4);
}

TEST_F(TypedReadsTest, ChildrenAreNamedEachOnceInTheirOrder) {
    EXPECT_TRUE(childNames(node.get()).empty());
    for (const char* name : {"Third", "First", "Second"})
        openChild(node.get(), name, 1);
    EXPECT_EQ(childNames(node.get()), (std::vector<std::string>{"Third", "First", "Second"}));
    EXPECT_TRUE(openChild(node.get(), "First"));
    EXPECT_FALSE(openChild(node.get(), "Fourth"));
    EXPECT_EQ(childNames(node.get()).size(), 3u) << "looking for a child makes none";
}

TEST_F(TypedReadsTest, ANullNodeReadsAsNothing) {
    int number = 4;
    CXStringW text(L"before");
    EXPECT_EQ(readValue(nullptr, "V", &number), 0);
    EXPECT_EQ(readValue(nullptr, "V", &text), 0);
    EXPECT_EQ(number, 4);
    EXPECT_STREQ(text, L"before");
    EXPECT_TRUE(childNames(nullptr).empty());
    EXPECT_FALSE(openChild(nullptr, "Child"));
    EXPECT_EQ(writeValue(nullptr, "V", 1), 0);
}

TEST_F(TypedReadsTest, AWriteSetsTheTypeCodeOfItsValue) {
    const auto codeOf = [this](const auto& value) {
        set(value);
        CKWVariant stored;
        node->getValue("V", &stored);
        return int(stored.vt);
    };
    EXPECT_EQ(codeOf(7), kVtInt);
    EXPECT_EQ(codeOf(7u), kVtUInt);
    EXPECT_EQ(codeOf(static_cast<unsigned short>(7)), kVtUInt16);
    EXPECT_EQ(codeOf(7.0), kVtDouble);
    EXPECT_EQ(codeOf(CXString("seven")), kVtString);
    EXPECT_EQ(codeOf(CXStringW(L"seven")), kVtWideString);
    EXPECT_EQ(codeOf(tagSIZE{7, 7}), kVtSize);
    EXPECT_EQ(codeOf(CKWVariant(7, kVtInt8)), kVtInt8);
}

} // namespace
