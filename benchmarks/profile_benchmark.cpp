#include "benchmarks/ratio.h"
#include "profile/profiledrawing.h"
#include "profile/seriestext.h"

#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <cmath>

// The geometry of a profile and its painting at 100, 1,000 and 10,000 samples, each against a bare loop that scales the
// same depths: the geometry grows with the samples, the painting with the picture's pixels.

namespace tavrel {

namespace {

ProfileDive diveOf(std::size_t samples) {
    std::vector<double> depths(samples);
    std::vector<double> pressures(samples);
    std::vector<qint32> none(samples);
    std::vector<qint32> few(samples);
    for (std::size_t sample = 0; sample < samples; ++sample) {
        const double part = static_cast<double>(sample) / static_cast<double>(samples);
        depths[sample] = 30 * std::sin(3.1 * part) + std::sin(static_cast<double>(sample) * 0.3);
        pressures[sample] = 200 - 150 * part;
        few[sample] = sample % 50 == 7 ? 1 : 0;
    }
    ProfileDive dive;
    dive.series.profilProfondeur = Series::ofReals(depths);
    dive.series.PRESS_Data = Series::ofReals(pressures);
    dive.series.ASC_Flag = dive.series.CEIL_Flag = dive.series.SURF_Flag = dive.series.GAZ_Flag =
        Series::ofIntegers(none);
    dive.series.SLOW_Flag = Series::ofIntegers(few);
    return dive;
}

void scaleDepths(const std::vector<double>& depths, std::vector<QPointF>& points) {
    double deepest = 0;
    for (const double depth : depths) {
        deepest = std::max(deepest, depth);
    }
    for (std::size_t sample = 0; sample < depths.size(); ++sample) {
        points[sample] = {30 + static_cast<double>(sample) * 650 / static_cast<double>(depths.size()),
                          583 - depths[sample] * 430 / (deepest + 1)};
    }
    benchmark::DoNotOptimize(points.data());
}

template <class Work>
void againstBareLoop(benchmark::State& state, const ProfileDive& dive, Work work) {
    const std::vector<double> depths = realsOf(dive.series.profilProfondeur);
    std::vector<QPointF> points(depths.size());
    againstReference(state, work, [&] { scaleDepths(depths, points); });
}

void geometry(benchmark::State& state) {
    const ProfileDive dive = diveOf(static_cast<std::size_t>(state.range(0)));
    const ProfileStyle style;
    againstBareLoop(state, dive, [&] { benchmark::DoNotOptimize(profileGeometry(dive, style)); });
}

void drawing(benchmark::State& state) {
    const ProfileDive dive = diveOf(static_cast<std::size_t>(state.range(0)));
    const ProfileStyle style;
    againstBareLoop(state, dive, [&] { benchmark::DoNotOptimize(profileDrawing(dive, style)); });
}

void painting(benchmark::State& state) {
    const ProfileDive dive = diveOf(static_cast<std::size_t>(state.range(0)));
    const Drawing drawing = profileDrawing(dive, ProfileStyle());
    QImage image((drawing.size() * 2).toSize(), QImage::Format_ARGB32_Premultiplied);
    againstBareLoop(state, dive, [&] {
        QPainter painter(&image);
        drawing.paint(painter, image.rect());
    });
}

BENCHMARK(geometry)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(drawing)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(painting)->Arg(100)->Arg(1000)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace tavrel
