#include "cli/documentcommands.h"

#include "base/paths.h"
#include "base/safefile.h"
#include "base/texts.h"
#include "cli/listing.h"
#include "cli/session.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <numeric>
#include <ostream>

namespace tavrel {

namespace {

/// What the commands take; each uses its part.
struct Arguments {
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
};

QString fileArgument(const Arguments& arguments) {
    return pathArgument(arguments.file);
}

/// Opens the file, does the work and, when all of it succeeded, saves the document.
template <class Work>
void changeFile(const Arguments& arguments, Console& console, Work work) {
    Session session(console);
    Expected<void> done = session.open(fileArgument(arguments));
    if (done) {
        done = work(session);
    }
    if (done) {
        done = session.driver->document().save();
        console.fileSaved = done.has_value();
    }
    if (!done) {
        fail(console, done.error());
    }
}

/// Enters every "field=value" into the form. What the form does not have is wrong usage.
void enterAll(DocumentDriver& driver, const std::vector<std::string>& entries) {
    for (const std::string& argument : entries) {
        const QString entry = fromArgument(argument);
        const auto equals = entry.indexOf(u'=');
        if (equals < 1) {
            wrongUsage(textWith("Cli", "Not an entry", entry));
        }
        if (const auto entered = driver.enter(entry.left(equals), entry.mid(equals + 1)); !entered) {
            wrongUsage(entered.error().message());
        }
    }
}

void runNew(const Arguments& arguments, Console& console) {
    const auto kinds = documentKinds();
    const DriverKind* kind = documentKindNamed(kinds, fromArgument(arguments.type));
    if (!kind) {
        QStringList names;
        for (const DriverKind& known : kinds) {
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
    if (const auto saved = kind->make(desktop.desktop())->document().saveAs(path); !saved) {
        fail(console, saved.error());
    }
}

void runAdd(const Arguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) -> Expected<void> {
        session.driver->beginRecord();
        enterAll(*session.driver, arguments.entries);
        session.driver->addRecord();
        return {};
    });
}

void runSet(const Arguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) {
        return session.checkRow(arguments.row).map([&] {
            session.driver->editRecord(arguments.row);
            enterAll(*session.driver, arguments.entries);
            session.driver->updateRecord();
        });
    });
}

void runDelete(const Arguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) -> Expected<void> {
        for (const int row : arguments.rows) {
            if (auto checked = session.checkRow(row); !checked) {
                return checked;
            }
        }
        session.driver->document().selectRows(QList<int>(arguments.rows.begin(), arguments.rows.end()));
        session.driver->deleteRecords();
        return {};
    });
}

void runRenumber(const Arguments& arguments, Console& console) {
    changeFile(arguments, console, [&](Session& session) { return session.driver->renumber(arguments.number); });
}

void runFind(const Arguments& arguments, Console& console) {
    Session session(console);
    if (const auto opened = session.open(fileArgument(arguments)); !opened) {
        fail(console, opened.error());
        return;
    }
    const auto found = session.driver->find(fromArgument(arguments.field), fromArgument(arguments.searched));
    if (!found) {
        wrongUsage(found.error().message());
    }
    const QList<int>& rows = session.driver->document().selectedRows();
    if (!rows.isEmpty()) {
        printRecords(*session.driver, session.driver->tableColumns(), rows, console.out);
    }
    print(console, *found);
}

Expected<void> showJson(const QString& path, Console& console) {
    const auto bytes = FileBytes::open(path);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    const auto written = documentKindOf(documentKinds(), path, bytes->bytes()).and_then([&](const DriverKind* kind) {
        CliDesktop desktop(console);
        JsonWriter json = jsonOn(console);
        return kind->make(desktop.desktop())->writeJson(bytes->bytes(), json).map([&] { console.out << '\n'; });
    });
    return written.map_error([&](const Failure& reason) { return openingFailure(path, reason); });
}

Expected<void> showTable(const QString& path, const std::vector<std::string>& fields, Console& console) {
    Session session(console);
    if (auto opened = session.open(path); !opened) {
        return opened;
    }
    const DocumentDriver& driver = *session.driver;
    std::vector<ListColumn> columns;
    for (const std::string& field : fields) {
        const auto column = driver.column(fromArgument(field));
        if (!column) {
            wrongUsage(textWith("Main", "No such field", fromArgument(field)));
        }
        columns.push_back(*column);
    }
    QList<int> rows(session.driver->document().count());
    std::iota(rows.begin(), rows.end(), 0);
    printRecords(driver, columns.empty() ? driver.tableColumns() : columns, rows, console.out);
    return {};
}

void runShow(const Arguments& arguments, Console& console) {
    const QString path = fileArgument(arguments);
    const auto shown = arguments.json ? showJson(path, console) : showTable(path, arguments.columns, console);
    if (!shown) {
        fail(console, shown.error());
    }
}

}  // namespace

void addDocumentCommands(CLI::App& app, Console& console) {
    const auto arguments = std::make_shared<Arguments>();
    const auto add = [&](const char* name, const char* help, void (*run)(const Arguments&, Console&)) {
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

    CLI::App* show = add("show", "Lists the records of a document", runShow);
    addFile(show);
    CLI::Option* json = show->add_flag("--json", arguments->json, "Everything, as one JSON object");
    show->add_option("--columns", arguments->columns, "The fields to list, separated by commas")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->excludes(json);

    CLI::App* create = add("new", "Makes an empty document", runNew);
    create->add_option("TYPE", arguments->type, "The type's name, such as \"Carnet de plongee\"")->required();
    addFile(create);

    CLI::App* append = add("add", "Adds a record through the document's form", runAdd);
    addFile(append);
    addEntries(append);

    CLI::App* set = add("set", "Changes a record through the document's form", runSet);
    addFile(set);
    set->add_option("ROW", arguments->row, "The record's row, from 0")->required();
    addEntries(set)->required();

    CLI::App* erase = add("delete", "Removes records", runDelete);
    addFile(erase);
    erase->add_option("ROW", arguments->rows, "The records' rows, from 0")->required();

    CLI::App* renumber = add("renumber", "Numbers all records in their order", runRenumber);
    addFile(renumber);
    renumber->add_option("FIRST", arguments->number, "The first number")->required();

    CLI::App* find = add("find", "Lists the records whose field holds a text, case aside", runFind);
    addFile(find);
    find->add_option("FIELD", arguments->field, "A field of texts")->required();
    find->add_option("TEXT", arguments->searched, "The text")->required();
}

}  // namespace tavrel
