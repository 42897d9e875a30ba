#pragma once

#include <QString>
#include <functional>
#include <map>
#include <memory>

namespace tavrel {

/// Broadcasts by name: preferences tell every open document what changed. One thread; observers run in the order in which
/// they subscribed, and may subscribe or leave while a notification is under way.
class NotificationCentre {
public:
    using Handler = std::function<void()>;

    /// Ends its subscription when it goes out of scope; may outlive the centre.
    class Subscription {
    public:
        Subscription() = default;
        Subscription(Subscription&&) noexcept = default;
        Subscription& operator=(Subscription&& other) noexcept;
        ~Subscription();

    private:
        friend class NotificationCentre;
        struct Entry;
        std::shared_ptr<Entry> entry_;
    };

    [[nodiscard]] Subscription subscribe(const QString& name, Handler handler);
    void post(const QString& name);

private:
    std::multimap<QString, std::weak_ptr<Subscription::Entry>> entries_;
};

}  // namespace tavrel
