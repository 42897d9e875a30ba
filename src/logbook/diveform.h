#pragma once

#include "desktop/desktop.h"
#include "dives/gasreadings.h"
#include "dives/plongee.h"
#include "forms/recordform.h"
#include "logbook/divecontrols.h"

#include <QObject>
#include <QStringList>

#include <array>

namespace tavrel {

/// The dive form of a logbook without its window: how it is cleared, how a dive is shown in it, how a dive is built
/// from it with all corrections, and what follows from an entry. Whoever makes dives (the window, the importers, the
/// command line) types into it.
class DiveForm : public QObject {
    Q_OBJECT

public:
    using State = RecordForm<DiveControls, Plongee>;

    explicit DiveForm(Desktop& desktop);

    const DiveControls& controls() const { return controls_; }
    State& state() { return state_; }
    const State& state() const { return state_; }
    /// The working copies of the profile of the dive in the form.
    ProfileSeries& profile() { return _plg; }
    const ProfileSeries& profile() const { return _plg; }
    /// The choices of a combo whose list the logbook owns.
    const QStringList& ownList(DiveList list) const { return ownLists_[static_cast<std::size_t>(list)]; }

    /// Clears the form for a new dive: the defaults of the preferences, now as its date, an empty profile.
    void blankFields();
    /// Shows a dive: "-" for what was not given, the usual depths for stops without one.
    void editFields(const Plongee& dive);
    /// Builds a dive from the form. Values out of range are replaced, in the form too where it shows them; nothing is
    /// asked.
    Plongee addDiveToList();

    /// Refreshes what follows from the entries: captions, units, enabling, nitrogen.
    void updateUI();
    /// Sets the difficulty's word from the slider, then refreshes.
    void updateSlider();
    /// What the gas figures are worked out from, as it stands in the form.
    GasReadings gasReadings() const;
    /// Gas presets of the main tank.
    void razAir();
    void razNitrox();
    void razHeliox();
    /// Offers what was typed into a combo, or what it holds, to its shared list.
    void endEditing(int control, const QString& typed);
    void endEditing(int control) { endEditing(control, state_.at(control).text); }

Q_SIGNALS:
    /// updateUI ran because of an entry of the user's.
    void userEdited();

private:
    void userEntered(int control);
    void presetGas(qint64 oxygen, qint64 nitrogen, qint64 helium);

    Desktop& desktop_;
    const DiveControls& controls_;
    State state_;
    ProfileSeries _plg;
    std::array<QStringList, 4> ownLists_;
};

}  // namespace tavrel
