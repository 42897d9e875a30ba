#pragma once

#include <QByteArray>

namespace tavrel {

/// A picture held by a record: the bytes of its TIFF file and its size in points. One that was archived in another way
/// than new ones are keeps its object besides, and may have no such bytes at all. Without either it is no picture.
struct Image {
    QByteArray tiff;
    float width = 0;
    float height = 0;
    QByteArray stored;  ///< the object as a typed stream of its own; it is written instead of the bytes

    bool isNull() const { return tiff.isEmpty() && stored.isEmpty(); }
    friend bool operator==(const Image& left, const Image& right) = default;
};

}  // namespace tavrel
