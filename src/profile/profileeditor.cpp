#include "profile/profileeditor.h"

#include "profile/seriestext.h"

#include <algorithm>

namespace tavrel {

const EditedSeries* editedSeriesNamed(const QString& name) {
    const auto* found = std::find_if(editedSeries.begin(), editedSeries.end(),
                                     [&](const EditedSeries& it) { return name == QLatin1StringView(it.name); });
    return found == editedSeries.end() ? nullptr : found;
}

QString editorText(const ProfileSeries& profile, const EditedSeries& edited) {
    const Series& series = profile.*edited.series;
    return series.size() >= 2 ? editProfil(series, edited.real ? 1 : 0) : QString();
}

QString countText(const ProfileSeries& profile, const EditedSeries& edited) {
    const std::size_t count = (profile.*edited.series).size();
    return count > 1 ? textWith("Carnet", "Datas", count) : text("Carnet", "No datas");
}

void importProfil(ProfileSeries& profile, const SeriesTexts& texts) {
    for (std::size_t index = 0; index < texts.size(); ++index) {
        if (texts[index]) {
            const EditedSeries& edited = editedSeries[index];
            profile.*edited.series = seriesFromText(*texts[index], edited.real);
        }
    }
}

}  // namespace tavrel
