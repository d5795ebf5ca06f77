#include "standin/display/text_styles.h"

#include "sdk/db/symbol_table.h"
#include "standin/display/folded_name.h"

#include <cmath>

namespace standin {

namespace {

constexpr int kVertical = 4;   // in the flags
constexpr int kBackwards = 2;  // in the flags of generation
constexpr int kUpsideDown = 4; // in them, too

TextStyle styleOf(const DxfTagList& tags) {
    const std::int64_t flags = tags.integer(tags.own(), 70), turns = tags.integer(tags.own(), 71);
    const double width = tags.real(tags.own(), 41, 1);
    return {width > 0 ? width : 1, tags.real(tags.own(), 50) * M_PI / 180, (turns & kBackwards) != 0,
            (turns & kUpsideDown) != 0, (flags & kVertical) != 0};
}

} // namespace

TextStyles::TextStyles(const OdDbDatabase& drawing) {
    const auto table = odrxQuery<OdDbSymbolTable>(drawing.getTextStyleTableId().openObject().get());
    if (table.isNull())
        return;
    for (auto it = table->newIterator(); !it.done(); it.step()) {
        const OdDbSymbolTableRecordPtr record = it.getRecord();
        if (!record.isNull())
            styles.emplace(foldedName(record->getName()), styleOf(record->tags()));
    }
}

const TextStyle& TextStyles::of(const OdString& name) const {
    static const TextStyle plain;
    const auto found = styles.find(foldedName(name));
    return found == styles.end() ? plain : found->second;
}

} // namespace standin
