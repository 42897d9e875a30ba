#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace tavrel {

/// How long a start waits for other programs, in milliseconds.
struct StartPatience {
    int forConnection = 3000;  ///< also for another start to be over
    int forAnswer = 30'000;    ///< of a program that runs, but may be at work
};

/// Makes the program run once per user: the first one listens, a later one hands its files over and ends.
class InstanceServer : public QObject {
    Q_OBJECT

public:
    /// The socket's path; empty: the one of the user. Something else than a socket that bears the name stays there, and
    /// the socket gets another one.
    explicit InstanceServer(const QString& socket = {}, StartPatience patience = {});

    enum class HandedOver {
        taken,
        toNobody,  ///< no other program runs
        busy,      ///< one runs and does not answer
    };
    /// Hands the files, as absolute paths, to the program that runs already.
    HandedOver handOver(const QStringList& files);
    /// Takes the place of the one that runs; fails when another program was quicker. A place left behind by one that
    /// died is taken over.
    bool listen();

Q_SIGNALS:
    /// Another program was started with these files, or with none.
    void handedOver(const QStringList& files);

private:
    void receive();

    QString socket_;
    StartPatience patience_;
    QLocalServer server_;
};

}  // namespace tavrel
