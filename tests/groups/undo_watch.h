// Sees the calls that commands make to the undo and the transactions of a drawing, and lets one of them fail.
#pragma once

#include <functional>
#include <string>
#include <vector>

// Its source file takes the place of the database's own functions in this test program; they do what they
// always do, and while a watch lives they tell it first.
class UndoWatch {
public:
    UndoWatch();
    ~UndoWatch();
    UndoWatch(const UndoWatch&) = delete;
    UndoWatch& operator=(const UndoWatch&) = delete;
    static void tell(const char* call); // throws std::bad_alloc where `failsAt` says so

    // "record", "mark", "back", "open", "close"; "begin", "commit", "abort"
    std::vector<std::string> calls;
    std::size_t failsAt = static_cast<std::size_t>(-1); // place in `calls`
    std::function<void(const std::string& call)> onCall;
};
