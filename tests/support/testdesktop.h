#pragma once

#include "desktop/alerts.h"
#include "desktop/clock.h"
#include "desktop/desktop.h"
#include "desktop/notificationcentre.h"
#include "desktop/picklists.h"
#include "desktop/preferences.h"
#include "support/printing.h"

#include <QStringList>
#include <QTemporaryDir>

#include <deque>
#include <functional>
#include <vector>

namespace tavrel {

/// Records what the program says and answers its questions with the queued answers; an unexpected question fails the
/// test and is answered with the last button.
struct RecordingAlerts : Alerts {
    struct Question {
        QString message;
        QStringList buttons;
    };

    void answerNext(int button) { answers_.push_back(button); }
    void clear();

    void beep() override { ++beeps; }
    int ask(const QString& message, const QStringList& buttons) override;
    void tell(const QString& message) override { told.append(message); }
    void fail(const Failure& failure) override { failures.push_back(failure); }

    int beeps = 0;
    std::vector<Question> questions;
    QStringList told;
    std::vector<Failure> failures;
    std::function<void()> whileAsked;  ///< what happens elsewhere before a question is answered

private:
    std::deque<int> answers_;
};

/// A clock that stands still until it is set.
struct FixedClock : Clock {
    QDateTime now() const override { return moment; }

    QDateTime moment{QDate(2024, 6, 15), QTime(14, 30)};
};

/// A desktop of its own for a test: an empty preferences file in a temporary folder, with the defaults registered and
/// the lists filled as at a first start.
class TestDesktop {
public:
    TestDesktop();

    Desktop& desktop() { return desktop_; }
    /// A path in the test's own folder.
    QString path(const QString& name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;

public:
    Preferences preferences;
    NotificationCentre notifications;
    PickLists pickLists;
    RecordingAlerts alerts;
    FixedClock clock;

private:
    Desktop desktop_;
};

}  // namespace tavrel
