#pragma once

#include "catalogue/documenttypes.h"
#include "cli/clidesktop.h"
#include "logbook/carnet.h"

#include <memory>
#include <string>

namespace tavrel {

/// The path that an argument names.
QString pathArgument(const std::string& argument);

/// An open document on a desktop of its own.
struct Session {
    explicit Session(Console& console) : desktop(console) {}

    Expected<void> open(const QString& path);
    /// A failure when the document has no such row.
    Expected<void> checkRow(int row) const;
    /// The open document as a logbook; a failure when it is of another type.
    Expected<Carnet*> logbook() const;

    CliDesktop desktop;
    std::unique_ptr<BookBase> book;
};

}  // namespace tavrel
