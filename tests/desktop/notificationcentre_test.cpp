#include "desktop/notificationcentre.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

namespace tavrel {

namespace {

constexpr Notification profile = Notification::profile;

TEST(NotificationCentre, callsTheObserversOfTheNameInOrder) {
    NotificationCentre centre;
    std::string calls;
    const auto first = centre.subscribe(profile, [&] { calls += 'a'; });
    const auto other = centre.subscribe(Notification::updateDeco, [&] { calls += 'x'; });
    {
        auto second = centre.subscribe(profile, [&] { calls += 'b'; });
        const auto moved = std::move(second);
        centre.post(profile);
    }
    centre.post(profile);
    centre.post(Notification::renumDives);
    EXPECT_EQ(calls, "aba");
}

TEST(NotificationCentre, observersComeAndGoWhileItPosts) {
    NotificationCentre centre;
    std::string calls;
    std::optional<NotificationCentre::Subscription> self;
    std::optional<NotificationCentre::Subscription> next;
    std::optional<NotificationCentre::Subscription> newcomer;
    self = centre.subscribe(profile, [&] {
        calls += 's';
        next.reset();
        newcomer = centre.subscribe(profile, [&] { calls += 'n'; });
        self.reset();
    });
    next = centre.subscribe(profile, [&] { calls += 'x'; });
    const auto last = centre.subscribe(profile, [&] { calls += 'l'; });
    centre.post(profile);
    EXPECT_EQ(calls, "sl");
    centre.post(profile);
    EXPECT_EQ(calls, "slln");
}

TEST(NotificationCentre, subscriptionsOutliveIt) {
    std::optional<NotificationCentre::Subscription> subscription;
    {
        NotificationCentre centre;
        subscription = centre.subscribe(profile, [] {});
    }
    subscription.reset();
}

}  // namespace

}  // namespace tavrel
