#include "cli/commandline.h"

#include "base/printable.h"
#include "cli/usageerrors.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace tavrel {

QString fromArgument(const std::string& argument) {
    return QString::fromLocal8Bit(argument);
}

std::string toArgument(const QString& text) {
    return text.toLocal8Bit().toStdString();
}

void print(Console& console, const QString& line) {
    console.out << toArgument(line) << '\n';
}

JsonWriter jsonOn(Console& console) {
    return JsonWriter([&out = console.out](std::string_view piece) { out << piece; });
}

void fail(Console& console, const Failure& failure) {
    console.error << toArgument(printable(failure.message())) << '\n';
    console.exitCode = exitFailed;
}

void wrongUsage(const QString& sentence) {
    throw CLI::ParseError(toArgument(sentence), exitWrongUsage);
}

void requireOneCommand(CLI::App& app, const Title& sentence) {
    app.require_subcommand(0, 1);
    app.final_callback([&app, sentence] {
        if (app.get_subcommands().empty()) {
            wrongUsage(text(sentence));
        }
    });
}

namespace {

bool isWholeNumber(const std::string& word) {
    return !word.empty() && std::all_of(word.begin(), word.end(), [](char each) { return each >= '0' && each <= '9'; });
}

/// Whether the command that the words name takes several rows, each behind its own "--row".
bool takesRows(const CLI::App& app, const std::vector<std::string>& words) {
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        const CLI::Option* rows = command->get_option_no_throw("--row");
        if (rows && rows->get_items_expected_max() > 1 &&
            std::find(words.begin(), words.end(), command->get_name()) != words.end()) {
            return true;
        }
    }
    return false;
}

/// "--row 0 1" as "--row 0 --row 1". The parser would take all that follows "--row" for its values, a file's name
/// included, or but one of them.
std::vector<std::string> withRowsApart(const std::vector<std::string>& words) {
    std::vector<std::string> apart;
    bool inRows = false;
    for (const std::string& word : words) {
        const bool isRow = inRows && isWholeNumber(word);
        if (isRow && apart.back() != "--row") {
            apart.emplace_back("--row");
        }
        inRows = word == "--row" || isRow;
        apart.push_back(word);
    }
    return apart;
}

/// The arguments in the parser's order, last first. "--name=" gives an empty value, which the parser would take from
/// the argument behind it.
std::vector<std::string> parserArguments(const CLI::App& app, int argc, const char* const* argv) {
    std::vector<std::string> words;
    bool options = true;
    for (int index = 1; index < argc; ++index) {
        std::string word = argv[index];
        options = options && word != "--";
        const bool empty =
            options && word.starts_with("--") && word.ends_with('=') && word.find('=') == word.size() - 1;
        if (empty) {
            word.pop_back();
        }
        words.push_back(std::move(word));
        if (empty) {
            words.emplace_back();
        }
    }
    if (takesRows(app, words)) {
        words = withRowsApart(words);
    }
    std::reverse(words.begin(), words.end());
    return words;
}

}  // namespace

void addRunOptions(CLI::App& app, Console& console) {
    app.fallthrough();
    app.add_option_function<std::string>(
           "--now",
           [&console](const std::string& word) {
               const QDateTime moment = QDateTime::fromString(fromArgument(word), Qt::ISODateWithMs);
               if (!moment.isValid()) {
                   wrongUsage(textWith("Cli", "Not a moment", fromArgument(word)));
               }
               console.options.now = moment.toLocalTime();
           },
           "The moment that counts as now, as 2024-05-03T10:30:00")
        ->trigger_on_parse();
    app.add_option_function<std::vector<std::string>>(
           "--preference",
           [&console](const std::vector<std::string>& settings) {
               for (const std::string& word : settings) {
                   const QString setting = fromArgument(word);
                   const auto equals = setting.indexOf(u'=');
                   if (equals < 1) {
                       wrongUsage(textWith("Cli", "Not an entry", setting));
                   }
                   console.options.preferences.emplace_back(setting.left(equals), setting.mid(equals + 1));
               }
           },
           "KEY=VALUE, a setting for this run only; a dictionary as a JSON object")
        ->allow_extra_args(false)
        ->trigger_on_parse();
}

int runCommandLine(CLI::App& app, int argc, const char* const* argv, Console& console) {
    requireOneCommand(app, {"Cli", "Command required"});
    app.failure_message(usageErrorText);
    try {
        app.parse(parserArguments(app, argc, argv));
    } catch (const CLI::ParseError& stopped) {
        return app.exit(stopped, console.out, console.error) == 0 ? 0 : exitWrongUsage;
    }
    if (!console.out.flush()) {
        const int exitCode = console.exitCode;
        fail(console, {text("Cli", "Output not written"), {}});
        if (console.fileSaved) {
            console.exitCode = exitCode;
        }
    }
    return console.exitCode;
}

}  // namespace tavrel
