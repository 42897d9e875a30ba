#pragma once

#include "desktop/notificationcentre.h"
#include "dives/plongee.h"

#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class QPlainTextEdit;
class QStackedLayout;

namespace tavrel {

class DiveForm;
class ProfileView;
struct Desktop;

/// A dive at a glance, below the table of a logbook: its profile, its key figures, its notes.
class DiveDetails : public QWidget {
    Q_OBJECT

public:
    explicit DiveDetails(Desktop& desktop, QWidget* parent = nullptr);
    ~DiveDetails() override;

    /// The dive from now on; none (null) tells how to come to one. Shown at once when the pane is in sight, else when
    /// it comes to be.
    void setDive(DivePointer dive);
    const DivePointer& dive() const { return dive_; }
    ProfileView& profile();

    QSize sizeHint() const override { return {1000, 310}; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// What shows a dive, made for the first one.
    void makePage();
    QWidget* newFigures();
    void showSample();
    void refresh();

    Desktop& desktop_;
    DivePointer dive_;
    bool outdated_ = true;
    QStackedLayout* pages_;
    std::unique_ptr<DiveForm> form_;  ///< reads the dive as the form would
    ProfileView* profile_ = nullptr;
    QLabel* sample_ = nullptr;
    std::vector<QLabel*> captions_;
    std::vector<QLabel*> figures_;
    QPlainTextEdit* notes_ = nullptr;
    std::vector<NotificationCentre::Subscription> subscriptions_;
};

}  // namespace tavrel
