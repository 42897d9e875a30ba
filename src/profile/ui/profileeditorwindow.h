#pragma once

#include "profile/profileeditor.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;
class QPlainTextEdit;

namespace tavrel {

struct Desktop;

/// The editor of a profile's series: each as a text, with the count of its elements and a switch; importing replaces
/// those series whose switch is on by what their text holds.
class ProfileEditorWindow : public QWidget {
    Q_OBJECT

public:
    explicit ProfileEditorWindow(Desktop& desktop);

    /// Shows the series of a dive, all switches off.
    void updateProfilInfo(const ProfileSeries& profile, qint32 diveNumber);
    /// Another dive is the current one: shows its series. A marked text stays, and says which dive it was typed for.
    void followDive(const ProfileSeries& profile, qint32 diveNumber);
    /// Empties all texts and turns all switches on.
    void selectAllSwitches();
    /// Asks what is to become of marked texts: imported, discarded, or kept by a user who cancels. False for the last.
    bool settle();
    /// Shows the dive's own series again.
    void discard() { showTexts(); }
    /// The texts of the series whose switch is on.
    SeriesTexts chosenTexts() const;

Q_SIGNALS:
    void importRequested(const tavrel::SeriesTexts& texts);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Column {
        QPlainTextEdit* text;
        QLabel* count;
        QCheckBox* erase;
        qint32 dive;  // that it was marked for
    };

    Column newColumn(const EditedSeries& edited);
    void showTexts();
    void showText(std::size_t index);
    void setDiveNumber(qint32 number);
    bool anyMarked() const;
    /// A marked column that was typed for another dive than the one shown; null when there is none.
    Column* typedElsewhere();
    QString importQuestion();
    void importMarked();
    void toggleAll(bool on);

    Desktop& desktop_;
    ProfileSeries shown_;
    qint32 diveNumber_ = 0;
    std::array<Column, editedSeries.size()> columns_;
    QCheckBox* eraseAllSwitch_;
};

}  // namespace tavrel
