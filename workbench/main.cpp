// The workbench program.
#include "standin/qt_application/host_application.h"
#include "workbench/offscreen.h"
#include "workbench/workbench.h"

#include <clocale>
#include <cstdio>

int main(int argc, char** argv) {
    workbench::chooseDisplay(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    standin::HostApplication application(argc, argv);
    workbench::actWithoutDesktop();
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
    const int status = QApplication::exec();
    return status ? status : workbench.exitStatus();
}
