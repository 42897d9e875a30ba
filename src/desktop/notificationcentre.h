#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace tavrel {

/// Broadcasts by name: preferences tell every open document what changed. One thread; observers run in the order in
/// which they subscribed, and may subscribe or leave while a notification is under way: who has left is no longer
/// called, who has just come waits for the next one.
class NotificationCentre {
    struct Entry;

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
        explicit Subscription(std::shared_ptr<Entry> entry) : entry_(std::move(entry)) {}
        std::shared_ptr<Entry> entry_;
    };

    [[nodiscard]] Subscription subscribe(const QString& name, Handler handler);
    void post(const QString& name);

private:
    QHash<QString, std::vector<std::weak_ptr<Entry>>> observers_;
};

}  // namespace tavrel
