#pragma once

#include <QByteArray>

namespace tavrel {

/// A picture held by a record: the bytes of its TIFF file and its size in points; no bytes means no picture.
struct Image {
    QByteArray tiff;
    float width = 0;
    float height = 0;
};

}  // namespace tavrel
