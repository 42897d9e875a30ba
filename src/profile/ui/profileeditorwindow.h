#pragma once

#include "profile/profileeditor.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;
class QPlainTextEdit;

namespace tavrel {

class Preferences;

/// The editor of a profile's series: each as a text, with the count of its elements and a switch; importing replaces
/// those series whose switch is on by what their text holds.
class ProfileEditorWindow : public QWidget {
    Q_OBJECT

public:
    explicit ProfileEditorWindow(Preferences& preferences);

    /// Shows the series of a dive, all switches off.
    void updateProfilInfo(const ProfileSeries& profile, qint32 diveNumber);
    /// Another dive is the current one: shows its series, unless some are marked, which then are for that dive.
    void followDive(const ProfileSeries& profile, qint32 diveNumber);
    /// Empties all texts and turns all switches on.
    void selectAllSwitches();
    /// The texts of the series whose switch is on.
    SeriesTexts chosenTexts() const;

Q_SIGNALS:
    void importRequested(const tavrel::SeriesTexts& texts);

private:
    struct Column {
        QPlainTextEdit* text;
        QLabel* count;
        QCheckBox* erase;
    };

    Column newColumn(const EditedSeries& edited);
    void showTexts();
    void setDiveNumber(qint32 number);
    bool anyMarked() const;
    void toggleAll(bool on);

    ProfileSeries shown_;
    std::array<Column, editedSeries.size()> columns_;
    QCheckBox* eraseAllSwitch_;
};

}  // namespace tavrel
