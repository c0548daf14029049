// A stand-in for the sync client's user interface, for demos and end-to-end tests. It writes
// its pid file (~/.Lumora/ui.pid, "pid=<n>"), shows a small window naming its build when a
// display is there, and on SIGTERM removes the pid file and exits.
#include <signal.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QSocketNotifier>

#include <cstdlib>
#include <memory>

namespace {

int g_signal_pipe[2];

void on_terminate(int) {
    const char byte = 1;
    if (write(g_signal_pipe[1], &byte, 1) < 0) _exit(1);
}

bool has_display() {
    return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY") || std::getenv("QT_QPA_PLATFORM");
}

// The build of the installation this binary belongs to (<app>/bin/lumora-ui -> <app>/INFO).
QString own_build() {
    QSettings info(QCoreApplication::applicationDirPath() + QStringLiteral("/../INFO"), QSettings::IniFormat);
    return info.value(QStringLiteral("Version/build_version"), QStringLiteral("?")).toString();
}

bool write_pid_file(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    file.write("pid=" + QByteArray::number(static_cast<qint64>(getpid())) + "\n");
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    std::unique_ptr<QCoreApplication> app(has_display() ? new QApplication(argc, argv)
                                                        : new QCoreApplication(argc, argv));
    if (pipe(g_signal_pipe) != 0) return 1;
    struct sigaction action = {};
    action.sa_handler = on_terminate;
    sigaction(SIGTERM, &action, nullptr);
    QSocketNotifier notifier(g_signal_pipe[0], QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, app.get(), &QCoreApplication::quit);

    const QString dir = QDir::homePath() + QStringLiteral("/.Lumora");
    const QString pid_file = dir + QStringLiteral("/ui.pid");
    QDir().mkpath(dir);
    if (!write_pid_file(pid_file)) return 1;

    std::unique_ptr<QLabel> window;
    if (has_display()) {
        window.reset(new QLabel(QStringLiteral("Lumora client, build %1").arg(own_build())));
        window->setWindowTitle(QStringLiteral("Lumora"));
        window->setMinimumSize(280, 80);
        window->setAlignment(Qt::AlignCenter);
        window->show();
    }
    const int result = app->exec();
    QFile::remove(pid_file);
    return result;
}
