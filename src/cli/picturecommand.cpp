#include "cli/picturecommand.h"

#include "base/texts.h"
#include "cli/session.h"
#include "forms/pictures.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>

namespace tavrel {

namespace {

/// The picture of a record; a failure when its class has none.
Expected<Image> pictureAt(const BookBase& book, int row) {
    const auto& items = book.layout().items;
    const auto found = std::find_if(items.begin(), items.end(),
                                    [](const Item& item) { return item.field().kind() == FieldKind::image; });
    if (found == items.end()) {
        return failure(textWith("Cli", "No picture field", book.type()));
    }
    return *found->field().get<Image>(*book.recordAt(row));
}

}  // namespace

void addPictureCommand(CLI::App& app, Console& console) {
    struct Arguments {
        std::string file;
        std::string target;
        int row = 0;
    };
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("picture", "Writes a stored picture as a file");
    command->add_option("FILE", arguments->file, "The document")->required();
    command->add_option("--row", arguments->row, "The record's row, from 0")->required();
    command->add_option("OUT", arguments->target, "The picture's file, such as copy.png; .tiff gives the stored bytes")
        ->required();
    command->callback([arguments, &console] {
        Session session(console);
        const auto done = session.open(pathArgument(arguments->file))
                              .and_then([&] { return session.checkRow(arguments->row); })
                              .and_then([&] { return pictureAt(*session.book, arguments->row); })
                              .and_then([&](const Image& picture) {
                                  const QString target = pathArgument(arguments->target);
                                  return session.book->writeExport(target, pictureFile(picture, target));
                              });
        if (!done) {
            fail(console, done.error());
        }
    });
}

}  // namespace tavrel
