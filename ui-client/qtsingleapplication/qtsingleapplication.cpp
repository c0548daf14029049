#include "qtsingleapplication.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

#include <QDir>
#include <QFile>

namespace {

// Letters only, at most six, of the executable's file name.
QString letters_of(const QString& file_name) {
    QString prefix;
    for (QChar c : file_name)
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) prefix += c;
    return prefix.left(6);
}

}  // namespace

// Qt 5's QApplication always has a GUI (its third parameter is an internal version value, not a
// switch), so GUIenabled is accepted for compatibility and not passed on.
QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/) : QApplication(argc, argv) {
    id_ = QCoreApplication::applicationFilePath();
    const QByteArray utf8 = id_.toUtf8();
    const quint16 crc = qChecksum(utf8.constData(), static_cast<uint>(utf8.size()));
    socket_name_ = QStringLiteral("qtsingleapp-") + letters_of(id_.section(QLatin1Char('/'), -1)) +
                   QLatin1Char('-') + QString::number(crc, 16) + QLatin1Char('-') +
                   QString::number(::getuid(), 16);
    socket_path_ = QDir(QDir::tempPath()).absolutePath() + QLatin1Char('/') + socket_name_;
    lock_name_ = socket_path_ + QStringLiteral("-lockfile");
}

QtSingleApplication::~QtSingleApplication() {
    if (socket_fd_ >= 0) {
        ::close(socket_fd_);
        ::unlink(QFile::encodeName(socket_path_).constData());
    }
    if (lock_fd_ >= 0) ::close(lock_fd_);  // closing drops the lock
}

bool QtSingleApplication::isRunning() {
    if (!guard_checked_) {
        other_running_ = !takeGuard();
        guard_checked_ = true;
    }
    return other_running_;
}

// False when another process holds the lock. A lock file we cannot even open is no proof of a
// running instance, so it does not stop this one.
bool QtSingleApplication::takeGuard() {
    lock_fd_ = ::open(QFile::encodeName(lock_name_).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (lock_fd_ < 0) return true;
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    if (::fcntl(lock_fd_, F_SETLK, &lock) != 0) {
        ::close(lock_fd_);
        lock_fd_ = -1;
        return false;
    }
    listen();
    return true;
}

// The socket only marks the holder; the lock decides. So a socket that cannot be made (a path too
// long for sun_path, a folder we may not write) costs nothing but the mark.
void QtSingleApplication::listen() {
    const QByteArray path = QFile::encodeName(socket_path_);
    struct sockaddr_un address = {};
    if (static_cast<size_t>(path.size()) >= sizeof address.sun_path) return;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    socket_fd_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket_fd_ < 0) return;
    ::unlink(path.constData());  // we hold the lock: a socket file of this name is a crashed holder's
    if (::bind(socket_fd_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(socket_fd_, SOMAXCONN) != 0) {
        ::close(socket_fd_);
        socket_fd_ = -1;
    }
}
