#include "cli/session.h"

#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"

namespace tavrel {

QString pathArgument(const std::string& argument) {
    return pathFromBytes(QByteArray::fromStdString(argument));
}

Expected<void> Session::open(const QString& path) {
    const auto bytes = FileBytes::open(path);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    const auto kind = documentKindOf(documentTypes(), path, bytes->bytes());
    if (!kind) {
        return tl::unexpected(openingFailure(path, kind.error()));
    }
    book = (*kind)->make(desktop.desktop());
    desktop.applyOptions();
    return book->open(path);
}

Expected<void> Session::checkRow(int row) const {
    const int count = book->count();
    if (row < 0 || row >= count) {
        return failure(textWith("Cli", "No such row", row, count));
    }
    return {};
}

Expected<Carnet*> Session::logbook() const {
    auto* carnet = dynamic_cast<Carnet*>(book.get());
    if (!carnet) {
        return failure(textWith("Cli", "Not a logbook", book->displayName()));
    }
    return carnet;
}

}  // namespace tavrel
