// Typed reads and writes of one option, in the system variable or the profile value that its nodes name.
#pragma once

#include "host/typed_reads.h"

// `node` is the option's node, `parent` that of its parent item; either may be null.

// 1 if read, else 0: the caller then falls back to the node's `Default`.
int readIntOption(IParam* node, IParam* parent, int* out);
int readDoubleOption(IParam* node, IParam* parent, double* out);
int readStringOption(IParam* node, IParam* parent, CXStringW* out);
int readColorOption(IParam* node, IParam* parent, unsigned int* out); // 0x00BBGGRR with any high byte
int readSaveFormatOption(IParam* node, IParam* parent, CKWVariant* out);

// The same, or the node's `Default`, or 0 or the empty text.
int intOrDefault(IParam* node, IParam* parent);
double realOrDefault(IParam* node, IParam* parent);
CXStringW textOrDefault(IParam* node, IParam* parent);
unsigned int colorOrDefault(IParam* node, IParam* parent);

// A write without a place, a readable variable or a profile ends without a trace. Wide text and save-format
// numbers leave the value of a system variable as it is.
void writeIntOption(IParam* node, IParam* parent, int value);
void writeDoubleOption(IParam* node, IParam* parent, double value);
void writeTextOption(IParam* node, IParam* parent, const CXString& value);
void writeStringOption(IParam* node, IParam* parent, const CXStringW& value);
void writeColorOption(IParam* node, IParam* parent, unsigned int value);
void writePaletteOption(IParam* node, IParam* parent, unsigned short index);
void writeSaveFormatOption(IParam* node, IParam* parent, int number);
