// Reads a paper from its section, fills in what the section leaves out, and writes it back.
#include "options/pages/papers/paper_format.h"

#include "host/app.h"
#include "host/text.h"
#include "host/typed_reads.h"

void PaperFormat::readFrom(const Ref<IParam>& copy) {
    params = copy;
    readValues();
    fillDefaults();
}

void PaperFormat::readValues() {
    const auto read = [this](const char* valueName, auto* field, unsigned flag) {
        if (readValue(params.get(), valueName, field))
            presentFlags |= flag;
    };
    read("Used", &used, kPaperUsed);
    read("Name", &name, kPaperName);
    read("Size", &size, kPaperSize);
    read("Units", &units, kPaperUnits);
    read("InternalFrame", &internalFrame, kPaperInternalFrame);
    read("PortraitSize", &portraitSize, kPaperPortraitSize);
    read("LandscapeSize", &landscapeSize, kPaperLandscapeSize);
    read("PaperOriginPoint", &paperOriginPoint, kPaperOriginPoint);
}

bool PaperFormat::takeUp(unsigned flag) {
    const bool missing = !(presentFlags & flag);
    presentFlags |= flag;
    return missing;
}

// The order counts: the later defaults read the earlier fields. Meant: an origin of the store stays, also
// where it no longer fits.
void PaperFormat::fillDefaults() {
    if (takeUp(kPaperName))
        name = L"<<Unnamed paper>>";
    if (takeUp(kPaperSize))
        size = {0, 0};
    if (takeUp(kPaperUnits))
        units = "mm";
    if (takeUp(kPaperUsed))
        used = 1;
    if (takeUp(kPaperInternalFrame))
        internalFrame = 0;
    if (takeUp(kPaperPortraitSize))
        portraitSize = size;
    if (takeUp(kPaperLandscapeSize))
        landscapeSize = {size.cy, size.cx};
    if (takeUp(kPaperOriginPoint))
        paperOriginPoint = {(size.cx - portraitSize.cx) * 0.5, (size.cy - portraitSize.cy) * 0.5};
}

void PaperFormat::writeTo(IParam* section) {
    if (params)
        Param_CopyTo(params.get(), section);
    fillDefaults();
    writeValues(section);
}

void PaperFormat::writeValues(IParam* section) const {
    writeValue(section, "Used", int(used != 0));
    writeValue(section, "Name", name);
    writeValue(section, "Size", size);
    writeValue(section, "Units", units);
    writeValue(section, "InternalFrame", internalFrame);
    writeValue(section, "PortraitSize", portraitSize);
    writeValue(section, "LandscapeSize", landscapeSize);
    writeValue(section, "PaperOriginPoint", paperOriginPoint);
}

QString PaperFormat::rowText() const {
    const CXStringW shownUnits(Supp_Translate(units.c_str()));
    CXStringW text;
    text.Format(L"%s (%.2f x %.2f %s)", name.c_str(), size.cx, size.cy, shownUnits.c_str());
    return hostqt::qString(text);
}
