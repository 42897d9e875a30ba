#include "app/instanceserver.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrel {

namespace {

constexpr QDataStream::Version wireVersion = QDataStream::Qt_6_4;
constexpr char taken = '+';
constexpr qint64 longestMessage = 1 << 20;

QString userSocket() {
    // The runtime folder belongs to the user alone, so no one else can answer in the program's name.
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/tavrel.socket");
}

/// Lets programs that start at the same moment look for the one that runs one after the other. No QLockFile: that
/// would read what else bears the name, and wait at a pipe forever.
class StartLock {
public:
    /// One that holds it for longer than that hangs, and is waited for no more.
    StartLock(const QString& socket, int patience)
        : file_(::open(QFile::encodeName(socket + QStringLiteral(".lock")).constData(),
                       O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, 0600)) {
        const QDeadlineTimer deadline(patience);
        constexpr unsigned long pause = 20;
        while (file_ >= 0 && ::flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK && !deadline.hasExpired()) {
            QThread::msleep(pause);
        }
    }
    StartLock(const StartLock&) = delete;
    StartLock& operator=(const StartLock&) = delete;
    ~StartLock() {
        if (file_ >= 0) {
            ::close(file_);
        }
    }

private:
    int file_;
};

/// The first of a row of names that a socket bears or nothing does: the same one for every program.
QString freeName(const QString& name) {
    QString tried = name;
    for (int number = 2;; ++number) {
        struct stat status {};
        if (::lstat(QFile::encodeName(tried).constData(), &status) != 0 || S_ISSOCK(status.st_mode)) {
            return tried;
        }
        tried = name + u'-' + QString::number(number);
    }
}

}  // namespace

InstanceServer::InstanceServer(const QString& socket, StartPatience patience)
    : socket_(freeName(socket.isEmpty() ? userSocket() : socket)), patience_(patience) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &InstanceServer::receive);
}

InstanceServer::HandedOver InstanceServer::handOver(const QStringList& files) {
    QLocalSocket socket;
    socket.connectToServer(socket_);
    if (!socket.waitForConnected(patience_.forConnection)) {
        return HandedOver::toNobody;
    }
    QDataStream stream(&socket);
    stream.setVersion(wireVersion);
    stream << files;
    char answer = 0;
    const bool answered = socket.waitForReadyRead(patience_.forAnswer) && socket.getChar(&answer) && answer == taken;
    return answered ? HandedOver::taken : HandedOver::busy;
}

bool InstanceServer::listen() {
    const StartLock oneAtATime(socket_, patience_.forConnection);
    // Listening would push aside whoever listens already.
    QLocalSocket other;
    other.connectToServer(socket_);
    if (other.waitForConnected(patience_.forConnection)) {
        return false;
    }
    return QLocalServer::removeServer(socket_) && server_.listen(socket_);
}

void InstanceServer::receive() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto read = [this, socket] {
            if (socket->bytesAvailable() > longestMessage) {
                socket->abort();
                return;
            }
            QDataStream stream(socket);
            stream.setVersion(wireVersion);
            stream.startTransaction();
            QStringList files;
            stream >> files;
            if (stream.commitTransaction()) {
                socket->putChar(taken);
                socket->flush();
                // Opening may ask the user something, and the next program must not wait for the answer.
                QMetaObject::invokeMethod(
                    this, [this, files] { Q_EMIT handedOver(files); }, Qt::QueuedConnection);
            }
        };
        connect(socket, &QLocalSocket::readyRead, socket, read);
        read();
    }
}

}  // namespace tavrel
