// Takes the single-instance guard and reports: prints "running" when another instance holds it,
// else "first" (and on standard error why the lock could not guard it, if so) and then holds it for the number of milliseconds in argv[1] (default 0).
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include "qtsingleapplication.h"

int main(int argc, char** argv) {
    QtSingleApplication app(argc, argv, false);
    if (app.isRunning()) {
        std::printf("running\n");
        std::fflush(stdout);  // before Qt's teardown, which a leak checker may end abruptly
        return 0;
    }
    std::printf("first\n");
    std::fflush(stdout);
    std::fprintf(stderr, "%s\n", qPrintable(app.guardWarning()));
    QTimer::singleShot(argc > 1 ? std::atoi(argv[1]) : 0, &app, &QCoreApplication::quit);
    return app.exec();
}
