// The launcher: keeps ~/.Lumora/app at least as new as the package in its bundle, then starts
// the per-user client and exits 0.
#include <clocale>
#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QTranslator>

#include "fs-platform.h"
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

// Names in packages and on disk are UTF-8 whatever the locale; a locale of another character set
// (C, POSIX, none at all) would make the archive library refuse every name outside ASCII. The
// application object has just taken the whole locale from the environment again, so this comes
// after it.
void use_utf8_names() {
    if (FSUseUtf8Names() != 0)
        Logger::LogMsg(Logger::LEVEL_WARNING, "launcher_debug",
                       "[WARNING] main.cpp(%d): no UTF-8 character type available, names outside ASCII may not extract\n",
                       __LINE__);
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
    use_utf8_names();
    if (app.isRunning()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] main.cpp(%d): app has already launched, return\n",
                       __LINE__);
        return 0;
    }
    if (!app.guardWarning().isEmpty())
        Logger::LogMsg(Logger::LEVEL_WARNING, "launcher_debug", "[WARNING] main.cpp(%d): %s\n", __LINE__,
                       app.guardWarning().toUtf8().constData());

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
