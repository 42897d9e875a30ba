#pragma once

#include <QByteArray>

namespace tavrel {

/// A picture held by a record: the bytes of its TIFF file and its size in points; no bytes means no picture.
struct Image {
    QByteArray tiff;
    float width = 0;
    float height = 0;

    bool isNull() const { return tiff.isEmpty(); }
    friend bool operator==(const Image& left, const Image& right) = default;
};

}  // namespace tavrel
