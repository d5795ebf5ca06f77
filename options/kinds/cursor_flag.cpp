// Writes the flag of the crosshair into the profile.
#include "options/kinds/cursor_flag.h"

#include "host/app.h"
#include "host/typed_reads.h"
#include "options/pages/rows/option_index.h"

void writeCursorFlag(const OptionIndex& options, bool value) {
    const Ref<IParam> section = openChild(appService<IProfile>().get(), options.cursorSection, 1);
    writeValue(section.get(), options.cursorColorKey, static_cast<int>(value));
}
