#pragma once

#include "drawing/datatable.h"
#include "profile/profiledive.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace tavrel {

/// What is known of one moment of a dive.
struct ProfileSample {
    int number = 0;                  ///< from 0
    double minutes = 0;              ///< since the start, by the sampling interval
    double depth = 0;                ///< metres
    std::optional<double> pressure;  ///< bar, when one was recorded for it
    qint32 oxygen = 0;               ///< of the gas breathed, percent
    std::optional<double> ppO2;      ///< bar; nothing when depth or gas are not known
    QString events;                  ///< the flags in words
};

/// The samples of a dive one by one.
class ProfileSamples {
public:
    explicit ProfileSamples(ProfileDive dive);

    int count() const { return dive_.samples(); }
    /// A sample within 0 to count() - 1.
    ProfileSample at(int number) const;
    /// Its own values in words: "2:30  12.4 m  180 bar  ppO2 0.72 bar".
    QString words(int number) const;

private:
    ProfileDive dive_;
    std::vector<qint32> oxygen_;  ///< breathed at each sample, percent
};

/// The samples as a table.
DataTable sampleTable(std::shared_ptr<const ProfileSamples> samples);

}  // namespace tavrel
