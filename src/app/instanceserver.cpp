#include "app/instanceserver.h"

#include <QDataStream>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tavrel {

namespace {

constexpr int patience = 3000;  // milliseconds that a program may take to answer
constexpr QDataStream::Version wireVersion = QDataStream::Qt_6_4;
constexpr char taken = '+';
constexpr qint64 longestMessage = 1 << 20;

QString userSocket() {
    // The runtime folder belongs to the user alone, so no one else can answer in the program's name.
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/tavrel.socket");
}

/// Lets programs that start at the same moment look for the one that runs one after the other.
class StartLock {
public:
    explicit StartLock(const QString& socket)
        : file_(::open(QFile::encodeName(socket + QStringLiteral(".lock")).constData(), O_RDWR | O_CREAT | O_CLOEXEC,
                       0600)) {
        if (file_ >= 0) {
            ::flock(file_, LOCK_EX);
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

}  // namespace

InstanceServer::InstanceServer(const QString& socket) : socket_(socket.isEmpty() ? userSocket() : socket) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &InstanceServer::receive);
}

bool InstanceServer::handOver(const QStringList& files) {
    QLocalSocket socket;
    socket.connectToServer(socket_);
    if (!socket.waitForConnected(patience)) {
        return false;
    }
    QDataStream stream(&socket);
    stream.setVersion(wireVersion);
    stream << files;
    char answer = 0;
    return socket.waitForReadyRead(patience) && socket.getChar(&answer) && answer == taken;
}

bool InstanceServer::listen() {
    const StartLock oneAtATime(socket_);
    // Listening would push aside whoever listens already.
    QLocalSocket other;
    other.connectToServer(socket_);
    if (other.waitForConnected(patience)) {
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
