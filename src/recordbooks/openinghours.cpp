#include "recordbooks/openinghours.h"

#include <QFileInfo>

namespace tavrel {

void addWeek(CardBuilder& card, const OpeningHours& record, std::span<const Title, daysInWeek> labels) {
    static constexpr std::array<const char*, hoursInDay> before{"", " - ", " / ", " - "};
    for (std::size_t day = 0; day < daysInWeek; ++day) {
        QString hours;
        for (std::size_t part = 0; part < hoursInDay; ++part) {
            const Field field = openingHourItems[day * hoursInDay + part].field();
            hours += QLatin1StringView(before[part]) + *field.get<QString>(record);
        }
        card.entry(labels[day], hours);
    }
}

QString folderOf(const QString& file) {
    return file.isEmpty() ? QString() : QFileInfo(file).path();
}

}  // namespace tavrel
