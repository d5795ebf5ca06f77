// A console and a selection whose answers a test gives in advance, and a transcript of what commands asked
// and printed.
#pragma once

#include "host/command_io.h"
#include "host/selection.h"
#include "sdk/db/object_id.h"

#include <deque>
#include <string>
#include <vector>

// One answer to one prompt. `code` is a HostInputResult or kInputKeyword + k; the text goes with kInputTyped
// and with the text input, the objects with a selection.
struct ScriptedAnswer {
    int code = kInputCancelled;
    OdString text;
    OdDbObjectIdArray objects;
};
ScriptedAnswer typed(const wchar_t* text);
ScriptedAnswer keyword(int number); // from 0
ScriptedAnswer enter();
ScriptedAnswer cancel();
ScriptedAnswer picked(OdDbObjectIdArray objects);

struct AskedPrompt {
    OdString text;
    OdString keywords; // "<none>" for a null one
    int flags;
};

// Prompts beyond the last answer are cancelled, so that no test hangs; `unanswered` counts them.
class ScriptedIO : public HostCommandIO {
public:
    void answer(const ScriptedAnswer& next) { answers.push_back(next); }
    bool allTaken() const { return answers.empty(); }
    ScriptedAnswer take();
    void note(const std::wstring& line) { transcript += line; }
    // "prompt" {keywords; flags} => answer
    void noteAnswer(const AskedPrompt& prompt, const ScriptedAnswer& given);

    int getInput(const wchar_t* prompt, const wchar_t* keywords, int flags, OdString* result, int) override;
    int getInputText(int, int, int, OdString* result, int) override;
    void printFormatted(const wchar_t* text, ...) override;
    void printLine(const wchar_t* text) override;
    int getPoint(const OdGePoint3d*, OdGePoint3d*, const wchar_t*, const wchar_t*, int, OdString*,
                 HostEdPointTracker*) override;
    int getAngle(const OdGePoint3d&, double*, const wchar_t*, const wchar_t*, int, OdString*,
                 HostEdPointTracker*) override;
    int getDistance(const OdGePoint3d&, double*, const wchar_t*, const wchar_t*, int, OdString*,
                    HostEdPointTracker*) override;
    int getReal(double*, const wchar_t*, const wchar_t*, int, int, int) override;
    OdGePoint3d inputPoint() const override;

    std::vector<AskedPrompt> prompts; // those of getInput and of selections
    std::vector<OdString> printed;    // each printLine and printFormatted
    std::wstring transcript;          // all of it, as a user would read it
    bool textInputIsDefault = false;  // getInputText stays as the interface leaves it
    int unanswered = 0;

private:
    std::deque<ScriptedAnswer> answers;
};

// Answers selections out of the same queue as the prompts.
class ScriptedSelection : public HostEditorSelection {
public:
    explicit ScriptedSelection(ScriptedIO& console) : io(console) {}
    void select(const OdDbObjectIdArray& ids);
    OdDbObjectIdArray selected() const;

    hostSelectionSetPtr getSelection() override { return current; }
    void setSelection(const hostSelectionSetPtr& set) override;
    int selectObjects(hostSelectionSetPtr* result, int, const wchar_t* prompt, const wchar_t* keywords,
                      int flags, int, int, int, int) override;
    void clearSelection() override;

    int cleared = 0;
    bool ignoresNewSets = false; // as a host that keeps the user's selection

private:
    ScriptedIO& io;
    hostSelectionSetPtr current;
};
