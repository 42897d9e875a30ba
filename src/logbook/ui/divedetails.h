#pragma once

#include "desktop/notificationcentre.h"
#include "dives/plongee.h"
#include "drawing/drawing.h"

#include <QWidget>

#include <vector>

class QLabel;
class QPlainTextEdit;
class QStackedLayout;

namespace tavrel {

struct Desktop;

/// A dive at a glance, below the table of a logbook: its profile, its key figures, its notes.
class DiveDetails : public QWidget {
    Q_OBJECT

public:
    explicit DiveDetails(Desktop& desktop, QWidget* parent = nullptr);

    /// The dive from now on; none (null) shows what to do for one. Shown at once when the pane is in sight, else when
    /// it comes to be.
    void setDive(DivePointer dive);
    const DivePointer& dive() const { return dive_; }
    const Drawing& profile() const;

    QSize sizeHint() const override { return {1000, 260}; }
    QSize minimumSizeHint() const override { return {400, 120}; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    class Picture;

    void addFigures();
    void refresh();

    Desktop& desktop_;
    DivePointer dive_;
    bool outdated_ = true;
    QStackedLayout* pages_;
    Picture* picture_;
    std::vector<QLabel*> captions_;
    std::vector<QLabel*> figures_;
    QPlainTextEdit* notes_;
    std::vector<NotificationCentre::Subscription> subscriptions_;
};

}  // namespace tavrel
