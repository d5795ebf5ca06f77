// The icons that the dialog itself uses, by their numbers in the icon table.
#pragma once

enum OptionIcon {
    kIconFolders = 2,
    kIconProfile = 4,
    kIconClear = 29,
    kIconRoot = 33,
    kToolDelete = 29,
    kToolDown = 30,
    kToolUp = 31,
    kToolAdd = 32
};
