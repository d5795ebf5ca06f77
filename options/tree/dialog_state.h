// Where the Options dialog keeps what it remembers of itself: in this section of the profile.
#pragma once

constexpr const char* kDialogSection = "Dialogs\\QPref";
// Its section with one value for each expanded row, under the name of the row's node.
constexpr const char* kExpandedSections = "ExpandedSections";
