#include "platform/colorarchive.h"

#include "platform/typedstreamreader.h"
#include "platform/typedstreamwriter.h"

namespace tavrel {

QByteArray archivedColor(const QColor& color) {
    const QColor rgb = color.toRgb();
    TypedStreamWriter writer;
    if (rgb.redF() == rgb.greenF() && rgb.greenF() == rgb.blueF()) {
        const float components[] = {rgb.redF(), rgb.alphaF()};
        writer.writeRootColor(components);
    } else {
        const float components[] = {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()};
        writer.writeRootColor(components);
    }
    return writer.take();
}

QColor unarchivedColor(const QByteArray& archive) {
    TypedStreamReader reader(archive);
    return reader.readRootColor();
}

}  // namespace tavrel
