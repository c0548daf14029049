// Runs the launcher as its entry point does once the single-instance guard has passed (with Qt's own plug-in folder),
// from the bundle it is copied into, and prints what its progress dialog shows as it happens, one line per moment:
//   shown|hidden|value|close <TAB> value <TAB> label <TAB> title
// then "exit <TAB> code of the event loop <TAB> shown|hidden". It only watches: the launcher's own code runs unchanged.
//   --close      the user closes the dialog's window (through its QWindow) at the first value shown
//   --grab PNG   (X11) while the bar is between 1 and 99 %, grab the screen into PNG until it shows the dialog:
//                grab <TAB> value <TAB> WxH+X+Y of the window, "on screen" or not <TAB> "bar varied" or "bar uniform"
#include <clocale>
#include <cstdio>
#include <cstring>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QProgressBar>
#include <QScreen>
#include <QSet>
#include <QTimer>
#include <QTranslator>
#include <QWindow>

#include "fs-platform.h"
#include "launcher.h"
#include "log.h"
#include "lumora-service.h"
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

class Recorder : public QObject {
public:
    Recorder(QProgressDialog* dialog, bool close, const char* png)
        : dialog_(dialog), bar_(dialog->findChild<QProgressBar*>()), close_(close), png_(png) {
        dialog_->installEventFilter(this);
        connect(bar_, &QProgressBar::valueChanged, this, [this] {
            record("value");
            if (!close_ || !dialog_->isVisible()) return;
            close_ = false;  // queued, as a window manager's request arrives
            QTimer::singleShot(0, this, [this] {
                record("close");
                dialog_->windowHandle()->close();
            });
        });
        connect(&grabber_, &QTimer::timeout, this, &Recorder::grab);
        if (png_) grabber_.start(50);
    }
    void record(const char* what) {
        if (!done_) print(QString::asprintf("%s\t%d\t", what, bar_->value()) + dialog_->labelText() + '\t' + dialog_->windowTitle());
    }
    // After the loop: the last grab if none showed the dialog; then nothing more is recorded.
    void finish(int code) {
        if (grabber_.isActive()) report();
        print(QString::asprintf("exit\t%d\t%s", code, dialog_->isVisible() ? "shown" : "hidden"));
        done_ = true;
    }

protected:
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Show || e->type() == QEvent::Hide) record(e->type() == QEvent::Show ? "shown" : "hidden");
        return false;
    }

private:
    static void print(const QString& line) {
        std::printf("%s\n", qUtf8Printable(line));
        std::fflush(stdout);
    }
    void grab() {
        const int value = bar_->value();
        if (value < 1 || value > 99) return;
        QScreen* screen = QGuiApplication::primaryScreen();
        shot_ = screen->grabWindow(0).toImage();
        const QRect frame = dialog_->frameGeometry(), bar(bar_->mapToGlobal(QPoint()), bar_->size());
        QSet<QRgb> colours;
        for (int y = bar.top(); y <= bar.bottom(); ++y)
            for (int x = bar.left(); x <= bar.right(); ++x) colours.insert(shot_.valid(x, y) ? shot_.pixel(x, y) : 0);
        const bool shown = dialog_->windowHandle() && dialog_->windowHandle()->isExposed() && screen->geometry().contains(frame);
        line_ = QStringLiteral("grab\t%1\t%2x%3+%4+%5 %6\tbar %7").arg(value).arg(frame.width()).arg(frame.height())
                    .arg(frame.x()).arg(frame.y()).arg(shown ? "on screen" : "not on screen")
                    .arg(colours.size() > 1 ? "varied" : "uniform");
        if (shown && colours.size() > 1) report();
    }
    void report() {
        grabber_.stop();
        if (!shot_.isNull()) shot_.save(QString::fromLocal8Bit(png_), "PNG");
        print(line_.isEmpty() ? QStringLiteral("grab\tnone") : line_);
    }

    QProgressDialog* dialog_;
    QProgressBar* bar_;
    bool close_, done_ = false;
    const char* png_;
    QTimer grabber_;
    QImage shot_;
    QString line_;
};

int main(int argc, char** argv) {
    const bool close = argc > 1 && std::strcmp(argv[1], "--close") == 0;
    const char* png = argc > 2 && std::strcmp(argv[1], "--grab") == 0 ? argv[2] : nullptr;
    setlocale(LC_ALL, "");
    qInitResources_texts();
    QApplication app(argc, argv);
    const ustring log_dir = Service::GetUserLumoraInstallPath() + "/log";
    if (QDir().mkpath(QString::fromUtf8(log_dir.c_str())))
        Logger::Initialize(Logger::TYPE_FILE, log_dir + "/launcher.log", Service::GetRootLumoraInstallPath() + "/log/launcher.debug", 50);
    FSUseUtf8Names();
    QTranslator translator;
    translator.load(QStringLiteral(":/") + QuenLocale::getDefaultLanguage() + QStringLiteral(".qm"), QString(), QString(), QString());
    if (!translator.isEmpty()) QCoreApplication::installTranslator(&translator);
    StrTable::InitStrTable();
    Launcher* launcher = new Launcher;
    auto* dialog = dynamic_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
    if (!dialog) return 2;
    Recorder recorder(dialog, close, png);
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    recorder.finish(result);
    delete launcher;
    return result;
}
