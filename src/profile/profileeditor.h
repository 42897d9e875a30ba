#pragma once

#include "base/texts.h"
#include "profile/profileseries.h"

#include <QString>

#include <array>
#include <optional>

namespace tavrel {

/// A series as the editor shows it: its name for scripts, its place, and the names of its controls.
struct EditedSeries {
    const char* name;
    Series ProfileSeries::*series;
    bool real;
    Title title;
    const char* textField;
    const char* countField;
    const char* eraseSwitch;
};

/// The seven series in the editor's order.
inline constexpr std::array<EditedSeries, 7> editedSeries{{
    {"depth",
     &ProfileSeries::profilProfondeur,
     true,
     {"Profil", "Series depth"},
     "importProfondeurField",
     "countProfondeurField",
     "eraseProfondeurSwitch"},
    {"ascent",
     &ProfileSeries::ASC_Flag,
     false,
     {"Profil", "Series ascent"},
     "importASC_Field",
     "countASC_Field",
     "eraseASC_Switch"},
    {"slow",
     &ProfileSeries::SLOW_Flag,
     false,
     {"Profil", "Series slow"},
     "importSLOW_Field",
     "countSLOW_Field",
     "eraseSLOW_Switch"},
    {"ceiling",
     &ProfileSeries::CEIL_Flag,
     false,
     {"Profil", "Series ceiling"},
     "importCEIL_Field",
     "countCEIL_Field",
     "eraseCEIL_Switch"},
    {"surface",
     &ProfileSeries::SURF_Flag,
     false,
     {"Profil", "Series surface"},
     "importSURF_Field",
     "countSURF_Field",
     "eraseSURF_Switch"},
    {"gas",
     &ProfileSeries::GAZ_Flag,
     false,
     {"Profil", "Series gas"},
     "importGAZ_Field",
     "countGAZ_Field",
     "eraseGAZ_Switch"},
    {"pressure",
     &ProfileSeries::PRESS_Data,
     true,
     {"Profil", "Series pressure"},
     "importPRESS_Field",
     "countPRESS_Field",
     "erasePRESS_Switch"},
}};

/// The series of that name; null when there is none.
const EditedSeries* editedSeriesNamed(const QString& name);

/// What the editor shows of a series: its elements one to a line, nothing for a lone one.
QString editorText(const ProfileSeries& profile, const EditedSeries& edited);
/// How many elements there are, in words.
QString countText(const ProfileSeries& profile, const EditedSeries& edited);

/// New contents of series, in the editor's order; nothing for a series that stays as it is.
using SeriesTexts = std::array<std::optional<QString>, editedSeries.size()>;

/// Replaces each series that has a text by what the text holds.
void importProfil(ProfileSeries& profile, const SeriesTexts& texts);

}  // namespace tavrel
