#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tavrel {

/// What is told to every open document.
enum class Notification {
    updateTableView,         ///< the colours or units of tables changed
    updateColumnsTableView,  ///< the choice of visible columns changed
    profile,                 ///< the settings of the profile changed
    updateEditDive,          ///< the units of forms changed
    updateDeco,              ///< the stop interval or a gradient factor changed
    updateRebreather,        ///< the life of oxygen cells changed
    previousTotals,          ///< the totals of earlier dives changed
    renumDives,              ///< the user wants to renumber dives
};

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

    [[nodiscard]] Subscription subscribe(Notification name, Handler handler);
    void post(Notification name);

private:
    std::map<Notification, std::vector<std::weak_ptr<Entry>>> observers_;
};

}  // namespace tavrel
