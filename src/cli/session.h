#pragma once

#include "catalogue/documenttypes.h"
#include "cli/clidesktop.h"
#include "logbook/carnet.h"

#include <memory>
#include <string>

namespace tavrel {

/// The path that an argument names.
QString pathArgument(const std::string& argument);

/// What --force is for, where a command changes a file.
inline constexpr char forceHelp[] =
    "Changes the file although another program has it open or changes it meanwhile, or a newer version wrote it";

/// An open document on a desktop of its own.
struct Session {
    explicit Session(Console& console) : desktop(console) {}

    Expected<void> open(const QString& path);
    /// The same for a file that is to be changed: waits until no other command changes it, and fails when a program has
    /// it open, unless by force.
    Expected<void> openToChange(const QString& path);
    /// Saves it; fails when another program changed the file meanwhile, unless by force.
    Expected<void> save();
    /// A failure when the document has no such row.
    Expected<void> checkRow(int row) const;
    /// The open document as a logbook; a failure when it is of another type.
    Expected<Carnet*> logbook() const;

    bool byForce = false;  ///< over what other programs do to the file
    CliDesktop desktop;
    std::unique_ptr<BookBase> book;

private:
    /// An empty document of the file's type.
    Expected<void> make(const QString& path);
};

}  // namespace tavrel
