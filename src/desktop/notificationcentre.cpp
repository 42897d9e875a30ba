#include "desktop/notificationcentre.h"

#include <utility>

namespace tavrel {

struct NotificationCentre::Entry {
    Handler handler;
    bool active = true;
};

NotificationCentre::Subscription& NotificationCentre::Subscription::operator=(Subscription&& other) noexcept {
    Subscription taken(std::move(other));
    std::swap(entry_, taken.entry_);
    return *this;
}

NotificationCentre::Subscription::~Subscription() {
    if (entry_) {
        entry_->active = false;
    }
}

NotificationCentre::Subscription NotificationCentre::subscribe(Notification name, Handler handler) {
    auto& observers = observers_[name];
    std::erase_if(observers, [](const auto& observer) { return observer.expired(); });
    auto entry = std::make_shared<Entry>(Entry{std::move(handler)});
    observers.push_back(entry);
    return Subscription(std::move(entry));
}

void NotificationCentre::post(Notification name) {
    // A handler may change the observers; those of this moment are kept alive until all have run.
    std::vector<std::shared_ptr<Entry>> present;
    for (const auto& observer : observers_[name]) {
        if (auto entry = observer.lock()) {
            present.push_back(std::move(entry));
        }
    }
    for (const auto& entry : present) {
        if (entry->active) {
            entry->handler();
        }
    }
}

}  // namespace tavrel
