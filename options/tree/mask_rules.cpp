// The rules that take an operation away from a row because of its place.
#include "options/tree/mask_rules.h"

namespace {

// Every section of directories but the first keeps at least one path.
bool isLastPathOfLaterSection(const TreeItem* item) {
    const TreeItem* const section = item->parentItem();
    if (!section || section->nodeType != kNodeDirSection || section->childCount() >= 2)
        return false;
    const TreeItem* const page = section->parentItem();
    return page && page->child(0) != section;
}

bool isFirstChild(const TreeItem* item) { return item->parentItem()->child(0) == item; }

bool isLastChild(const TreeItem* item) {
    return item->parentItem()->child(item->parentItem()->childCount() - 1) == item;
}

} // namespace

std::uint32_t toolBarMask(const TreeItem* item) {
    std::uint32_t mask = item->buttonMask;
    if (mask == kMaskNone)
        return 0;
    if (!item->parentItem())
        return mask;
    if (isFirstChild(item))
        mask &= ~kMaskUp;
    if (isLastChild(item))
        mask &= ~kMaskDown;
    if (isLastPathOfLaterSection(item))
        mask &= ~kMaskDelete;
    return mask;
}

std::uint32_t contextMenuMask(const TreeItem* item) {
    if (item->buttonMask == kMaskNone)
        return 0;
    return isLastPathOfLaterSection(item) ? item->buttonMask & ~kMaskDelete : item->buttonMask;
}
