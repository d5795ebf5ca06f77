// The input operations of the console: prompts, keywords and typed values.
#include "standin/console/console.h"

#include "host/text.h"
#include "standin/console/keywords.h"
#include "standin/console/point_text.h"
#include "standin/units/unit_text.h"

#include <cmath>

namespace standin {

namespace {

QString promptText(const wchar_t* prompt, const Keywords& keywords) {
    QString text = filledPrompt(hostqt::qString(prompt), keywords);
    while (text.endsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    if (text.endsWith(QLatin1Char(':')) || text.endsWith(QLatin1Char('?')))
        return text + QLatin1Char(' ');
    return text.isEmpty() ? text : text + QStringLiteral(": ");
}

OpenPrompt promptFor(const wchar_t* prompt, const wchar_t* keywords) {
    OpenPrompt result;
    result.text = promptText(prompt, Keywords(hostqt::qString(keywords)));
    return result;
}

OpenPrompt pointPromptFor(OpenPrompt::Kind kind, const wchar_t* prompt, const wchar_t* keywords, int flags,
                          const OdGePoint3d* base, HostEdPointTracker* tracker) {
    OpenPrompt result = promptFor(prompt, keywords);
    result.kind = kind;
    if (base)
        result.base = *base;
    result.rubberBand = base && (flags & kRubberBand);
    result.rectangle = base && (flags & kRectangle);
    result.picksObjects = flags & kPicksObjects;
    result.tracker = tracker;
    return result;
}

double distanceBetween(const OdGePoint3d& a, const OdGePoint3d& b) {
    return std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y) + (b.z - a.z) * (b.z - a.z));
}

} // namespace

Console::Answer Console::answerOf(const ConsoleInput& input, const Keywords& keywords, int flags) {
    if (input.kind == ConsoleInput::Escape)
        return {kInputCancelled, input};
    if (input.kind == ConsoleInput::Point)
        return {kInputPicked, input};
    if (input.text.trimmed().isEmpty())
        return {kInputNone, input};
    const int keyword = keywords.match(input.text);
    if (keyword >= 0)
        return {kInputKeyword + keyword, input};
    ConsoleInput typed = input;
    if (!(flags & kTextWithBlanks))
        typed.text = typed.text.trimmed();
    return {kInputTyped, typed};
}

// Asks until the answer isn't an ambiguous keyword; where any text will do, that is an answer like another.
Console::Answer Console::ask(const OpenPrompt& prompt, const Keywords& keywords, int flags) {
    for (;;) {
        const Answer answer = answerOf(waitForInput(prompt), keywords, flags);
        const bool unclear =
            answer.code == kInputTyped && keywords.match(answer.input.text) == Keywords::kAmbiguous;
        if (!unclear || (flags & kAnyText))
            return answer;
        print(tr("Ambiguous answer. Which one: %1?")
                  .arg(keywords.candidates(answer.input.text).join(QStringLiteral(", "))));
    }
}

int Console::getInput(const wchar_t* prompt, const wchar_t* keywords, int flags, OdString* result, int) {
    const Keywords words(hostqt::qString(keywords));
    const OpenPrompt open = promptFor(prompt, keywords);
    for (;;) {
        const Answer answer = ask(open, words, flags);
        if (answer.code == kInputPicked)
            continue;
        if (answer.code != kInputTyped)
            return answer.code;
        if (words.isEmpty() || (flags & kAnyText)) {
            if (result)
                *result = hostqt::odString(answer.input.text);
            return kInputTyped;
        }
        print(tr("Please answer with one of: %1.").arg(words.visible().join(QStringLiteral(", "))));
    }
}

int Console::getInputText(int, int, int, OdString* result, int) {
    for (;;) {
        const ConsoleInput input = waitForInput({});
        if (input.kind == ConsoleInput::Escape)
            return kInputCancelled;
        if (input.kind == ConsoleInput::Point)
            continue;
        if (result)
            *result = hostqt::odString(input.text);
        return kInputTextOk;
    }
}

// `read` takes what was picked or typed and tells whether it was a value. Text that isn't goes to the caller
// when any text will do; otherwise it is refused and the prompt comes again.
template <class Read>
int Console::askValue(const OpenPrompt& prompt, const wchar_t* keywords, int flags, OdString* text, Read read,
                      const QString& refusal) {
    const Keywords words(hostqt::qString(keywords));
    for (;;) {
        const Answer answer = ask(prompt, words, flags);
        if (answer.code != kInputPicked && answer.code != kInputTyped)
            return answer.code;
        if (read(answer.input))
            return kInputPicked;
        if (answer.code == kInputTyped && (flags & kAnyText)) {
            if (text)
                *text = hostqt::odString(answer.input.text);
            return kInputTyped;
        }
        print(refusal);
    }
}

int Console::getPoint(const OdGePoint3d* base, OdGePoint3d* point, const wchar_t* prompt,
                      const wchar_t* keywords, int flags, OdString* text, HostEdPointTracker* tracker) {
    const auto read = [&](const ConsoleInput& input) {
        const auto typed = input.kind == ConsoleInput::Line
                               ? pointFromText(input.text, base ? *base : lastPoint)
                               : std::optional<OdGePoint3d>(input.point);
        if (!typed)
            return false;
        holdPoint(*typed);
        if (point)
            *point = *typed;
        return true;
    };
    return askValue(pointPromptFor(OpenPrompt::Point, prompt, keywords, flags, base, tracker), keywords,
                    flags, text, read,
                    tr("A point is needed: click, or type x,y or @dx,dy or distance<angle."));
}

// A typed number is text to the callers that take any text: they read it by themselves.
int Console::getAngle(const OdGePoint3d& base, double* angle, const wchar_t* prompt, const wchar_t* keywords,
                      int flags, OdString* text, HostEdPointTracker* tracker) {
    const auto read = [&](const ConsoleInput& input) {
        const auto typed = input.kind == ConsoleInput::Point ? std::optional<OdGePoint3d>(input.point)
                                                             : pointFromText(input.text, base);
        if (typed) {
            holdPoint(*typed);
            *angle = std::atan2(typed->y - base.y, typed->x - base.x);
            return true;
        }
        const auto number = angleFromText(input.text, currentAngleUnits());
        if (!number || (flags & kAnyText))
            return false;
        *angle = *number;
        return true;
    };
    return askValue(pointPromptFor(OpenPrompt::Angle, prompt, keywords, flags, &base, tracker), keywords,
                    flags, text, read, tr("An angle or a point is needed."));
}

int Console::getDistance(const OdGePoint3d& base, double* distance, const wchar_t* prompt,
                         const wchar_t* keywords, int flags, OdString* text, HostEdPointTracker* tracker) {
    const auto read = [&](const ConsoleInput& input) {
        const auto typed = input.kind == ConsoleInput::Point ? std::optional<OdGePoint3d>(input.point)
                                                             : pointFromText(input.text, base);
        if (typed) {
            holdPoint(*typed);
            *distance = distanceBetween(base, *typed);
            return true;
        }
        const auto number = lengthFromText(input.text, currentLengthUnits().style);
        if (!number || (flags & kAnyText))
            return false;
        *distance = *number;
        return true;
    };
    return askValue(pointPromptFor(OpenPrompt::Distance, prompt, keywords, flags, &base, tracker), keywords,
                    flags, text, read, tr("A distance or a point is needed."));
}

int Console::getReal(double* value, const wchar_t* prompt, const wchar_t* keywords, int flags, int, int) {
    const auto read = [&](const ConsoleInput& input) {
        const auto number =
            input.kind == ConsoleInput::Line ? lengthFromText(input.text, kDecimal) : std::optional<double>();
        if (number)
            *value = *number;
        return number.has_value();
    };
    return askValue(promptFor(prompt, keywords), keywords, flags, nullptr, read, tr("A number is needed."));
}

} // namespace standin
