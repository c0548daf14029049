// Shows the launcher's progress dialog as the launcher configures it, at a given value, grabs the
// whole screen after a moment and saves it as a PNG; prints what the picture cannot show (a
// window manager-less X server draws no title bar).
//   dialog-preview OUT.png [--value N]
#include <cstdio>
#include <cstring>
#include <cstdlib>

#include <QApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QScreen>
#include <QSize>
#include <QTimer>
#include <QTranslator>

#include "progress-dialog.h"
#include "quenlocale.h"
#include "strtable.h"

int qInitResources_texts();

namespace {

const int kGrabDelayMs = 700;

int usage() {
    std::fprintf(stderr, "usage: dialog-preview OUT.png [--value N]\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 4) return usage();
    const char* out = argv[1];
    int value = 42;
    if (argc == 4) {
        char* end = nullptr;
        value = static_cast<int>(std::strtol(argv[3], &end, 10));
        if (std::strcmp(argv[2], "--value") != 0 || end == argv[3] || *end || value < 0 || value > 100) return usage();
    }

    QApplication app(argc, argv);
    qInitResources_texts();
    const QString language = QuenLocale::getDefaultLanguage();
    QTranslator translator;
    translator.load(QStringLiteral(":/") + language + QStringLiteral(".qm"));
    if (!translator.isEmpty()) QCoreApplication::installTranslator(&translator);
    StrTable::InitStrTable();

    ProcessingProgressDialog dialog;
    dialog.setCancelButton(nullptr);
    dialog.setAutoReset(false);
    dialog.setValue(value);
    dialog.show();

    int rc = 0;
    QTimer::singleShot(kGrabDelayMs, [&] {
        const QPixmap shot = QGuiApplication::primaryScreen()->grabWindow(0);
        if (shot.isNull() || !shot.save(QString::fromLocal8Bit(out), "PNG")) {
            std::fprintf(stderr, "dialog-preview: could not grab the screen or write %s\n", out);
            rc = 1;
        }
        const QRect frame = dialog.frameGeometry();
        const QSize size = dialog.windowIcon().actualSize(QSize(256, 256));
        const QString icon = size.isValid() ? QStringLiteral("%1x%2").arg(size.width()).arg(size.height())
                                            : QStringLiteral("none");
        std::printf("language=%s\ntitle=%s\nlabel=%s\nvalue=%d\ngeometry=%dx%d+%d+%d\nicon=%s\nscreen=%dx%d\n",
                    qUtf8Printable(language), qUtf8Printable(dialog.windowTitle()),
                    qUtf8Printable(dialog.labelText()), dialog.value(), frame.width(), frame.height(), frame.x(),
                    frame.y(), qUtf8Printable(icon), shot.width(), shot.height());
        QCoreApplication::quit();
    });
    const int loop = QApplication::exec();
    return rc ? rc : loop;
}
