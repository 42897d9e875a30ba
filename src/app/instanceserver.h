#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace tavrel {

/// Makes the program run once per user: the first one listens, a later one hands its files over and ends.
class InstanceServer : public QObject {
    Q_OBJECT

public:
    /// The socket's path; empty: the one of the user.
    explicit InstanceServer(const QString& socket = {});

    /// Hands the files, as absolute paths, to the program that runs already; says whether one took them.
    bool handOver(const QStringList& files);
    /// Takes the place of the one that runs; fails when another program was quicker. A place left behind by one that
    /// died is taken over.
    bool listen();

Q_SIGNALS:
    /// Another program was started with these files, or with none.
    void handedOver(const QStringList& files);

private:
    void receive();

    QString socket_;
    QLocalServer server_;
};

}  // namespace tavrel
