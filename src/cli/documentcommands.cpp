#include "cli/documentcommands.h"

#include "archive/recordjson.h"
#include "base/jsonwriter.h"
#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"
#include "book/bookentry.h"
#include "book/booktable.h"
#include "cli/listing.h"
#include "cli/session.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <numeric>
#include <ostream>

namespace tavrel {

namespace {

/// What the commands take; each uses its part.
struct DocumentArguments {
    std::string file;
    std::string type;
    std::vector<std::string> entries;
    int row = 0;
    std::vector<int> rows;
    int number = 0;
    std::string field;
    std::string searched;
    std::vector<std::string> columns;
    bool json = false;
    bool force = false;
};

QString fileArgument(const DocumentArguments& arguments) {
    return pathArgument(arguments.file);
}

/// Opens the file, does the work and, when all of it succeeded, saves the document.
template <class Work>
void changeFile(const DocumentArguments& arguments, Console& console, Work work) {
    Session session(console);
    session.byForce = arguments.force;
    Expected<void> done = session.openToChange(fileArgument(arguments));
    if (done) {
        done = work(session);
    }
    if (done) {
        done = session.save();
        console.fileSaved = done.has_value();
    }
    if (!done) {
        fail(console, done.error());
    }
}

}  // namespace

Expected<void> enterAll(BookForm& form, const std::vector<std::string>& entries) {
    for (const std::string& argument : entries) {
        const QString entry = fromArgument(argument);
        const auto equals = entry.indexOf(u'=');
        if (equals < 1) {
            wrongUsage(textWith("Cli", "Not an entry", entry));
        }
        const QString name = entry.left(equals);
        auto entered = enterByName(form, name, entry.mid(equals + 1));
        if (!entered && readsFile(form, name)) {
            return entered;
        }
        if (!entered) {
            wrongUsage(entered.error().message());
        }
    }
    return {};
}

namespace {

/// Says what was entered into controls that no record holds.
void tellUnstored(const BookForm& form, Console& console) {
    const auto& controls = form.state().table().controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        const QString hint = controls[index].field.empty() ? form.hint(static_cast<int>(index)) : QString();
        if (!hint.isEmpty()) {
            console.error << controls[index].name << ": " << toArgument(hint) << '\n';
        }
    }
}

void runNew(const DocumentArguments& arguments, Console& console) {
    const CatalogueType* type = documentTypeMeantBy(fromArgument(arguments.type));
    if (!type) {
        QStringList names;
        for (const CatalogueType& known : documentTypes()) {
            names.append(known.name.text());
        }
        wrongUsage(textWith("Cli", "No such type", fromArgument(arguments.type), names.join(QStringLiteral(", "))));
    }
    const QString path = fileArgument(arguments);
    if (pathExists(path)) {
        fail(console, {textWith("Cli", "File exists", shownPath(path)), {}});
        return;
    }
    CliDesktop desktop(console);
    if (const auto saved = type->make(desktop.desktop())->saveAs(path); !saved) {
        fail(console, saved.error());
    }
}

void runAdd(const DocumentArguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) -> Expected<void> {
        session.book->newRecord();
        return enterAll(session.book->form(), arguments.entries).map([&] {
            tellUnstored(session.book->form(), console);
            session.book->addRecord();
        });
    });
}

void runSet(const DocumentArguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) {
        return session.checkRow(arguments.row)
            .and_then([&] {
                session.book->selectRows({arguments.row});
                return enterAll(session.book->form(), arguments.entries);
            })
            .map([&] {
                tellUnstored(session.book->form(), console);
                session.book->updateRecord();
            });
    });
}

void runDelete(const DocumentArguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) -> Expected<void> {
        for (const int row : arguments.rows) {
            if (auto checked = session.checkRow(row); !checked) {
                return checked;
            }
        }
        session.book->selectRows(QList<int>(arguments.rows.begin(), arguments.rows.end()));
        session.book->deleteRecords();
        return {};
    });
}

void runRenumber(const DocumentArguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) {
        return session.logbook().and_then([&](Carnet* carnet) -> Expected<void> {
            if (arguments.number > carnet->highestFirstNumber()) {
                return failure(textWith("Cli", "First number too high", carnet->highestFirstNumber()));
            }
            carnet->renumDives(arguments.number);
            return {};
        });
    });
}

void runFind(const DocumentArguments& arguments, Console& console) {
    Session session(console);
    if (const auto opened = session.open(fileArgument(arguments)); !opened) {
        fail(console, opened.error());
        return;
    }
    const auto found = session.book->findTextWithField(fromArgument(arguments.field), fromArgument(arguments.searched));
    if (!found) {
        wrongUsage(found.error().message());
    }
    const QList<int>& rows = session.book->selectedRows();
    if (!rows.isEmpty()) {
        const BookTable table(*session.book);
        printRecords(*session.book, table, allColumns(table), rows, console.out);
    }
    print(console, session.book->foundText());
}

void runSort(const DocumentArguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) -> Expected<void> {
        const BookTable table(*session.book);
        for (const std::string& column : arguments.columns) {
            if (table.columnOf(column) < 0) {
                wrongUsage(textWith("Main", "No such field", fromArgument(column)));
            }
            session.book->sortBy(fromArgument(column));
        }
        return {};
    });
}

Expected<void> showJson(const QString& path, Console& console) {
    const auto bytes = FileBytes::open(path);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    const auto written = documentKindOf(documentTypes(), path, bytes->bytes()).and_then([&](const CatalogueType* type) {
        const RecordLayout& layout = type->book->layout();
        auto file = readRecords(bytes->bytes(), layout);
        if (!file && type->book->olderFormat) {
            file = type->book->olderFormat(bytes->bytes()).map([&](RecordList&& records) {
                return RecordFile{layout.version, std::move(records)};
            });
        }
        return file.map([&](const RecordFile& read) {
            JsonWriter json = jsonOn(console);
            writeRecordsJson(json, type->name.text(), read, layout);
            console.out << '\n';
        });
    });
    return written.map_error([&](const Failure& reason) { return openingFailure(path, reason); });
}

Expected<void> showTable(const QString& path, const std::vector<std::string>& fields, Console& console) {
    Session session(console);
    if (auto opened = session.open(path); !opened) {
        return opened;
    }
    const BookTable table(*session.book);
    std::vector<ListColumn> columns;
    for (const std::string& field : fields) {
        const ListColumn column = columnOf(table, session.book->layout(), fromArgument(field));
        if (column.field.isNull()) {
            wrongUsage(textWith("Main", "No such field", fromArgument(field)));
        }
        columns.push_back(column);
    }
    QList<int> rows(session.book->count());
    std::iota(rows.begin(), rows.end(), 0);
    printRecords(*session.book, table, columns.empty() ? allColumns(table) : columns, rows, console.out);
    return {};
}

void runShow(const DocumentArguments& arguments, Console& console) {
    const QString path = fileArgument(arguments);
    const auto shown = arguments.json ? showJson(path, console) : showTable(path, arguments.columns, console);
    if (!shown) {
        fail(console, shown.error());
    }
}

}  // namespace

void addDocumentCommands(CLI::App& app, Console& console) {
    const auto arguments = std::make_shared<DocumentArguments>();
    const auto add = [&](const char* name, const char* help, void (*run)(const DocumentArguments&, Console&)) {
        CLI::App* command = app.add_subcommand(name, help);
        command->callback([arguments, &console, run] { run(*arguments, console); });
        return command;
    };
    const auto addFile = [&](CLI::App* command) {
        command->add_option("FILE", arguments->file, "The document")->required();
    };
    const auto addEntries = [&](CLI::App* command) {
        return command->add_option("ENTRIES", arguments->entries, "field=value, by the field's or the control's name");
    };

    const auto addForce = [&](CLI::App* command) { command->add_flag("--force", arguments->force, forceHelp); };

    CLI::App* show = add("show", "Lists the records of a document", runShow);
    addFile(show);
    CLI::Option* json = show->add_flag("--json", arguments->json, "Everything, as one JSON object");
    show->add_option("--columns", arguments->columns, "The fields to list, separated by commas")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->excludes(json);

    CLI::App* create = add("new", "Makes an empty document", runNew);
    create->add_option("TYPE", arguments->type, "The type's name, such as \"Carnet de plongee\", or its record class")
        ->required();
    addFile(create);

    CLI::App* append = add("add", "Adds a record through the document's form", runAdd);
    addFile(append);
    addForce(append);
    addEntries(append);

    CLI::App* set = add("set", "Changes a record through the document's form", runSet);
    addFile(set);
    addForce(set);
    set->add_option("ROW", arguments->row, "The record's row, from 0")->required();
    addEntries(set)->required();

    CLI::App* erase = add("delete", "Removes records", runDelete);
    addFile(erase);
    addForce(erase);
    erase->add_option("ROW", arguments->rows, "The records' rows, from 0")->required();

    CLI::App* renumber = add("renumber", "Numbers all records in their order", runRenumber);
    addFile(renumber);
    addForce(renumber);
    renumber->add_option("FIRST", arguments->number, "The first number")->required();

    CLI::App* sort = add("sort", "Sorts as clicks on the headers of these columns do, and saves the order", runSort);
    addFile(sort);
    addForce(sort);
    sort->add_option("COLUMN", arguments->columns, "The columns' fields, in the order of the clicks")->required();

    CLI::App* find = add("find", "Lists the records whose field holds a text, case aside", runFind);
    addFile(find);
    find->add_option("FIELD", arguments->field, "A field of texts")->required();
    find->add_option("TEXT", arguments->searched, "The text")->required();
}

}  // namespace tavrel
