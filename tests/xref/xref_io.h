// A console whose answers are told in advance, and which notes what it was asked.
#pragma once

#include "host/command_io.h"
#include "host/text.h"
#include "host/tracker.h"
#include "sdk/ge/point3d.h"

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

struct Answer {
    int code = kInputCancelled;
    OdGePoint3d point{};
    double value = 0;
    const wchar_t* text = L"";
    bool leavesValue = false; // the value goes out although the code says that none was picked
};
inline Answer pick(double x, double y, double z = 0) { return {kInputPicked, {x, y, z}, 0, L"", false}; }
inline Answer value(double number) { return {kInputPicked, {}, number, L"", false}; }
inline Answer typed(const wchar_t* text) { return {kInputTyped, {}, 0, text, false}; }
inline Answer enter() { return {kInputNone, {}, 0, L"", false}; }
inline Answer cancel() { return {kInputCancelled, {}, 0, L"", false}; }
inline Answer keyword(int number) { return {kInputKeyword + number, {}, 0, L"", false}; }

class XRefIO : public HostCommandIO {
public:
    struct Question {
        QString operation, prompt, keywords; // keywords are null when none were given
        int flags;
        bool withBase, withTracker;
        OdGePoint3d base;
        std::vector<int> reserved{}; // what getReal was given behind the flags
    };
    std::vector<Question> questions;
    QStringList lines, formatted;
    std::deque<Answer> answers; // when none is left, the answer is a cancel that is noted
    bool ranOut = false;
    OdGePoint3d heldPoint;
    std::function<void(const Question&, HostEdPointTracker*)> onQuestion;

    void script(std::initializer_list<Answer> list) { answers.insert(answers.end(), list); }
    QStringList operations() const { return column(&Question::operation); }
    QStringList prompts() const { return column(&Question::prompt); }

    int getInput(const wchar_t*, const wchar_t*, int, OdString*, int) override { return kInputCancelled; }
    void printFormatted(const wchar_t* text, ...) override { formatted << hostqt::qString(text); }
    void printLine(const wchar_t* text) override { lines << hostqt::qString(text); }
    OdGePoint3d inputPoint() const override { return heldPoint; }
    int getPoint(const OdGePoint3d* base, OdGePoint3d* point, const wchar_t* prompt, const wchar_t* keywords,
                 int flags, OdString* text, HostEdPointTracker* tracker) override {
        const Answer answer = ask("getPoint", base, prompt, keywords, flags, tracker);
        if (answer.code == kInputPicked || answer.leavesValue)
            *point = answer.point;
        return give(answer, text);
    }
    int getAngle(const OdGePoint3d& base, double* angle, const wchar_t* prompt, const wchar_t* keywords,
                 int flags, OdString* text, HostEdPointTracker* tracker) override {
        return number(ask("getAngle", &base, prompt, keywords, flags, tracker), angle, text);
    }
    int getDistance(const OdGePoint3d& base, double* distance, const wchar_t* prompt, const wchar_t* keywords,
                    int flags, OdString* text, HostEdPointTracker* tracker) override {
        return number(ask("getDistance", &base, prompt, keywords, flags, tracker), distance, text);
    }
    int getReal(double* real, const wchar_t* prompt, const wchar_t* keywords, int flags, int first,
                int second) override {
        const int code = number(ask("getReal", nullptr, prompt, keywords, flags, nullptr), real, nullptr);
        questions.back().reserved = {first, second};
        return code;
    }

private:
    QStringList column(QString Question::*field) const {
        QStringList result;
        for (const Question& question : questions)
            result << question.*field;
        return result;
    }
    Answer ask(const char* operation, const OdGePoint3d* base, const wchar_t* prompt, const wchar_t* keywords,
               int flags, HostEdPointTracker* tracker) {
        questions.push_back({QLatin1String(operation),
                             hostqt::qString(prompt),
                             keywords ? QStringLiteral("") + hostqt::qString(keywords) : QString(),
                             flags,
                             base != nullptr,
                             tracker != nullptr,
                             base ? *base : OdGePoint3d(),
                             {}});
        if (onQuestion)
            onQuestion(questions.back(), tracker);
        if (answers.empty()) {
            ranOut = true;
            return cancel();
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    static int give(const Answer& answer, OdString* text) {
        if (text && answer.code == kInputTyped)
            *text = answer.text;
        return answer.code;
    }
    static int number(const Answer& answer, double* out, OdString* text) {
        if (answer.code == kInputPicked || answer.leavesValue)
            *out = answer.value;
        return give(answer, text);
    }
};
