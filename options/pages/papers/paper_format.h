// One paper size as the dialog holds it, with its defaults, its reading and its writing.
#pragma once

#include "host/param.h"

#include <QString>

// Which values of a paper have been read or set.
enum PaperFlag : unsigned {
    kPaperName = 1,
    kPaperSize = 2,
    kPaperUnits = 4,
    kPaperUsed = 8,
    kPaperInternalFrame = 16,
    kPaperPortraitSize = 32,
    kPaperLandscapeSize = 64,
    kPaperOriginPoint = 128
};

struct PaperFormat {
    void readFrom(const Ref<IParam>& copy); // keeps the copy, reads the values and fills the defaults
    void fillDefaults();                    // each value that isn't present, in the order of the flags
    void writeTo(IParam* section);          // the copy first, then the values over it
    QString rowText() const;                // the sizes with two decimals, whatever the locale

    unsigned presentFlags = 0;
    CXStringW name;
    tagRSIZE size{0, 0}; // this and what follows in `units`
    CXString units;
    int used = 0;
    int internalFrame = 0;
    tagRSIZE portraitSize{0, 0};  // the printable size, upright
    tagRSIZE landscapeSize{0, 0}; // the printable size, turned
    Ref<IParam> params;           // a copy in memory of the whole section; may be null
    tagRPOINT paperOriginPoint{0, 0};

private:
    void readValues();
    void writeValues(IParam* section) const;
    bool takeUp(unsigned flag); // true, and the flag set, if it wasn't yet
};
