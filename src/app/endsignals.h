#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace tavrel {

/// Tells of the signals that ask the program to end (SIGTERM, SIGHUP, SIGINT), in the loop of its events. One at a time
/// in a program.
class EndSignals : public QObject {
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;

Q_SIGNALS:
    void received(int signal);

private:
    void read();

    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tavrel
