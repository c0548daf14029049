// Runs the launcher as its entry point does once the single-instance guard has passed (with Qt's own plug-in folder and
// no log: neither changes the dialog), from the bundle it is copied into, and prints what its progress dialog shows as it happens, one line per moment:
//   shown|hidden|value|close <TAB> value <TAB> label <TAB> title
// then "exit <TAB> code of the event loop <TAB> shown|hidden". It only watches: the launcher's own code runs unchanged.
//   --close      the user closes the dialog's window (through its QWindow) at the first value shown
//   --grab PNG   (X11) while the bar is between 1 and 99 %, grab the screen into PNG until it shows the dialog:
//                grab <TAB> value <TAB> width of the window <TAB> "bar varied" or "bar uniform"
#include <clocale>
#include <cstdio>
#include <functional>

#include <QtWidgets>

#include "launcher.h"
#include "progress-dialog.h"
#include "quenlocale.h"
#include "strtable.h"

int qInitResources_texts();

// Leaks at exit of the system's font configuration, Qt's offscreen platform, and under X11 its D-Bus link and the
// GL driver, not ours.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig.so\nleak:libqoffscreen.so\nleak:libdbus-1.so\nleak:libGLX_mesa.so\n";
}
// libxkbcommon-x11 strndup()s names that have no terminating NUL, which is legal; strict string checks read on.
extern "C" const char* __asan_default_suppressions() { return "interceptor_via_lib:libxkbcommon-x11.so\n"; }

static void print(const QString& line) {
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

// Hands the dialog's show and hide events to `seen`.
struct ShowWatch : QObject {
    std::function<void(const char*)> seen;
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Show || e->type() == QEvent::Hide) seen(e->type() == QEvent::Show ? "shown" : "hidden");
        return false;
    }
};

int main(int argc, char** argv) {
    const QString option = argc > 1 ? argv[1] : "", png = argc > 2 ? argv[2] : "";
    setlocale(LC_ALL, "");
    qInitResources_texts();
    QApplication app(argc, argv);
    QTranslator translator;
    translator.load(QStringLiteral(":/") + QuenLocale::getDefaultLanguage() + QStringLiteral(".qm"), QString(), QString(), QString());
    if (!translator.isEmpty()) QCoreApplication::installTranslator(&translator);
    StrTable::InitStrTable();
    auto* launcher = new Launcher;
    auto* dialog = dynamic_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
    if (!dialog) return 2;
    QProgressBar* bar = dialog->findChild<QProgressBar*>();
    const auto record = [&](const char* what) {
        print(QString::asprintf("%s\t%d\t", what, bar->value()) + dialog->labelText() + '\t' + dialog->windowTitle());
    };
    ShowWatch watch;
    watch.seen = record;
    dialog->installEventFilter(&watch);
    bool close = option == "--close";
    QObject::connect(bar, &QProgressBar::valueChanged, [&] {
        record("value");
        if (!close || !dialog->isVisible()) return;
        close = false;  // queued, as a window manager's request arrives
        QTimer::singleShot(0, [&] {
            record("close");
            dialog->windowHandle()->close();
        });
    });
    QTimer grabber;
    QString grabbed = "grab\tnone";  // the last grab, reported at the end if none showed the dialog
    QObject::connect(&grabber, &QTimer::timeout, [&] {
        if (bar->value() < 1 || bar->value() > 99) return;
        const QImage shot = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
        const QRect frame = dialog->frameGeometry(), area(bar->mapToGlobal(QPoint()), bar->size());
        QSet<QRgb> colours;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x) colours.insert(shot.valid(x, y) ? shot.pixel(x, y) : 0);
        const bool varied = colours.size() > 1;
        grabbed = QString("grab\t%1\t%2\tbar %3").arg(bar->value()).arg(frame.width()).arg(varied ? "varied" : "uniform");
        const QWindow* window = dialog->windowHandle();
        if (!varied || !window || !window->isExposed() || !shot.rect().contains(frame)) return;
        grabber.stop();
        shot.save(png, "PNG");
        print(grabbed);
    });
    if (option == "--grab") grabber.start(50);
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    dialog->removeEventFilter(&watch);
    if (grabber.isActive()) print(grabbed);
    print(QString::asprintf("exit\t%d\t%s", result, dialog->isVisible() ? "shown" : "hidden"));
    delete launcher;
    return result;
}
