// The console of a document as commands use it.
#pragma once

#include "sdk/rx/od_string.h"

class OdGePoint3d;
class HostEdPointTracker;

// Results of the input operations; keyword number k gives kInputKeyword + k.
enum HostInputResult {
    kInputPicked = -1,
    kInputTyped = 0,
    kInputNone = 1,
    kInputCancelled = -2,
    kInputKeyword = 2
};
enum { kInputTextOk = 5100 };

// Keywords: local words, "_", global words; words of the form *X are hidden abbreviations. Null when there
// are none. Angles are in radians, counter-clockwise from the X axis; distances in drawing units.
class HostCommandIO {
public:
    virtual ~HostCommandIO() = default;
    virtual int getInput(const wchar_t* prompt, const wchar_t* keywords, int flags, OdString* result,
                         int) = 0;
    virtual int getInputText(int, int, int, OdString* /*result*/, int) { return 0; }
    // The finished text comes as the format and prints as it stands; what follows is spare.
    virtual void printFormatted(const wchar_t* text, ...) = 0;
    virtual void printLine(const wchar_t* text) = 0;
    virtual int getPoint(const OdGePoint3d* base, OdGePoint3d* point, const wchar_t* prompt,
                         const wchar_t* keywords, int flags, OdString* text, HostEdPointTracker* tracker) = 0;
    virtual int getAngle(const OdGePoint3d& base, double* angle, const wchar_t* prompt,
                         const wchar_t* keywords, int flags, OdString* text, HostEdPointTracker* tracker) = 0;
    virtual int getDistance(const OdGePoint3d& base, double* distance, const wchar_t* prompt,
                            const wchar_t* keywords, int flags, OdString* text,
                            HostEdPointTracker* tracker) = 0;
    virtual int getReal(double* value, const wchar_t* prompt, const wchar_t* keywords, int flags, int,
                        int) = 0;
    // The point that the input object holds: the last one that the cursor or an answer gave.
    virtual OdGePoint3d inputPoint() const = 0;
};

// Reads of typed numbers, in the unit style of the drawing when it is -1; false when the text is no number.
bool hostdbDisToF(const OdString& text, int unitStyle, double& value);
bool hostdbAngToF(const OdString& text, int unitStyle, double& value, int);
// The text of a length in a unit style; with -1 the shortest plain decimal that reads as the same number,
// whatever the units of the drawing.
void hostdbRToS(double value, int unitStyle, int, OdString& text, int, int);
