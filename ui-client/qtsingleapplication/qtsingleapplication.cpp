#include "qtsingleapplication.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include "fs-platform.h"

namespace {

// Letters only, at most six, of the executable's file name.
QString letters_of(const QString& file_name) {
    QString prefix;
    for (QChar c : file_name)
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) prefix += c;
    return prefix.left(6);
}

// The address of the socket file at path; false when the path is too long for one.
bool socket_address(const QString& path, sockaddr_un& address) {
    const QByteArray bytes = QFile::encodeName(path);
    address = sockaddr_un();
    if (static_cast<size_t>(bytes.size()) >= sizeof address.sun_path) return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, bytes.constData(), static_cast<size_t>(bytes.size()));
    return true;
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
    // Qt gives no temp folder for a TMPDIR that does not exist: not the working folder then.
    const QString temp = QDir::tempPath();
    socket_path_ = (temp.isEmpty() ? QStringLiteral("/tmp") : QDir(temp).absolutePath()) + QLatin1Char('/') + socket_name_;
    lock_name_ = socket_path_ + QStringLiteral("-lockfile");
    // The claimed name stands for the socket's path, so instances with other temp folders stay apart
    // as their locks do. Abstract names are short: a long path is represented by its hash.
    const QByteArray path = QFile::encodeName(socket_path_);
    claim_name_ = path.size() <= 100 ? path
                                     : socket_name_.toUtf8() + '-' + QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
}

QtSingleApplication::~QtSingleApplication() {
    if (socket_fd_ >= 0) {
        ::close(socket_fd_);
        ::unlink(QFile::encodeName(socket_path_).constData());
    }
    if (name_fd_ >= 0) ::close(name_fd_);
    if (lock_fd_ >= 0) ::close(lock_fd_);  // closing drops the lock
}

bool QtSingleApplication::isRunning() {
    if (!guard_checked_) {
        other_running_ = !takeGuard();
        guard_checked_ = true;
    }
    return other_running_;
}

// False when another process holds the guard.
bool QtSingleApplication::takeGuard() {
    lock_fd_ = ::open(QFile::encodeName(lock_name_).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (lock_fd_ < 0) return takeFallbackGuard(errno);
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    if (::fcntl(lock_fd_, F_SETLK, &lock) != 0) {
        const int err = errno;
        ::close(lock_fd_);
        lock_fd_ = -1;
        if (err == EACCES || err == EAGAIN) return false;  // held by another process
        return takeFallbackGuard(err);
    }
    // Holding the name too lets an instance whose lock fails see this one.
    name_fd_ = FSClaimLocalName(claim_name_.constData());
    if (name_fd_ < 0 && errno == EADDRINUSE) return false;
    listen();
    return true;
}

bool QtSingleApplication::takeFallbackGuard(int lock_error) {
    QString guard;
    name_fd_ = FSClaimLocalName(claim_name_.constData());
    if (name_fd_ >= 0) {
        guard = QStringLiteral("guarded by its local name instead");
    } else if (errno == EADDRINUSE || holderAnswers()) {
        return false;
    }
    listen();
    if (guard.isEmpty())
        guard = socket_fd_ >= 0 ? QStringLiteral("guarded by its local socket instead")
                                : QStringLiteral("no other guard available, running unguarded");
    guard_warning_ = QStringLiteral("single-instance lock '%1' cannot be used (%2, %3); %4")
                         .arg(lock_name_, QString::fromLocal8Bit(std::strerror(lock_error)))
                         .arg(lock_error)
                         .arg(guard);
    return true;
}

// A live holder listens on the folder's socket; a crashed one left a file that refuses.
bool QtSingleApplication::holderAnswers() const {
    struct sockaddr_un address;
    if (!socket_address(socket_path_, address)) return false;
    const int fd = FSLocalSocket();
    if (fd < 0) return false;
    const bool answered = ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(fd);
    return answered;
}

// Where the lock works the socket only marks the holder, so a socket that cannot be made (a path
// too long for sun_path, a folder we may not write) costs nothing but the mark.
void QtSingleApplication::listen() {
    struct sockaddr_un address;
    if (!socket_address(socket_path_, address)) return;
    socket_fd_ = FSLocalSocket();
    if (socket_fd_ < 0) return;
    ::unlink(address.sun_path);  // we hold the guard: a socket file of this name is a crashed holder's
    if (::bind(socket_fd_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(socket_fd_, SOMAXCONN) != 0) {
        ::close(socket_fd_);
        socket_fd_ = -1;
    }
}
