#pragma once

#include "book/bookform.h"
#include "dives/gasreadings.h"
#include "dives/plongee.h"
#include "logbook/divecontrols.h"

#include <QDateTime>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace tavrel {

/// The dive form of a logbook without its window.
class DiveForm : public RecordForm<DiveControls, Plongee> {
    Q_OBJECT

public:
    explicit DiveForm(Desktop& desktop);

    /// The working copies of the profile of the dive in the form.
    ProfileSeries& profile() { return _plg; }
    const ProfileSeries& profile() const { return _plg; }

    /// Clears the form for a new dive: the defaults of the preferences, now as its date, an empty profile.
    void blankFields() { BookForm::blankFields(0); }
    /// The dive that the form holds, corrected.
    Plongee addDiveToList() { return *builtRecord(); }

    /// Sets the difficulty's word from the slider, then refreshes.
    void updateSlider();
    /// Shows how much pressure the two tanks lost.
    void calcDeltaPressure() { calcDeltaPressure(gasReadings()); }
    /// What the gas figures are worked out from, as it stands in the form.
    GasReadings gasReadings() const;
    /// Gas presets of the main tank.
    void razAir();
    void razNitrox();
    void razHeliox();

    /// Where the form finds the last dive at a site; null where there is none.
    void findSitesWith(std::function<std::shared_ptr<const Plongee>(const QString& site)> lastDiveAt) {
        lastDiveAt_ = std::move(lastDiveAt);
    }
    /// Takes tanks, gas, equipment, buddies and place of a new dive from the one before it, after whose end the surface
    /// interval is counted, up to two days.
    void startFrom(const Plongee& previous);

    /// A site that was dived fills place, country and position where these are empty.
    void endEditing(int control, const QString& typed) override;
    QStringList ownList(int list) const override;
    /// Also a day to come, and a tank or bottle with more gas at the end than at the start.
    QString hint(int control) const override;
    bool holdsBeside(const QString& field) const override;
    /// A series of the profile, as numbers with commas.
    Expected<void> enterBeside(const QString& field, const QString& value) override;
    /// The profile, as a dive that has nothing else.
    std::function<QByteArray()> entriesBeside() const override;

Q_SIGNALS:
    /// The user wants to see the consumption of the dive in the form.
    void consumptionRequested();

protected:
    void clear(int count) override;
    /// Shows a dive: "-" for what was not given, the usual depths for stops without one.
    void show(const Plongee& dive) override;
    void correct() override;
    void complete(Plongee& dive) override;
    /// Captions, units, enabling, and what is worked out from the entries.
    void refresh() override;
    void entered(int control) override;
    bool differsBeside() const override;
    void rememberBeside() override;
    void enterBesideAgain(QByteArrayView entries) override;

private:
    void nameDifficulty();
    void fillFromSite(const QString& site);
    void countSurfaceInterval();
    void calcDeltaPressure(const GasReadings& readings);
    void refreshGas(const GasReadings& readings);
    bool gainsGas(int endPressure) const;
    void presetGas(qint64 oxygen, qint64 nitrogen, qint64 helium);

    const DiveControls& controls_;
    ProfileSeries _plg;
    ProfileSeries remembered_;
    std::function<std::shared_ptr<const Plongee>(const QString&)> lastDiveAt_;
    QString filledFrom_;                 ///< what the hint beside the site says
    std::optional<QDateTime> surfaced_;  ///< the end of the dive before a new one
};

}  // namespace tavrel
