// The object model that everything of the SDK stands on: counted pointers, classes, extensions and casts.
#include "sdk/rx/rx_object.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

class Shape : public OdRxObject {
    ODRX_DECLARE_CLASS(Shape)
};
ODRX_DEFINE_CLASS(Shape, OdRxObject)

class Disc : public Shape {
    ODRX_DECLARE_CLASS(Disc)
public:
    ~Disc() override { ++gone; }
    static int gone;
};
int Disc::gone = 0;
ODRX_DEFINE_CLASS_WITH_MAKER(Disc, Shape)

class Extension : public OdRxObject {
    ODRX_DECLARE_CLASS(Extension)
};
ODRX_DEFINE_CLASS(Extension, OdRxObject)

// Takes the extensions of the two classes away again.
struct Extensions : testing::Test {
    void TearDown() override {
        Shape::desc()->delX(Extension::desc());
        Disc::desc()->delX(Extension::desc());
    }
    OdSmartPtr<Extension> one{new Extension}, other{new Extension};
};

} // namespace

TEST(SmartPointers, UseOfANullPointerThrows) {
    const OdSmartPtr<Disc> none;
    for (const auto& use : {std::function<void()>([&] { none->numRefs(); }), {[&] { (*none).isA(); }}}) {
        try {
            use();
            ADD_FAILURE() << "a null pointer was used";
        } catch (const OdError& error) {
            EXPECT_EQ(error.code(), eNullObjectPointer);
            EXPECT_FALSE(error.description().isEmpty());
        }
    }
}

TEST(SmartPointers, RawPointerIsCountedAndAnAttachedOneTakenOver) {
    Disc::gone = 0;
    auto* const raw = new Disc;
    OdSmartPtr<Disc> first(raw);
    EXPECT_EQ(raw->numRefs(), 1);
    OdSmartPtr<Shape> second(first);
    EXPECT_EQ(raw->numRefs(), 2);
    OdSmartPtr<Disc> third(first.detach(), kOdRxObjAttach);
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(raw->numRefs(), 2);
    second.release();
    third = third.get();
    EXPECT_EQ(raw->numRefs(), 1);
    EXPECT_EQ(Disc::gone, 0);
    third = nullptr;
    EXPECT_EQ(Disc::gone, 1);
}

TEST(Classes, KnowTheirNamesAndParents) {
    EXPECT_EQ(Disc::desc()->name(), OdString(L"Disc"));
    EXPECT_EQ(Disc::desc()->myParent(), Shape::desc());
    EXPECT_TRUE(Disc::desc()->isDerivedFrom(OdRxObject::desc()));
    EXPECT_FALSE(Shape::desc()->isDerivedFrom(Disc::desc()));
    EXPECT_EQ(OdSmartPtr<Shape>(new Disc)->isA(), Disc::desc());
}

TEST(Classes, MakeObjectsUnlessTheyAreAbstract) {
    EXPECT_EQ(Disc::desc()->create()->isA(), Disc::desc());
    EXPECT_TRUE(Shape::desc()->create().isNull());
}

TEST(Casts, KeepNullAndThrowBothClassesForAWrongOne) {
    EXPECT_TRUE(odrxCast<Disc>(OdSmartPtr<Shape>()).isNull());
    const OdSmartPtr<Shape> shape(new Shape);
    EXPECT_TRUE(odrxQuery<Disc>(shape.get()).isNull());
    EXPECT_EQ(odrxCast<OdRxObject>(shape).get(), shape.get());
    try {
        odrxCast<Disc>(shape);
        ADD_FAILURE() << "a shape was taken for a disc";
    } catch (const OdError_NotThatKindOfClass& error) {
        EXPECT_EQ(error.fromClass(), Shape::desc());
        EXPECT_EQ(error.toClass(), Disc::desc());
    }
}

TEST_F(Extensions, AreFoundOnTheClassAndItsParents) {
    EXPECT_TRUE(Disc::desc()->getX(Extension::desc()).isNull());
    Shape::desc()->addX(Extension::desc(), one.get());
    EXPECT_EQ(Disc::desc()->getX(Extension::desc()).get(), one.get());
    Disc::desc()->addX(Extension::desc(), other.get());
    EXPECT_EQ(Disc::desc()->getX(Extension::desc()).get(), other.get());
    EXPECT_EQ(Shape::desc()->getX(Extension::desc()).get(), one.get());
    EXPECT_TRUE(OdRxObject::desc()->getX(Extension::desc()).isNull());
}

TEST_F(Extensions, AreReplacedAndRemovedByTheirKey) {
    EXPECT_TRUE(Shape::desc()->addX(Extension::desc(), one.get()).isNull());
    EXPECT_EQ(Shape::desc()->addX(Extension::desc(), other.get()).get(), one.get());
    EXPECT_EQ(Shape::desc()->delX(Extension::desc()).get(), other.get());
    EXPECT_TRUE(Shape::desc()->delX(Extension::desc()).isNull());
    EXPECT_TRUE(Shape::desc()->getX(Extension::desc()).isNull());
}

TEST_F(Extensions, AnswerForTheObjectsOfTheirClass) {
    Shape::desc()->addX(Extension::desc(), one.get());
    const OdSmartPtr<Shape> disc(new Disc);
    EXPECT_EQ(odrxQuery<Extension>(disc.get()).get(), one.get());
    EXPECT_EQ(one->numRefs(), 2); // this test's and the class's
    EXPECT_EQ(odrxQuery<Disc>(disc.get()).get(), disc.get());
}
