// Runs the application, and catches at its edge what would otherwise end the program.
#include "standin/qt_application/host_application.h"

#include "standin/console/error_text.h"
#include "standin/sysvars/read_variable.h"

#include <cstdio>

namespace standin {

namespace {

class DepthGuard {
public:
    explicit DepthGuard(int& counter) : depth(counter) { ++depth; }
    ~DepthGuard() { --depth; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    int& depth;
};

// The variable TOOLTIPS. Tips are shown where it cannot be read.
bool showsToolTips() {
    const OdResBufPtr value = readVariable(L"TOOLTIPS");
    return value.isNull() || value->getBool();
}

} // namespace

HostApplication::HostApplication(int& argc, char** argv) : QApplication(argc, argv), consoleExtension(this) {}
HostApplication::~HostApplication() = default;

QObject* HostApplication::extension(const QString& id) {
    return id == QLatin1String("oda.IqConsole") ? &consoleExtension : nullptr;
}

int HostApplication::run() {
    running = true;
    const int status = exec();
    running = false;
    return status;
}

bool HostApplication::notify(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::ToolTip && !showsToolTips())
        return true;
    const DepthGuard guard(depth);
    if (!running || depth > 1)
        return QApplication::notify(receiver, event);
    bool result = true;
    const QString problem = errorTextOf([&] { result = QApplication::notify(receiver, event); });
    if (problem.isNull())
        return result;
    if (report)
        report(problem);
    else
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    return true;
}

} // namespace standin

#include "moc_host_application.cpp"
