#include "app/endsignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tavrel {

namespace {

constexpr int signals[] = {SIGTERM, SIGHUP, SIGINT};

// A handler may do little more than write; what it writes is read where events are.
std::array<int, 2> ends{-1, -1};

void passOn(int signal) {
    const int error = errno;
    const auto byte = static_cast<unsigned char>(signal);
    static_cast<void>(!::write(ends[1], &byte, 1));
    errno = error;
}

}  // namespace

EndSignals::EndSignals() {
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &EndSignals::read);
    for (const int signal : signals) {
        struct sigaction passing {};
        passing.sa_handler = passOn;
        passing.sa_flags = SA_RESTART;
        ::sigaction(signal, &passing, nullptr);
    }
}

EndSignals::~EndSignals() {
    for (const int signal : signals) {
        std::signal(signal, SIG_DFL);
    }
    notifier_.reset();
    for (int& end : ends) {
        ::close(end);
        end = -1;
    }
}

void EndSignals::read() {
    unsigned char signal = 0;
    while (::read(ends[0], &signal, 1) == 1) {
        Q_EMIT received(signal);
    }
}

}  // namespace tavrel
