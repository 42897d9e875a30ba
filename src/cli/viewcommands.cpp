#include "cli/viewcommands.h"

#include "base/jsonwriter.h"
#include "base/texts.h"
#include "book/booktable.h"
#include "cli/documentcommands.h"
#include "cli/listing.h"
#include "cli/render.h"
#include "cli/session.h"
#include "drawing/pages.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <numeric>
#include <optional>
#include <ostream>

namespace tavrel {

namespace {

struct ViewArguments {
    std::string file;
    std::string target;
    std::string what;
    std::vector<int> rows;
    std::optional<int> row;  ///< of the form
    std::vector<std::string> entries;
    bool isNew = false;
    bool json = false;
};

/// Opens the document and does the work on it, which changes no file.
template <class Work>
void look(const ViewArguments& arguments, Console& console, Work work) {
    Session session(console);
    const Expected<void> done = session.open(pathArgument(arguments.file)).and_then([&]() -> Expected<void> {
        std::vector<int> rows = arguments.rows;
        if (arguments.row) {
            rows.push_back(*arguments.row);
        }
        for (const int row : rows) {
            if (auto checked = session.checkRow(row); !checked) {
                return checked;
            }
        }
        return work(session);
    });
    if (!done) {
        fail(console, done.error());
    }
}

QString colourName(const QColor& colour) {
    return colour.name(QColor::HexRgb);
}

void writeTable(const BookBase& book, const BookTable& table, JsonWriter& json) {
    std::vector<int> shown;
    json.beginObject();
    json.key(u"columns");
    json.beginArray();
    for (int column = 0; column < static_cast<int>(table.columns().size()); ++column) {
        if (table.isShown(column)) {
            shown.push_back(column);
            json.value(QString::fromLatin1(table.columns()[static_cast<std::size_t>(column)].column->field));
        }
    }
    json.endArray();
    json.key(u"rows");
    json.beginArray();
    for (int row = 0; row < table.rowCount(); ++row) {
        json.beginArray();
        for (const int column : shown) {
            const Cell cell = table.cell(row, column);
            json.beginObject();
            json.member(u"text", cell.text);
            if (cell.style.text) {
                json.member(u"colour", colourName(*cell.style.text));
            }
            if (!cell.image.isEmpty()) {
                json.member(u"image", cell.image);
            }
            json.endObject();
        }
        json.endArray();
    }
    json.endArray();
    json.member(u"count", book.countText());
    json.endObject();
    json.flush();
}

void runTable(const ViewArguments& arguments, Console& console) {
    look(arguments, console, [&](Session& session) -> Expected<void> {
        const BookTable table(*session.book);
        if (arguments.json) {
            JsonWriter json = jsonOn(console);
            writeTable(*session.book, table, json);
            console.out << '\n';
            return {};
        }
        std::vector<ListColumn> columns;
        for (const ListColumn& column : allColumns(table)) {
            if (table.isShown(column.tableColumn)) {
                columns.push_back(column);
            }
        }
        QList<int> rows(session.book->count());
        std::iota(rows.begin(), rows.end(), 0);
        printRecords(*session.book, table, columns, rows, console.out);
        print(console, session.book->countText());
        return {};
    });
}

/// What a control holds, as a text or a number.
void writeValue(JsonWriter& json, ControlKind kind, const ControlState& state) {
    switch (kind) {
        case ControlKind::popUp:
        case ControlKind::radio:
        case ControlKind::slider:
        case ControlKind::rating:
        case ControlKind::gauge:
            json.value(state.tag);
            return;
        case ControlKind::onOff:
            json.value(state.tag == 0 ? 0 : 1);
            return;
        case ControlKind::progress:
            json.value(state.level);
            return;
        case ControlKind::date:
            json.value(state.date.toDateTime().date().toString(Qt::ISODate));
            return;
        case ControlKind::time:
            json.value(state.date.toDateTime().time().toString(u"HH:mm"));
            return;
        case ControlKind::picture:
            json.value(static_cast<qint64>(state.image.tiff.size()));
            return;
        default:
            json.value(state.text);
    }
}

void writeForm(const FormStateBase& state, JsonWriter& json) {
    json.beginObject();
    json.key(u"controls");
    json.beginObject();
    const auto& controls = state.table().controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        const ControlState& held = state.at(static_cast<int>(index));
        json.key(QString::fromStdString(controls[index].name));
        json.beginObject();
        json.key(u"value");
        writeValue(json, controls[index].control.kind, held);
        json.member(u"enabled", held.enabled);
        json.member(u"visible", held.visible);
        if (held.colour.isValid()) {
            json.member(u"colour", colourName(held.colour));
        }
        json.endObject();
    }
    json.endObject();
    json.endObject();
    json.flush();
}

void printForm(const FormStateBase& state, Console& console) {
    const auto& controls = state.table().controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        JsonWriter value;
        writeValue(value, controls[index].control.kind, state.at(static_cast<int>(index)));
        console.out << controls[index].name << ' ' << value.text() << '\n';
    }
}

void runForm(const ViewArguments& arguments, Console& console) {
    look(arguments, console, [&](Session& session) -> Expected<void> {
        BookBase& book = *session.book;
        if (arguments.isNew == arguments.row.has_value()) {
            wrongUsage(text("Cli", "Row or new"));
        }
        if (arguments.isNew) {
            book.newRecord();
        } else {
            book.selectRows({*arguments.row});
        }
        if (auto entered = enterAll(book.form(), arguments.entries); !entered) {
            return entered;
        }
        book.updateUI();
        if (arguments.json) {
            JsonWriter json = jsonOn(console);
            writeForm(book.form().state(), json);
            console.out << '\n';
        } else {
            printForm(book.form().state(), console);
        }
        return {};
    });
}

void writeCard(const StyledText& card, JsonWriter& json) {
    json.beginObject();
    json.member(u"text", card.text());
    json.key(u"runs");
    json.beginArray();
    for (const StyledRun& run : card.runs()) {
        json.beginObject();
        json.member(u"text", run.text);
        json.member(u"colour", colourName(run.colour));
        json.endObject();
    }
    json.endArray();
    json.endObject();
    json.flush();
}

void runCard(const ViewArguments& arguments, Console& console) {
    look(arguments, console, [&](Session& session) {
        return cardOf(session, arguments.rows).map([&](const StyledText& card) {
            if (arguments.json) {
                JsonWriter json = jsonOn(console);
                writeCard(card, json);
                console.out << '\n';
            } else {
                print(console, card.text().replace(u'\r', u'\n'));
            }
        });
    });
}

void runRender(const ViewArguments& arguments, Console& console) {
    look(arguments, console, [&](Session& session) -> Expected<void> {
        const QString target = pathArgument(arguments.target);
        if (!pictureFormatOf(target)) {
            wrongUsage(text("Cli", "Picture endings"));
        }
        if (const std::size_t most = mostRows(arguments.what); arguments.rows.size() > most) {
            wrongUsage(textWith(most == 0 ? Title("Cli", "Drawn without rows") : Title("Cli", "Drawn of one row"),
                                fromArgument(arguments.what)));
        }
        return renderedPages(session, arguments.what, arguments.rows)
            .and_then([&](const Pages& pages) { return pictureFiles(target, pages); })
            .and_then([&](const std::vector<FileContents>& files) { return session.book->writeExport(files); });
    });
}

}  // namespace

void addViewCommands(CLI::App& app, Console& console) {
    const auto arguments = std::make_shared<ViewArguments>();
    const auto add = [&](const char* name, const char* help, void (*run)(const ViewArguments&, Console&)) {
        CLI::App* command = app.add_subcommand(name, help);
        command->callback([arguments, &console, run] { run(*arguments, console); });
        command->add_option("FILE", arguments->file, "The document")->required();
        return command;
    };
    const auto addJson = [&](CLI::App* command) { command->add_flag("--json", arguments->json, "As one JSON object"); };

    addJson(add("table", "Shows the table of a document as its window does", runTable));

    CLI::App* form =
        add("form", "Shows the edit form with a record, or a new one, and entries; stores nothing", runForm);
    form->add_option("--row", arguments->row, "The record's row, from 0");
    form->add_flag("--new", arguments->isNew, "A new record");
    form->add_option("ENTRIES", arguments->entries, "field=value, by the field's or the control's name");
    addJson(form);

    CLI::App* card = add("card", "Shows the synthesis card", runCard);
    card->add_option("--row", arguments->rows, "The records' rows, from 0; all when not given")
        ->allow_extra_args(false);
    addJson(card);

    CLI::App* render = add("render", "Draws what the windows print into a PDF, SVG or PNG", runRender);
    render->add_option("TARGET", arguments->target, "The file to write, ending in .pdf, .svg or .png")->required();
    render->add_option("--what", arguments->what, "What to draw")->required()->check(CLI::IsMember(renderings()));
    render->add_option("--row", arguments->rows, "The records' rows, from 0, of a card; the dive's of a profile")
        ->allow_extra_args(false);
}

}  // namespace tavrel
