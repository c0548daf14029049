// Runs the launcher as its entry point does once the single-instance guard has passed (with Qt's own plug-in
// folder), from the bundle it is copied into, and prints what its progress dialog shows, one line per moment, as it happens:
//   shown|hidden|value|close <TAB> value <TAB> label <TAB> title
// then "exit <TAB> code of the event loop <TAB> shown|hidden" (the dialog then). It only watches: the launcher's
// own code runs unchanged.
//   --close         the user closes the dialog's window (through its QWindow) at the first value shown
//   --grab PNG      (X11) while the bar is between 1 and 99 %, grab the screen until it shows the dialog:
//                   grab <TAB> value <TAB> WxH+X+Y of the window, "on screen" or not <TAB> "bar varied" or "bar uniform"
#include <clocale>
#include <cstdio>
#include <cstring>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
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

namespace {

class Recorder : public QObject {
public:
    Recorder(QProgressDialog* dialog, bool close, const char* png)
        : dialog_(dialog), bar_(dialog->findChild<QProgressBar*>()), close_(close), png_(png) {
        dialog_->installEventFilter(this);
        connect(bar_, &QProgressBar::valueChanged, this, [this](int) {
            record("value");
            if (close_ && dialog_->isVisible()) {
                close_ = false;  // queued, as a window manager's request arrives
                QTimer::singleShot(0, this, [this] { record("close"), dialog_->windowHandle()->close(); });
            }
        });
        if (png_) connect(&grabber_, &QTimer::timeout, this, &Recorder::grab), grabber_.start(50);
    }
    void record(const char* what) {
        if (done_) return;
        std::printf("%s\t%d\t%s\t%s\n", what, bar_->value(), qUtf8Printable(dialog_->labelText()),
                    qUtf8Printable(dialog_->windowTitle()));
        std::fflush(stdout);
    }
    // After the loop: the last failed grab, if no grab showed the dialog; then nothing more is recorded.
    void finish(int code) {
        if (png_ && !grabbed_) report(shot_.isNull() ? QStringLiteral("grab\tnone") : grab_line_);
        std::printf("exit\t%d\t%s\n", code, dialog_->isVisible() ? "shown" : "hidden");
        std::fflush(stdout);
        done_ = true;
    }

protected:
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Show || e->type() == QEvent::Hide) record(e->type() == QEvent::Show ? "shown" : "hidden");
        return false;
    }

private:
    void grab() {
        const int value = bar_->value();
        if (grabbed_ || value < 1 || value > 99) return;
        QScreen* screen = QGuiApplication::primaryScreen();
        shot_ = screen->grabWindow(0).toImage();
        const QRect frame = dialog_->frameGeometry(), bar(bar_->mapToGlobal(QPoint()), bar_->size());
        QSet<QRgb> colours;
        for (int y = bar.top(); y <= bar.bottom() && colours.size() < 2; ++y)
            for (int x = bar.left(); x <= bar.right(); ++x) colours.insert(shot_.valid(x, y) ? shot_.pixel(x, y) : 0);
        const bool shown = dialog_->windowHandle() && dialog_->windowHandle()->isExposed() && screen->geometry().contains(frame);
        grabbed_ = shown && colours.size() > 1;
        grab_line_ = QStringLiteral("grab\t%1\t%2x%3+%4+%5 %6\tbar %7").arg(value).arg(frame.width()).arg(frame.height())
                         .arg(frame.x()).arg(frame.y()).arg(shown ? "on screen" : "not on screen")
                         .arg(colours.size() > 1 ? "varied" : "uniform");
        if (grabbed_) report(grab_line_);
    }
    void report(const QString& line) {
        if (!shot_.isNull()) shot_.save(QString::fromLocal8Bit(png_), "PNG");
        std::printf("%s\n", qUtf8Printable(line));
        std::fflush(stdout);
    }

    QProgressDialog* dialog_;
    QProgressBar* bar_;
    bool close_, done_ = false, grabbed_ = false;
    const char* png_;
    QTimer grabber_;
    QImage shot_;
    QString grab_line_;
};

}  // namespace

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
    QProgressDialog* dialog = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* d = dynamic_cast<ProcessingProgressDialog*>(w)) dialog = d;
    if (!dialog) return std::puts("no dialog"), 2;
    Recorder recorder(dialog, close, png);
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    recorder.finish(result);
    delete launcher;
    return result;
}
