// Messages of commands to the user: a box, and the same text on the console.
#pragma once

#include "host/help.h"

#include <QString>
#include <functional>

namespace standin {

class Events : public CKWUnknownImpl<IEvents> {
public:
    enum { kQuestion = 14, kAnswerOk = 1, kAnswerCancel = 2 };
    // While `boxes` says no, what is no question is printed alone: nobody would close a box.
    explicit Events(
        std::function<void(const QString& text)> printOnConsole,
        std::function<bool()> boxes = [] { return true; });
    // A question offers Yes and No, every other kind OK. No answers Cancel.
    int notify(int kind, const wchar_t* text, int, int buttons) override;

private:
    std::function<void(const QString& text)> print;
    std::function<bool()> showsBoxes;
};

} // namespace standin
