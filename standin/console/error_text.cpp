// Every place that tells the user of a caught exception takes its words from here.
#include "standin/console/error_text.h"

#include "host/text.h"
#include "sdk/rx/od_error.h"

#include <QCoreApplication>
#include <exception>

namespace standin {

QString errorTextOf(const std::function<void()>& body) {
    try {
        body();
        return {};
    } catch (const OdError& error) {
        return hostqt::qString(error.description());
    } catch (const std::exception& error) {
        return QString::fromLocal8Bit(error.what());
    } catch (...) {
        return QCoreApplication::translate("CommandLoop", "ended by an unknown error");
    }
}

} // namespace standin
