#include "archive/colorarchive.h"
#include "archive/recordarchive.h"
#include "archive/typedstreamtree.h"

#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Walks arbitrary bytes as a typed stream. What can be counted can be shown, and what cannot shows nothing.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tavrel;
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    std::size_t written = 0;
    JsonWriter json([&written](std::string_view piece) { written += piece.size(); });
    const bool readable = inspectStream(bytes).has_value();
    const bool shown = writeStreamJson(json, bytes).has_value();
    if (shown != readable || (written > 0) != shown) {
        std::abort();
    }
    static_cast<void>(recordClassOf(bytes));
    static_cast<void>(unarchivedColor(bytes.toByteArray()));
    return 0;
}
