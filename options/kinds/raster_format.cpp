// The row of a raster format, which its page makes and stores.
#include "options/kinds/all_kinds.h"
#include "options/kinds/row_kind.h"
#include "options/pages/raster/raster_page.h"

namespace {

class RasterFormatKind final : public HeadingKind {
public:
    void modify(OptionDialog& options, TreeItem* item) const override { modifyRasterFormat(options, item); }
    void add(OptionDialog& options, TreeItem* item) const override { addRasterFormat(options, item); }
    void remove(OptionDialog& options, TreeItem* item) const override { deleteRasterFormat(options, item); }
    bool isModifiedInDialog() const override { return true; }
};

} // namespace

const RowKind& rasterFormatKind() {
    static const RasterFormatKind kind;
    return kind;
}
