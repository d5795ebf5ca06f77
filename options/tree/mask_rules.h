// Which operations a row allows where it stands: its own button mask, less what its place takes away.
#pragma once

#include "options/store/tree_item.h"

// For the tool bar, and for the context menu, in which the moves play no part. 0 when the row allows nothing.
std::uint32_t toolBarMask(const TreeItem* item);
std::uint32_t contextMenuMask(const TreeItem* item);
