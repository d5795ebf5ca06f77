// Single lines of text, and attributes, which are such lines too.
#include "sdk/db/text.h"

#include "sdk/dxf/codec.h"

#include <cmath>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbText, OdDbEntity)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbAttribute, OdDbText)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbAttributeDefinition, OdDbText)

namespace {

constexpr std::string_view kText = "AcDbText";
constexpr double kDegree = M_PI / 180;
constexpr double kLetterWidth = 0.7; // of the height

} // namespace

OdDbText::OdDbText() : OdDbText("TEXT") {
    content.setPoint(kText, 10, {});
    content.append(40, "2.5");
    content.append(1, "");
    content.append(100, kText); // the second part of a text has the same marker
}

OdString OdDbText::textString() const { return textValue(kText, 1); }
void OdDbText::setTextString(const OdString& text) { setTextValue(kText, 1, text); }
OdGePoint3d OdDbText::position() const { return content.point(kText, 10); }
void OdDbText::setPosition(const OdGePoint3d& point) { edit().setPoint(kText, 10, point); }

OdGePoint3d OdDbText::alignmentPoint() const {
    const bool leftOnBaseLine = horizontalMode() == 0 && verticalMode() == 0;
    const bool hasPoint = content.find(11) != DxfTagList::npos;
    return leftOnBaseLine || !hasPoint ? position() : content.point(content.own(), 11);
}

int OdDbText::horizontalMode() const { return static_cast<int>(content.integer(content.own(), 72)); }

int OdDbText::verticalMode() const {
    // Attributes keep it under 74, where 73 is the length of the field.
    const int code = isKindOf(OdDbAttribute::desc()) || isKindOf(OdDbAttributeDefinition::desc()) ? 74 : 73;
    return static_cast<int>(content.integer(content.own(), code));
}

double OdDbText::height() const { return content.real(kText, 40); }
void OdDbText::setHeight(double height) { edit().set(kText, 40, dxfText(height)); }
double OdDbText::rotation() const { return content.real(kText, 50) * kDegree; }
void OdDbText::setRotation(double angle) { edit().set(kText, 50, dxfText(angle / kDegree)); }
double OdDbText::widthFactor() const { return content.real(kText, 41, 1); }

OdString OdDbText::textStyle() const {
    const OdString name = textValue(kText, 7);
    return name.isEmpty() ? OdString(L"STANDARD") : name;
}

void OdDbText::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    const double width = kLetterWidth * height() * widthFactor() * textString().getLength();
    const OdGePoint3d base = alignmentPoint();
    const int horizontal = horizontalMode();
    const double left = horizontal == 2 ? -width : horizontal == 1 || horizontal == 4 ? -width / 2 : 0;
    const int vertical = horizontal == 4 ? 2 : verticalMode();
    const double bottom = vertical == 3 ? -height() : vertical == 2 ? -height() / 2 : 0;
    const OdGeMatrix3d place = toWorld * planeToWorld() * OdGeMatrix3d::translation(base.asVector()) *
                               OdGeMatrix3d::rotation(rotation(), OdGeVector3d::kZAxis);
    for (const double x : {left, left + width})
        for (const double y : {bottom, bottom + height()})
            extents.addPoint(place * OdGePoint3d(x, y, 0));
}

OdDbMTextPtr OdDbText::paragraphWithin() const {
    const DxfTagList::Range range = content.embedded();
    if (range.begin == range.end)
        return {};
    OdDbMTextPtr paragraph(new OdDbMText);
    paragraph->setLayer(layer());
    DxfTagList& tags = paragraph->edit();
    tags.erase(tags.subclass("AcDbMText").begin, tags.size() - tags.subclass("AcDbMText").begin);
    const DxfCodec unicode;
    for (std::size_t i = range.begin; i < range.end; ++i)
        tags.append(content[i].code, unicode.encode(codec().decode(content[i].value())));
    return paragraph;
}

OdString OdDbAttribute::tag() const { return textValue("AcDbAttribute", 2); }

bool OdDbAttribute::isInvisible() const { return content.integer("AcDbAttribute", 70) & 1; }

OdString OdDbAttributeDefinition::tag() const { return textValue("AcDbAttributeDefinition", 2); }
OdString OdDbAttributeDefinition::prompt() const { return textValue("AcDbAttributeDefinition", 3); }
bool OdDbAttributeDefinition::isConstant() const {
    return (content.integer("AcDbAttributeDefinition", 70) & 2) != 0;
}
bool OdDbAttributeDefinition::isInvisible() const {
    return (content.integer("AcDbAttributeDefinition", 70) & 1) != 0;
}
