#include "archive/colorarchive.h"

#include "archive/typedstreamreader.h"
#include "archive/typedstreamwriter.h"

#include <QRgba64>

#include <cmath>
#include <span>

namespace tavrel {

namespace {

/// The shortest decimal of a component that QColor holds as this level: 0.5 for 32768, not 0.50000763.
float component(quint16 level) {
    constexpr double highest = 65535;
    for (int parts = 1; parts < highest; parts *= 10) {
        const double decimal = std::round(level / highest * parts) / parts;
        if (std::lround(decimal * highest) == level) {
            return static_cast<float>(decimal);
        }
    }
    return static_cast<float>(level / highest);
}

QByteArray archiveOf(std::span<const float> components) {
    TypedStreamWriter writer;
    writer.writeRootColor(components);
    return writer.take();
}

}  // namespace

QByteArray archivedColor(const QColor& color) {
    const QRgba64 rgb = color.rgba64();
    const float components[] = {component(rgb.red()), component(rgb.green()), component(rgb.blue()),
                                component(rgb.alpha())};
    return archiveOf(components);
}

QByteArray archivedWhite(float level) {
    const float components[] = {level, 1};
    return archiveOf(components);
}

QColor unarchivedColor(const QByteArray& archive) {
    TypedStreamReader reader(archive);
    return reader.readRootColor();
}

}  // namespace tavrel
