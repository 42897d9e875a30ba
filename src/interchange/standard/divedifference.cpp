#include "interchange/standard/divedifference.h"

#include "calculators/position.h"

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

bool isNoText(const QString& text) {
    return text.isEmpty() || text == QLatin1String("-") || text == QLatin1String("--:--");
}

bool isNoSeries(const Series& series) {
    if (series.size() <= 1) {
        return true;
    }
    for (std::size_t index = 0; index < series.size(); ++index) {
        if (series.real(index) != 0) {
            return false;
        }
    }
    return true;
}

bool sameNumber(double one, double other) {
    return one == other || (std::isnan(one) && std::isnan(other));
}

bool isNoPosition(const QString& text) {
    // The form's template of a position is one with nothing but zeros.
    return std::none_of(text.begin(), text.end(), [](QChar sign) { return sign >= u'1' && sign <= u'9'; });
}

/// Compares the values of one field.
class Comparison {
public:
    Comparison(std::string_view key, const Plongee& one, const Plongee& other) : key_(key), one_(one), other_(other) {}

    bool operator()(qint32 left, qint32 right) const {
        const bool noDatum = key_ == "gpsSystem" && isNoPosition(one_.gps) && isNoPosition(other_.gps);
        return left == right || noDatum;
    }
    bool operator()(float left, float right) const {
        return sameNumber(static_cast<double>(left), static_cast<double>(right));
    }
    bool operator()(const QString& left, const QString& right) const {
        const bool noPosition = key_ == "gps" && isNoPosition(left) && isNoPosition(right);
        return left == right || (isNoText(left) && isNoText(right)) || noPosition;
    }
    bool operator()(const Date& left, const Date& right) const {
        if (key_ == "heure") {
            return clockOf(left) == clockOf(right);
        }
        return left.toDateTime().date() == right.toDateTime().date();
    }
    bool operator()(const Series& left, const Series& right) const {
        if (isNoSeries(left) && isNoSeries(right)) {
            return key_ != "profilProfondeur" ||
                   std::max<std::size_t>(left.size(), 1) == std::max<std::size_t>(right.size(), 1);
        }
        if (left.size() != right.size()) {
            return false;
        }
        for (std::size_t index = 0; index < left.size(); ++index) {
            if (!sameNumber(left.real(index), right.real(index))) {
                return false;
            }
        }
        return true;
    }
    bool operator()(const Image&, const Image&) const { return true; }
    template <class Left, class Right>
    bool operator()(const Left&, const Right&) const {
        return false;
    }

private:
    /// Midnight without a time, to the second.
    static QTime clockOf(const Date& date) {
        const QTime time = date.toDateTime().time();
        return time.isValid() ? QTime(time.hour(), time.minute(), time.second()) : QTime(0, 0);
    }

    std::string_view key_;
    const Plongee& one_;
    const Plongee& other_;
};

}  // namespace

std::vector<std::string_view> differingFields(const Plongee& one, const Plongee& other) {
    std::vector<std::string_view> keys;
    for (const auto& item : Plongee::layout().items) {
        if (item.travel() != Travel::memoryOnly &&
            !std::visit(Comparison(item.key(), one, other), item.field().value(one), item.field().value(other))) {
            keys.push_back(item.key());
        }
    }
    return keys;
}

}  // namespace tavrel
