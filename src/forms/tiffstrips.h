#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <span>

namespace tavrel::tiff {

// Each fills the rows of a strip from its stored bytes; false when these are damaged or hold fewer.

bool unpackPlain(QByteArrayView strip, std::span<uchar> rows);
/// Runs: a count and so many bytes, or one byte so many times.
bool unpackBits(QByteArrayView strip, std::span<uchar> rows);
/// Codes of 9 to 12 bits, highest bit first, that name strings met before.
bool unpackLzw(QByteArrayView strip, std::span<uchar> rows);

}  // namespace tavrel::tiff
