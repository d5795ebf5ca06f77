// The scripted console and selection.
#include "tests/support/scripted_io.h"

#include "sdk/ge/point3d.h"

namespace {

std::wstring quoted(const OdString& text) { return L"\"" + text.wide() + L"\""; }

std::wstring answerText(const ScriptedAnswer& answer) {
    switch (answer.code) {
    case kInputPicked:
        return std::to_wstring(answer.objects.size()) + L" picked";
    case kInputTyped:
        return quoted(answer.text);
    case kInputNone:
        return L"Enter";
    case kInputCancelled:
        return L"Cancel";
    default:
        return L"keyword " + std::to_wstring(answer.code - kInputKeyword);
    }
}

} // namespace

ScriptedAnswer typed(const wchar_t* text) { return {kInputTyped, text, {}}; }
ScriptedAnswer keyword(int number) { return {kInputKeyword + number, {}, {}}; }
ScriptedAnswer enter() { return {kInputNone, {}, {}}; }
ScriptedAnswer cancel() { return {kInputCancelled, {}, {}}; }
ScriptedAnswer picked(OdDbObjectIdArray objects) { return {kInputPicked, {}, std::move(objects)}; }

ScriptedAnswer ScriptedIO::take() {
    if (answers.empty()) {
        ++unanswered;
        return cancel();
    }
    const ScriptedAnswer next = answers.front();
    answers.pop_front();
    return next;
}

void ScriptedIO::noteAnswer(const AskedPrompt& prompt, const ScriptedAnswer& given) {
    prompts.push_back(prompt);
    note(quoted(prompt.text) + L" {" + prompt.keywords.wide() + L"; " + std::to_wstring(prompt.flags) +
         L"} => " + answerText(given) + L"\n");
}

int ScriptedIO::getInput(const wchar_t* prompt, const wchar_t* keywords, int flags, OdString* result, int) {
    const ScriptedAnswer given = take();
    noteAnswer({prompt, keywords ? keywords : L"<none>", flags}, given);
    if (given.code == kInputTyped && result)
        *result = given.text;
    return given.code;
}

int ScriptedIO::getInputText(int a, int b, int c, OdString* result, int d) {
    if (textInputIsDefault)
        return HostCommandIO::getInputText(a, b, c, result, d);
    const ScriptedAnswer given = take();
    note(L"text => " + answerText(given) + L"\n");
    if (given.code == kInputCancelled)
        return 0;
    *result = given.text;
    return kInputTextOk;
}

void ScriptedIO::printFormatted(const wchar_t* text, ...) {
    printed.emplace_back(text);
    note(std::wstring(L"printed ") + quoted(text) + L"\n");
}

void ScriptedIO::printLine(const wchar_t* text) {
    printed.emplace_back(text);
    note(std::wstring(L"line    ") + quoted(text) + L"\n");
}

int ScriptedIO::getPoint(const OdGePoint3d*, OdGePoint3d*, const wchar_t*, const wchar_t*, int, OdString*,
                         HostEdPointTracker*) {
    return take().code;
}

int ScriptedIO::getAngle(const OdGePoint3d&, double*, const wchar_t*, const wchar_t*, int, OdString*,
                         HostEdPointTracker*) {
    return take().code;
}

int ScriptedIO::getDistance(const OdGePoint3d&, double*, const wchar_t*, const wchar_t*, int, OdString*,
                            HostEdPointTracker*) {
    return take().code;
}

int ScriptedIO::getReal(double*, const wchar_t*, const wchar_t*, int, int, int) { return take().code; }

OdGePoint3d ScriptedIO::inputPoint() const { return {}; }

void ScriptedSelection::select(const OdDbObjectIdArray& ids) {
    current = hostSelectionSet::createObject(nullptr);
    for (const OdDbObjectId& id : ids)
        current->append(id);
}

OdDbObjectIdArray ScriptedSelection::selected() const {
    OdDbObjectIdArray ids;
    if (!current.isNull())
        current->objectIds(ids);
    return ids;
}

void ScriptedSelection::setSelection(const hostSelectionSetPtr& set) {
    if (!ignoresNewSets)
        current = set;
}

int ScriptedSelection::selectObjects(hostSelectionSetPtr* result, int, const wchar_t* prompt,
                                     const wchar_t* keywords, int flags, int, int, int, int) {
    const ScriptedAnswer given = io.take();
    io.noteAnswer({prompt, keywords ? keywords : L"<none>", flags}, given);
    if (given.code == kInputPicked) {
        const hostSelectionSetPtr set = hostSelectionSet::createObject(nullptr);
        for (const OdDbObjectId& id : given.objects)
            set->append(id);
        *result = set;
    }
    return given.code;
}

void ScriptedSelection::clearSelection() {
    ++cleared;
    current.release();
}
