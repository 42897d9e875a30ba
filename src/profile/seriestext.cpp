#include "profile/seriestext.h"

#include "base/numbers.h"

#include <QList>

#include <limits>

namespace tavrel {

namespace {

template <class Value>
std::vector<double> widened(std::span<const Value> values) {
    return {values.begin(), values.end()};
}

QString numberText(const Number& number) {
    return number.isReal() ? shortestText(number.real) : QString::number(number.integer);
}

}  // namespace

QString editProfil(const Series& series, int precision) {
    QString text;
    std::string fixed;
    for (std::size_t index = 0; index < series.size(); ++index) {
        if (index > 0) {
            text += u'\n';
        }
        if (precision == 1) {
            fixed.clear();
            appendFixed(fixed, series.real(index), 1);
            text += QLatin1StringView(fixed.data(), static_cast<qsizetype>(fixed.size()));
        } else if (precision == 0) {
            text += numberText(series.at(index));
        }
    }
    return text;
}

Series seriesFromText(QStringView text, bool real) {
    Series series = Series::empty();
    for (const QStringView line : text.split(u'\n')) {
        if (!real) {
            series.appendInteger(integerValue(line));
        } else if (startsWithNumber(line)) {
            series.appendReal(doubleValue(line));
        } else {
            series.appendReal(std::numeric_limits<double>::quiet_NaN());
        }
    }
    return series;
}

std::vector<double> realsOf(const Series& series) {
    if (const auto reals = series.block<double>(); !reals.empty()) {
        return widened(reals);
    }
    if (const auto singles = series.block<float>(); !singles.empty()) {
        return widened(singles);
    }
    if (const auto small = series.block<std::int8_t>(); !small.empty()) {
        return widened(small);
    }
    std::vector<double> values;
    values.reserve(series.size());
    for (std::size_t index = 0; index < series.size(); ++index) {
        values.push_back(series.real(index));
    }
    return values;
}

}  // namespace tavrel
