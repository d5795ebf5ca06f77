// What an exception says, for the user.
#pragma once

#include <QString>
#include <functional>

namespace standin {

// Runs `body`; a null text when it ended well, else what the exception that left it says.
QString errorTextOf(const std::function<void()>& body);

} // namespace standin
