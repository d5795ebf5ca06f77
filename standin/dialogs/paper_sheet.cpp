// Reading and writing of one paper section.
#include "standin/dialogs/paper_sheet.h"

#include "host/app.h"
#include "host/text.h"
#include "host/typed_reads.h"

namespace standin {

namespace {

CXStringW nameOf(IParam* section) {
    CXStringW name;
    if (!readValue(section, "Name", &name))
        name = L"<<Unnamed paper>>";
    return name;
}

CXString unitsOf(IParam* section) {
    CXString units("mm");
    readValue(section, "Units", &units);
    return units;
}

} // namespace

bool PaperSheet::sameShape(const PaperSheet& other) const {
    return units == other.units && width == other.width && height == other.height && left == other.left &&
           right == other.right && top == other.top && bottom == other.bottom;
}

PaperSheet readPaper(IParam* section) {
    tagRSIZE size{0, 0};
    readValue(section, "Size", &size);
    tagRSIZE printable = size;
    readValue(section, "PortraitSize", &printable);
    tagRPOINT origin{(size.cx - printable.cx) * 0.5, (size.cy - printable.cy) * 0.5};
    readValue(section, "PaperOriginPoint", &origin);
    int used = 1;
    readValue(section, "Used", &used);

    PaperSheet sheet;
    sheet.name = hostqt::qString(nameOf(section));
    sheet.units = QString::fromLocal8Bit(unitsOf(section).c_str());
    sheet.width = size.cx;
    sheet.height = size.cy;
    sheet.left = origin.x;
    sheet.bottom = origin.y;
    sheet.right = size.cx - printable.cx - origin.x;
    sheet.top = size.cy - printable.cy - origin.y;
    sheet.used = used != 0;
    return sheet;
}

void writePaper(IParam* section, const PaperSheet& sheet) {
    const bool reshaped = !sheet.sameShape(readPaper(section));
    writeValue(section, "Used", sheet.used ? 1 : 0);
    writeValue(section, "Name", hostqt::cxStringW(sheet.name));
    if (!reshaped)
        return;
    const tagRSIZE printable{sheet.width - sheet.left - sheet.right, sheet.height - sheet.top - sheet.bottom};
    writeValue(section, "Size", tagRSIZE{sheet.width, sheet.height});
    writeValue(section, "Units", sheet.units.toLocal8Bit().constData());
    writeValue(section, "PortraitSize", printable);
    writeValue(section, "LandscapeSize", tagRSIZE{printable.cy, printable.cx});
    writeValue(section, "PaperOriginPoint", tagRPOINT{sheet.left, sheet.bottom});
}

QString paperRowText(IParam* section) {
    tagRSIZE size{0, 0};
    readValue(section, "Size", &size);
    const CXStringW name = nameOf(section);
    const CXStringW units(Supp_Translate(unitsOf(section).c_str()));
    CXStringW text;
    text.Format(L"%s (%.2f x %.2f %s)", name.c_str(), size.cx, size.cy, units.c_str());
    return hostqt::qString(text);
}

double millimetresIn(const QString& units) {
    if (units == QStringLiteral("mm"))
        return 1;
    return units == QStringLiteral("in") ? 25.4 : 0;
}

} // namespace standin
