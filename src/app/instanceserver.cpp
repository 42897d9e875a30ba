#include "app/instanceserver.h"

#include <QDataStream>
#include <QFile>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <sys/stat.h>

namespace tavrel {

namespace {

constexpr QDataStream::Version wireVersion = QDataStream::Qt_6_4;
constexpr char taken = '+';
constexpr qint64 longestMessage = 1 << 20;

QString userSocket() {
    // The runtime folder belongs to the user alone, so no one else can answer in the program's name.
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/tavrel.socket");
}

/// The first of a row of names that a file of that kind bears or nothing does: the same one for every program.
QString freeName(const QString& name, mode_t kind) {
    QString tried = name;
    for (int number = 2;; ++number) {
        struct stat status {};
        if (::lstat(QFile::encodeName(tried).constData(), &status) != 0 || (status.st_mode & S_IFMT) == kind) {
            return tried;
        }
        tried = name + u'-' + QString::number(number);
    }
}

}  // namespace

InstanceServer::InstanceServer(const QString& socket, StartPatience patience)
    : socket_(freeName(socket.isEmpty() ? userSocket() : socket, S_IFSOCK)), patience_(patience) {
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
    // Programs that start at the same moment look for the one that runs one after the other. One that holds the lock
    // for longer than that hangs, and is waited for no more. The lock would read what else bears its name, and wait at
    // a pipe forever.
    QLockFile oneAtATime(freeName(socket_ + QStringLiteral(".lock"), S_IFREG));
    oneAtATime.tryLock(patience_.forConnection);
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
