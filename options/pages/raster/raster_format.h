// One raster format as the dialog holds it between reading and Apply.
#pragma once

#include "host/param.h"

class RasterFormat {
public:
    // Reads the values out of `newParams`, which it keeps; what is missing there takes its default.
    RasterFormat(const CXString& newName, const Ref<IParam>& newParams);

    CXString sectionPath() const; // the format's section of the host's input and output parameters
    unsigned buttonMask() const;  // the operations that its row offers

    CXString name;
    CXStringW description;
    CXStringW longDescription;
    CXString defExt;
    int enabled = 1;
    int generic = 1;  // non-zero: the extension can't be edited
    int canSetup = 1; // non-zero: the format has options and may be copied
    int deleted = 0;  // such a record stays in the list until Apply has removed its section
    int canDelete = 0;
    Ref<IParam> params; // a copy in memory of the format's whole section
};

// The module that holds the settings of a format, by the value "Format" of its section "Options"; null for a
// format without one.
const char* rasterSettingsModule(const CXString& format);
