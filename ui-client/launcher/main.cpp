// The launcher: keeps ~/.Lumora/app at least as new as the package in its bundle, then starts
// the per-user client and exits 0.
#include <clocale>
#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QTranslator>

#include "launcher.h"
#include "log.h"
#include "lumora-service.h"
#include "qtsingleapplication.h"
#include "quenlocale.h"
#include "strtable.h"

int qInitResources_texts();

namespace {

// The bundle's Contents/Frameworks/plugins, from argv[0] as given (not made absolute).
QString plugin_path(const char* argv0) {
    return QDir::cleanPath(QString::fromUtf8(argv0 ? argv0 : "") + QStringLiteral("/../../Frameworks/plugins"));
}

void init_log() {
    const ustring level_conf = Service::GetRootLumoraInstallPath() + "/log/launcher.debug";
    const ustring log_dir = Service::GetUserLumoraInstallPath() + "/log";
    if (QDir().mkpath(QString::fromUtf8(log_dir.c_str())))
        Logger::Initialize(Logger::TYPE_FILE, log_dir + "/launcher.log", level_conf, 50);
}

}  // namespace

int main(int argc, char** argv) {
    setlocale(LC_ALL, "");
    qInitResources_texts();

    const QString plugins = plugin_path(argc > 0 ? argv[0] : nullptr);
    QCoreApplication::setLibraryPaths(QStringList(plugins));
    printf("lib path = '%s'\n", plugins.toUtf8().constData());
    fflush(stdout);

    QtSingleApplication app(argc, argv, true);
    init_log();
    if (app.isRunning()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] main.cpp(%d): app has already launched, return\n",
                       __LINE__);
        return 0;
    }

    QTranslator translator;
    translator.load(QStringLiteral(":/") + QuenLocale::getDefaultLanguage() + QStringLiteral(".qm"), QString(), QString(),
                    QString());
    if (!translator.isEmpty()) QCoreApplication::installTranslator(&translator);
    StrTable::InitStrTable();

    Launcher* launcher = new Launcher;
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    delete launcher;
    return result;
}
