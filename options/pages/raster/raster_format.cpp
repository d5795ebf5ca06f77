// Reads a raster format from its section and derives what its row allows.
#include "options/pages/raster/raster_format.h"

#include "host/typed_reads.h"
#include "options/store/tree_item.h"

RasterFormat::RasterFormat(const CXString& newName, const Ref<IParam>& newParams)
    : name(newName), params(newParams) {
    IParam* node = params.get();
    readValue(node, "Description", &description);
    readValue(node, "CanDelete", &canDelete);
    readValue(node, "DefExt", &defExt);
    readValue(node, "Enabled", &enabled);
    readValue(node, "CanSetup", &canSetup);
    readValue(node, "Generic", &generic);
    readValue(node, "LongDescription", &longDescription);
}

CXString RasterFormat::sectionPath() const { return CXString("Formats\\") + name; }

unsigned RasterFormat::buttonMask() const {
    return kMaskModify | (canDelete ? kMaskDelete : 0u) | (canSetup ? kMaskAdd : 0u);
}

const char* rasterSettingsModule(const CXString& format) {
    static const struct {
        const char* format;
        const char* module;
    } table[] = {{"jpg", "jpegqt.dll"}, {"jpeg", "jpegqt.dll"}, {"ecw", "ecwqt.dll"}, {"tif", "tiffqt.dll"}};
    for (const auto& entry : table)
        if (format.CompareI(entry.format) == 0)
            return entry.module;
    return nullptr;
}
