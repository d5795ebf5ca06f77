// The one buffer of all empty strings. Libraries that are linked apart hand strings to each other by value,
// and who frees one has to know this buffer for what it is.
#pragma once

// An end of text of any width, for the life of the process; never freed, never written to.
extern "C" void* odrxSharedEmptyText();
