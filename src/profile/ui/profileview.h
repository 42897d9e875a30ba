#pragma once

#include "drawing/ui/drawingview.h"
#include "profile/profilegeometry.h"
#include "profile/profilereadout.h"
#include "profile/profilesample.h"
#include "profile/profilestyle.h"

#include <memory>
#include <optional>

namespace tavrel {

/// The picture of a profile, with a marker on one of its samples that follows the pointer and the arrow keys: left and
/// right go to the sample beside, with control to the tenth, home and end to the first and the last.
class ProfileView : public DrawingView {
    Q_OBJECT

public:
    explicit ProfileView(QWidget* parent = nullptr);

    /// Shows a profile. The title stands for it to screen readers.
    void setProfile(const ProfileDive& dive, const ProfileStyle& style, const QString& title);

    const ProfileScale& scale() const { return geometry_.scale; }
    /// The sample that is marked; nothing while none is, or without a profile.
    std::optional<int> markedSample() const { return marked_; }
    void markSample(int sample);
    /// The marked sample's own values in words; empty while none is.
    QString markedWords() const;

Q_SIGNALS:
    /// The pointer moved to a point of the picture.
    void pointerMoved(const QPointF& point);
    void sampleMarked();

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintOver(QPainter& painter) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    double lettersThatFit() const;
    void redraw();

    ProfileGeometry geometry_;
    ProfileDive dive_;
    ProfileStyle style_;
    QString title_;
    double letters_ = 1;
    std::shared_ptr<const ProfileSamples> samples_;
    std::optional<int> marked_;
};

}  // namespace tavrel
