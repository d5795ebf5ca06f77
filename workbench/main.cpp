// The workbench program.
#include "standin/qt_application/host_application.h"
#include "workbench/workbench.h"

#include <clocale>
#include <cstdio>
#include <cstring>

namespace {

// A headless run needs no display.
void chooseDisplay(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--headless") == 0 && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char** argv) {
    chooseDisplay(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    standin::HostApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // numbers in files have a point in every locale

    QString message;
    bool failed = false;
    const auto launch = workbench::parseCommandLine(QCoreApplication::arguments(), &message, &failed);
    if (!launch) {
        std::fprintf(failed ? stderr : stdout, "%s\n", qPrintable(message));
        return failed ? 2 : 0;
    }
    workbench::Workbench workbench(*launch);
    workbench.start();
    const int status = application.run();
    return status ? status : workbench.exitStatus();
}
