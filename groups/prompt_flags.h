// The flags that the group commands pass to getInput and selectObjects. What they mean is the host's.
#pragma once

enum GroupPromptFlags {
    kNewNamePrompt = 2,      // a new name, and the name of CCommandLineGroupRemoveObject
    kKeywordPrompt = 4,      // a choice of keywords
    kNameOrNumberPrompt = 6, // the name of a group, and numbers
    kDescriptionPrompt = 7,
    kSelectGroupPrompt = 0x1052000
};
