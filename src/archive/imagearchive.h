#pragma once

#include "archive/storedobject.h"
#include "records/image.h"

namespace tavrel {

/// The image object of a picture, as it is written.
StoredObject imageObject(const Image& image);

/// What is kept of an image object for writing it as it was, beside the picture found in it: nothing when it would be
/// written like that anyway.
QByteArray layoutToKeep(const StoredObject& object, const Image& found);

}  // namespace tavrel
