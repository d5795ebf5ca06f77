// The flag beside the crosshair's colour: whether each axis has a colour of its own.
#pragma once

class OptionIndex;

// Into the section and under the key that the colour row has set. Without a profile nothing happens.
void writeCursorFlag(const OptionIndex& options, bool value);
