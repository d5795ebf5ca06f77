// Processes that die at a chosen call of the system, so that every step of a write to the disk is a place to
// be killed. A test that includes this counts the calls of its process that write, move, remove or sync
// files.
#pragma once

#include <functional>
#include <string>

namespace testing_kills {

// How a process ends at the chosen call.
enum class Moment {
    before,  // the call is not made
    halfway, // a write puts half of its bytes into the file; other calls are made whole
};

// Runs `work` in a process of its own and says how many counted calls it makes; -1 when it fails.
int callsOf(const std::function<void()>& work);
// Runs `work` in a process of its own that is killed at call number `call`, from 0 on. False when it lived.
bool killedAt(int call, Moment moment, const std::function<void()>& work);

// Kills `work` at each of its calls, both ways, and looks at what is left after each: `faultAfter` says what
// is wrong with it, or nothing. `prepare` comes before each. The first fault with its call, or an empty text;
// `places` is how often the work was killed.
std::string faultOfKills(const std::function<void()>& prepare, const std::function<void()>& work,
                         const std::function<std::string()>& faultAfter, int& places);

} // namespace testing_kills
