// The floor for the launcher's start time: a Qt Widgets program that creates its QApplication and
// exits 0. With --detach it also starts /bin/true detached first, as the launcher starts the client.
//   bare-widgets [--detach]
#include <cstring>

#include <QApplication>
#include <QProcess>
#include <QStringList>

int main(int argc, char** argv) {
    const bool detach = argc > 1 && std::strcmp(argv[1], "--detach") == 0;
    QApplication app(argc, argv);
    if (detach && !QProcess::startDetached(QStringLiteral("/bin/true"), QStringList())) return 1;
    return 0;
}
