// Texts: single lines, attributes of block references, and paragraphs.
#pragma once

#include "sdk/db/entity.h"

class OdDbMText;

class OdDbText : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbText)
public:
    OdDbText();
    OdString textString() const;
    void setTextString(const OdString& text);
    OdGePoint3d position() const; // left end of the base line, in the coordinates of the text's plane
    void setPosition(const OdGePoint3d& point);
    // Where the text hangs when it isn't aligned left on the base line.
    OdGePoint3d alignmentPoint() const;
    int horizontalMode() const; // 0 left, 1 centre, 2 right, 3 aligned, 4 middle, 5 fit
    int verticalMode() const;   // 0 base line, 1 bottom, 2 middle, 3 top
    double height() const;
    void setHeight(double height);
    double rotation() const; // radians
    void setRotation(double angle);
    double widthFactor() const;
    OdString textStyle() const;
    // The box is an estimate: a drawing does not say how wide its letters are.
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;

protected:
    OdSmartPtr<OdDbMText> paragraphWithin() const;
    explicit OdDbText(std::string_view name) { startEntity(name, "AcDbText"); }
};
using OdDbTextPtr = OdSmartPtr<OdDbText>;

// A text that belongs to a block reference.
class OdDbAttribute : public OdDbText {
    ODRX_DECLARE_CLASS(OdDbAttribute)
public:
    OdDbAttribute() : OdDbText("ATTRIB") {}
    OdString tag() const;
    bool isInvisible() const;
    // The lines of an attribute that has more than one, as a paragraph in no drawing; null for a plain one.
    OdSmartPtr<OdDbMText> paragraph() const { return paragraphWithin(); }
};
using OdDbAttributePtr = OdSmartPtr<OdDbAttribute>;

class OdDbAttributeDefinition : public OdDbText {
    ODRX_DECLARE_CLASS(OdDbAttributeDefinition)
public:
    OdDbAttributeDefinition() : OdDbText("ATTDEF") {}
    OdString tag() const;
    OdString prompt() const;
    OdSmartPtr<OdDbMText> paragraph() const { return paragraphWithin(); } // as of an attribute
    bool isConstant() const; // a text of its block that references do not repeat
    bool isInvisible() const;
};

class OdDbMText : public OdDbEntity {
    ODRX_DECLARE_CLASS(OdDbMText)
public:
    OdDbMText();
    OdString contents() const; // with its format codes
    void setContents(const OdString& text);
    OdString plainText() const; // without them, lines parted by line feeds
    OdGePoint3d location() const;
    void setLocation(const OdGePoint3d& point);
    double textHeight() const;
    double width() const; // of the paragraph; 0 when it is not limited
    double rotation() const;
    struct Columns {
        int count = 1;
        double width = 0, gutter = 0;
        double height = 0;           // of each where `heights` is empty
        std::vector<double> heights; // of each column
    };
    // How the paragraph flows: one column of no width unless the drawing says otherwise.
    Columns columns() const;
    int attachment() const; // 1 top left to 9 bottom right, by rows
    void addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const override;
};
using OdDbMTextPtr = OdSmartPtr<OdDbMText>;
