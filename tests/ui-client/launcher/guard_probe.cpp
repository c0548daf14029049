// Takes the single-instance guard: prints "running" when another instance holds it, else "first" (and on standard
// error why the lock could not guard it, if so) and holds it for the milliseconds in argv[1] (default 0).
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include "qtsingleapplication.h"

int main(int argc, char** argv) {
    QtSingleApplication app(argc, argv, false);
    // Flushed before Qt's teardown, which a leak checker may end abruptly.
    std::printf("%s\n", app.isRunning() ? "running" : "first");
    std::fflush(stdout);
    if (app.isRunning()) return 0;
    std::fprintf(stderr, "%s\n", qPrintable(app.guardWarning()));
    QTimer::singleShot(argc > 1 ? std::atoi(argv[1]) : 0, &app, &QCoreApplication::quit);
    return app.exec();
}
