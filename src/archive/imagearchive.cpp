#include "archive/imagearchive.h"

#include <string>

namespace tavrel {

namespace {

using Class = StoredObject::Class;
using Group = StoredObject::Group;
using Value = StoredObject::Value;

const Class rootClass{"NSObject", 0};
const Class imageClass{"NSImage", 46};
const Class imageRepClass{"NSImageRep", 17};
const Class bitmapClass{"NSBitmapImageRep", 17};
const Class colorClass{"NSColor", 0};

constexpr std::int64_t nil = -1;
enum Place : std::int64_t { imagePlace, bitmapPlace, backgroundPlace };
constexpr std::int64_t calibratedWhite = 3;

Group object(std::int64_t place) {
    return {"@", {{'@', place}}};
}

Group byte(std::int64_t value) {
    return {"c", {{'c', value}}};
}

Group floats(float first, float second) {
    return {"ff", {{'f', 0, static_cast<double>(first)}, {'f', 0, static_cast<double>(second)}}};
}

}  // namespace

StoredObject imageObject(const Image& image) {
    StoredObject stored;
    stored.nodes.resize(3);
    auto& groups = stored.nodes[imagePlace].groups;
    stored.nodes[imagePlace].chain = {imageClass, rootClass};
    groups.push_back(object(nil));  // no name
    for (const std::int64_t flag : {0, 0, 1, 0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0}) {
        groups.push_back(byte(flag));
    }
    groups.push_back(floats(image.width, image.height));
    groups.push_back({"s", {{'s', 1}}});  // one representation
    groups.push_back(byte(0));
    groups.push_back(object(bitmapPlace));
    groups.push_back(object(backgroundPlace));
    groups.push_back(object(nil));

    const qsizetype size = image.tiff.size();
    stored.nodes[bitmapPlace] = {
        {bitmapClass, imageRepClass, rootClass},
        {{"i", {{'i', size}}}, {'[' + QByteArray::number(size) + "c]", {{StoredObject::rawBytes, 0, 0, image.tiff}}}}};
    stored.nodes[backgroundPlace] = {{colorClass, rootClass}, {byte(calibratedWhite), floats(0, 0)}};
    return stored;
}

QByteArray layoutToKeep(const StoredObject& object, const Image& found) {
    return !found.tiff.isEmpty() && object == imageObject(found) ? QByteArray() : streamOf(object);
}

}  // namespace tavrel
