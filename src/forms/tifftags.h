#pragma once

#include <QtGlobal>

namespace tavrel::tiff {

enum Tag : quint16 {
    imageWidth = 256,
    imageLength = 257,
    bitsPerSample = 258,
    compression = 259,
    photometric = 262,
    fillOrder = 266,
    stripOffsets = 273,
    orientation = 274,
    samplesPerPixel = 277,
    rowsPerStrip = 278,
    stripByteCounts = 279,
    xResolution = 282,
    yResolution = 283,
    planarConfiguration = 284,
    resolutionUnit = 296,
    predictor = 317,
    colorMap = 320,
    extraSamples = 338,
    sampleFormat = 339,
    iccProfile = 34675,
};

enum Type : quint16 { byteType = 1, shortType = 3, longType = 4, rationalType = 5, undefinedType = 7 };

enum Compression { plain = 1, lzw = 5, packBits = 32773 };
enum Photometric { whiteIsZero = 0, blackIsZero = 1, rgb = 2, palette = 3, cmyk = 5 };
enum ExtraSample { unspecified = 0, premultiplied = 1, straight = 2 };
enum ResolutionUnit { inch = 2, centimetre = 3 };

}  // namespace tavrel::tiff
