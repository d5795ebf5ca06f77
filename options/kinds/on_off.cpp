// Turns all that lies below a row on and off.
#include "options/kinds/on_off.h"

#include "options/pages/rows/option_index.h"
#include "options/pages/rows/pref_widget.h"

void setChildrenDisabled(OptionIndex& options, TreeItem* item, bool disable) {
    for (int i = 0; i < item->childCount(); ++i) {
        TreeItem* child = item->childItem(i);
        child->setEnabledFlag(!disable);
        if (QPrefWidget* row = options.rowWidgets.value(child))
            row->setEnabled(!disable);
        setChildrenDisabled(options, child, disable);
    }
}
