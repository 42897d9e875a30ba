#include "cli/session.h"

#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"

#include <QCoreApplication>

#include <chrono>

namespace tavrel {

QString pathArgument(const std::string& argument) {
    return pathFromBytes(QByteArray::fromStdString(argument));
}

namespace {

constexpr std::chrono::seconds patience(30);
constexpr std::chrono::milliseconds glance(200);

}  // namespace

Expected<void> Session::make(const QString& path) {
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
    return {};
}

Expected<void> Session::open(const QString& path) {
    return make(path).and_then([&] { return book->open(path); });
}

Expected<void> Session::openToChange(const QString& path) {
    if (auto made = make(path); !made) {
        return made;
    }
    Document& document = *book;
    // Commands are soon done; a window may be open for days.
    auto holder = document.claimFile(path, byForce ? std::chrono::milliseconds() : glance);
    if (holder && !byForce && (holder->program.isEmpty() || holder->program == QCoreApplication::applicationName())) {
        holder = document.claimFile(path, patience);
    }
    if (holder && !byForce) {
        return tl::unexpected(savingFailure(path, {textWith("Main", "File open elsewhere", holder->name()), {}}));
    }
    return document.open(path);
}

Expected<void> Session::save() {
    return book->save(byForce ? Document::Overwriting::yes : Document::Overwriting::no);
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
