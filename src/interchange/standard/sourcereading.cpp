#include "interchange/standard/sourcereading.h"

#include "archive/recordarchive.h"
#include "base/texts.h"
#include "interchange/standard/filevalues.h"
#include "interchange/standard/udcfreading.h"
#include "interchange/standard/uddfreading.h"

namespace tavrel {

namespace {

constexpr std::size_t thousandths = 1000;
constexpr std::size_t thousandthsOfParsing = 600;

bool isTypedStream(QByteArrayView bytes) {
    const QByteArrayView start = bytes.first(std::min<qsizetype>(bytes.size(), 16));
    return start.contains("streamtyped") || start.contains("typedstream");
}

bool looksLikeXml(QByteArrayView bytes) {
    const QByteArrayView start = bytes.first(std::min<qsizetype>(bytes.size(), 200)).trimmed();
    return start.contains('<') && (start.startsWith('<') || start.startsWith("\xEF\xBB\xBF<") || start.contains('\0'));
}

Expected<Source> readLogbook(QByteArrayView bytes, const Progress& progress) {
    const auto recordClass = recordClassOf(bytes);
    if (!recordClass) {
        return tl::unexpected(recordClass.error());
    }
    if (!recordClass->isEmpty() && *recordClass != QLatin1StringView("Plongee")) {
        return failure(text("Interchange", "No dives of this kind"), *recordClass);
    }
    return readRecords(bytes, Plongee::layout(), progress).map([](auto&& file) {
        Source source{SourceKind::logbook, {}};
        source.found.asStored = true;
        for (const auto& record : file.records) {
            FoundDive found;
            found.dive = asDive(record);
            source.found.dives.push_back(std::move(found));
        }
        return source;
    });
}

FoundDives readTree(SourceKind kind, XmlElement root, const Progress& progress) {
    return kind == SourceKind::uddf || kind == SourceKind::olderUddf ? readUddf(root, progress)
                                                                     : readUdcf(root, progress);
}

}  // namespace

std::optional<SourceKind> kindOfTree(XmlTree& tree) {
    const XmlElement root = tree.root();
    if (isUdcf(root) || !isNamed(root, "uddf")) {
        return kindOfRoot(root);
    }
    // UDDF is written in small letters, but not by everyone.
    tree.lowerNames();
    return kindOfRoot(tree.root());
}

std::optional<SourceKind> kindOfRoot(XmlElement root) {
    if (isUdcf(root)) {
        const bool upperCase = root.first("repgroup").isNull();
        return upperCase ? SourceKind::udcf : SourceKind::handheld;
    }
    if (root.name() != "uddf") {
        return std::nullopt;
    }
    if (const auto version = numberOf(root.attribute("version"))) {
        return *version >= 3 ? SourceKind::uddf : SourceKind::olderUddf;
    }
    // Version 3 is where a dive's data moved into two parts.
    const XmlElement dive = root.first("profiledata").first("repetitiongroup").first("dive");
    return dive.first("informationbeforedive").isNull() ? SourceKind::olderUddf : SourceKind::uddf;
}

std::optional<SourceKind> kindOfStart(QByteArrayView bytes) {
    constexpr qsizetype enough = 1 << 16;
    if (isTypedStream(bytes)) {
        const auto recordClass = recordClassOf(bytes);
        return recordClass && *recordClass == QLatin1StringView("Plongee") ? std::optional(SourceKind::logbook)
                                                                           : std::nullopt;
    }
    const QByteArrayView start = bytes.first(std::min(bytes.size(), enough));
    if (!looksLikeXml(bytes)) {
        return readTable(start) ? std::optional(SourceKind::table) : std::nullopt;
    }
    auto tree = XmlTree::parse(start, {}, uddfMarkup);
    return tree ? kindOfTree(*tree) : std::nullopt;
}

Expected<Source> readSource(QByteArrayView bytes, const Progress& progress, const TableColumns& chosen, bool usUnits) {
    if (isTypedStream(bytes)) {
        return readLogbook(bytes, progress);
    }
    bool cancelled = false;
    const auto advance = [&](std::size_t done, std::size_t total, std::size_t from, std::size_t part) {
        if (progress && !progress(from + done * part / std::max<std::size_t>(total, 1), thousandths)) {
            cancelled = true;
        }
        return !cancelled;
    };
    if (!looksLikeXml(bytes)) {
        auto table = readTable(
            bytes, chosen, [&](std::size_t done, std::size_t total) { return advance(done, total, 0, thousandths); },
            usUnits);
        if (cancelled) {
            return failure(text("Main", "Cancelled"));
        }
        if (table) {
            if (table->found.tooMany) {
                return failure(text("Main", "XML file beyond limits"));
            }
            return Source{SourceKind::table, std::move(table->found), std::move(table->columns)};
        }
    }
    auto tree = XmlTree::parse(
        bytes, [&](std::size_t done, std::size_t total) { return advance(done, total, 0, thousandthsOfParsing); },
        uddfMarkup);
    if (!tree) {
        return tl::unexpected(tree.error());
    }
    const auto kind = kindOfTree(*tree);
    if (!kind) {
        return failure(text("Carnet", "Import format unknown"),
                       QString::fromStdString(std::string(tree->root().name())));
    }
    Source source{*kind, readTree(*kind, tree->root(), [&](std::size_t done, std::size_t total) {
                      return advance(done, total, thousandthsOfParsing, thousandths - thousandthsOfParsing);
                  })};
    source.found.damage = tree->damage();
    if (source.found.tooMany) {
        return failure(text("Main", "XML file beyond limits"));
    }
    return cancelled ? failure(text("Main", "Cancelled")) : Expected<Source>(std::move(source));
}

}  // namespace tavrel
