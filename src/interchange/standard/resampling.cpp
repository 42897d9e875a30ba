#include "interchange/standard/resampling.h"

#include "profile/profileseries.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <unordered_map>

namespace tavrel {

namespace {

/// The sampling codes in the order of their intervals.
std::array<int, samplingIntervals.size()> codesByInterval() {
    std::array<int, samplingIntervals.size()> codes{};
    std::iota(codes.begin(), codes.end(), 0);
    std::sort(codes.begin(), codes.end(), [](int one, int other) {
        return samplingIntervals[static_cast<std::size_t>(one)] < samplingIntervals[static_cast<std::size_t>(other)];
    });
    return codes;
}

int secondsOf(int code) {
    return samplingIntervals[static_cast<std::size_t>(code)];
}

/// The step that most neighbours lie apart, whole seconds; the shorter of two that are as frequent.
double ownInterval(const std::vector<TimedValue>& points) {
    std::unordered_map<qint64, std::size_t> counts;
    for (std::size_t point = 1; point < points.size(); ++point) {
        const double step = std::round(points[point].seconds - points[point - 1].seconds);
        if (step >= 1) {
            ++counts[static_cast<qint64>(std::min(step, 1e6))];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end(), [](const auto& one, const auto& other) {
        return one.second != other.second ? one.second < other.second : one.first > other.first;
    });
    return most == counts.end() ? 1.0 : static_cast<double>(most->first);
}

/// How many samples reach the last point.
double samplesFor(double lastMoment, int seconds) {
    return std::ceil(lastMoment / seconds - 1e-6) + 1;
}

/// Walks along points in the order of time, telling the value between them.
class Walk {
public:
    explicit Walk(const std::vector<TimedValue>& points) : points_(points) {}

    double at(double moment) {
        while (next_ < points_.size() && points_[next_].seconds <= moment) {
            ++next_;
        }
        if (next_ == 0) {
            return points_.front().value;
        }
        const TimedValue& before = points_[next_ - 1];
        if (next_ == points_.size() || before.seconds == moment) {
            return before.value;
        }
        const TimedValue& after = points_[next_];
        const double part = (moment - before.seconds) / (after.seconds - before.seconds);
        return before.value + part * (after.value - before.value);
    }

private:
    const std::vector<TimedValue>& points_;
    std::size_t next_ = 0;
};

/// Gives a depth that stands out between the samples to the one nearest to it.
void keepExtremes(std::vector<double>& depths, const std::vector<TimedValue>& points, int seconds) {
    const std::vector<double> between = depths;
    const auto last = static_cast<double>(depths.size() - 1);
    for (const TimedValue& point : points) {
        const auto sample = static_cast<std::size_t>(std::clamp(std::round(point.seconds / seconds), 0.0, last));
        const double before = between[sample == 0 ? 0 : sample - 1];
        const double after = between[std::min(sample + 1, depths.size() - 1)];
        if (point.value > std::max({before, between[sample], after})) {
            depths[sample] = std::max(depths[sample], point.value);
        } else if (point.value < std::min({before, between[sample], after})) {
            depths[sample] = std::min(depths[sample], point.value);
        }
    }
}

/// How far samples and points lie off each other, at the moments of both.
double deviation(const std::vector<double>& depths, const std::vector<TimedValue>& points, int seconds) {
    double most = 0;
    Walk walk(points);
    for (std::size_t sample = 0; sample < depths.size(); ++sample) {
        most = std::max(most, std::abs(walk.at(static_cast<double>(sample) * seconds) - depths[sample]));
    }
    for (const TimedValue& point : points) {
        const double place = point.seconds / seconds;
        const auto before = std::min(static_cast<std::size_t>(place), depths.size() - 1);
        const auto after = std::min(before + 1, depths.size() - 1);
        const double there = depths[before] + (place - static_cast<double>(before)) * (depths[after] - depths[before]);
        most = std::max(most, std::abs(there - point.value));
    }
    return most;
}

}  // namespace

std::size_t Resampled::sampleAt(double moment) const {
    const auto last = static_cast<double>(depths.size()) - 1;
    return static_cast<std::size_t>(std::clamp(std::round(moment / seconds), 0.0, std::max(last, 0.0)));
}

std::vector<double> valuesAt(const std::vector<TimedValue>& points, int seconds, std::size_t samples) {
    std::vector<double> values;
    if (points.empty()) {
        return values;
    }
    values.reserve(samples);
    Walk walk(points);
    for (std::size_t sample = 0; sample < samples; ++sample) {
        values.push_back(walk.at(static_cast<double>(sample) * seconds));
    }
    return values;
}

std::optional<Resampled> resample(const std::vector<TimedValue>& points) {
    if (points.empty()) {
        return std::nullopt;
    }
    static const auto codes = codesByInterval();
    const double own = ownInterval(points);
    const auto fitting = std::find_if(codes.begin(), codes.end(), [&](int code) { return secondsOf(code) >= own; });
    std::optional<Resampled> best;
    for (auto choice = fitting == codes.end() ? codes.end() : fitting + 1; choice != codes.begin();) {
        --choice;
        const int seconds = secondsOf(*choice);
        const double samples = samplesFor(points.back().seconds, seconds);
        if (!(samples <= static_cast<double>(mostSamples))) {
            break;
        }
        Resampled made{*choice, seconds, valuesAt(points, seconds, static_cast<std::size_t>(samples))};
        keepExtremes(made.depths, points, seconds);
        const double off = deviation(made.depths, points, seconds);
        best = std::move(made);
        if (off <= resamplingTolerance) {
            break;
        }
    }
    if (best) {
        return best;
    }
    // Too long for its own interval: the finest that ends in time.
    for (const int code : codes) {
        const double samples = samplesFor(points.back().seconds, secondsOf(code));
        if (samples <= static_cast<double>(mostSamples)) {
            Resampled made{code, secondsOf(code), valuesAt(points, secondsOf(code), static_cast<std::size_t>(samples))};
            keepExtremes(made.depths, points, made.seconds);
            return made;
        }
    }
    return std::nullopt;
}

}  // namespace tavrel
