#pragma once

#include "profile/profiledive.h"
#include "profile/profilestyle.h"

#include <QKeySequence>
#include <QPointF>
#include <QWidget>

#include <functional>
#include <optional>

class QComboBox;
class QLabel;

namespace tavrel {

struct Desktop;
struct PrintJob;
class ProfileView;

/// The window of a dive's profile: the picture, what the pointer reads on it, the marked sample's own values, and the
/// sampling interval that the read-out's time goes by.
class ProfileWindow : public QWidget {
    Q_OBJECT

public:
    explicit ProfileWindow(Desktop& desktop);

    /// Shows a profile under a title; the interval chosen becomes the dive's own.
    void setProfile(const ProfileDive& dive, const ProfileStyle& style, const QString& title);

    ProfileView& view() { return *view_; }
    /// What the pointer reads, and below it the marked sample.
    QString readOut() const;
    QString sampleValues() const;

    /// Asks for a printer, then prints the picture, landscape.
    void print();
    void preview();

private:
    PrintJob printJob() const;
    void showReadOut();
    void addShortcut(QKeySequence::StandardKey keys, std::function<void()> command);

    Desktop& desktop_;
    ProfileView* view_;
    QLabel* readOut_;
    QLabel* sample_;
    QComboBox* samplingRatePopUp_;
    std::optional<QPointF> pointer_;  ///< where it was last, in the picture
};

}  // namespace tavrel
