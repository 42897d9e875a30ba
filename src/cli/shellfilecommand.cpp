#include "cli/shellfilecommand.h"

#include "base/texts.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <sstream>

namespace tavrel {

namespace {

std::vector<const CLI::App*> shownCommands(const CLI::App& app) {
    return app.get_subcommands([](const CLI::App* command) { return !command->get_group().empty(); });
}

std::vector<const CLI::Option*> shownOptions(const CLI::App& app) {
    return app.get_options([](const CLI::Option* option) { return !option->get_group().empty(); });
}

/// The option's names with their dashes, none for a positional one.
std::vector<std::string> namesOf(const CLI::Option& option) {
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames()) {
        names.push_back('-' + name);
    }
    for (const std::string& name : option.get_lnames()) {
        names.push_back("--" + name);
    }
    return names;
}

/// What an option takes, of the few words that it declares: "TEXT:{table,card}" gives table and card.
std::vector<std::string> choicesOf(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    const std::size_t open = type.find('{');
    const std::size_t close = type.find('}', open == std::string::npos ? 0 : open);
    if (open == std::string::npos || close == std::string::npos) {
        return {};
    }
    return CLI::detail::split(type.substr(open + 1, close - open - 1), ',');
}

bool takesValue(const CLI::Option* option) {
    return option->get_items_expected_max() > 0;
}

std::string joined(const std::vector<std::string>& words, const char* between) {
    return CLI::detail::join(words, between);
}

/// The word in single quotes.
std::string quoted(const std::string& word) {
    return '\'' + CLI::detail::find_and_replace(word, "'", "'\\''") + '\'';
}

/// Calls for the program and every command below it, with the path of names that leads there, each after a blank.
void forEachCommand(const CLI::App& app, const std::string& path,
                    const std::function<void(const std::string&, const CLI::App&)>& visit) {
    visit(path, app);
    for (const CLI::App* command : shownCommands(app)) {
        forEachCommand(*command, path + ' ' + command->get_name(), visit);
    }
}

/// Text of a manual page: no dash becomes a hyphen, no first character a request.
std::string roff(std::string text) {
    text = CLI::detail::find_and_replace(text, "\\", "\\e");
    text = CLI::detail::find_and_replace(text, "-", "\\-");
    text = CLI::detail::find_and_replace(text, "\n", "\n\\&");
    return "\\&" + text;
}

/// The start of a section, named in the language of the page.
std::string heading(const char* name) {
    return ".SH " + text("Help", name).toStdString() + '\n';
}

std::string placeholder(const CLI::Option& option) {
    const auto choices = choicesOf(option);
    return choices.empty() ? "VALUE" : joined(choices, "|");
}

/// The commands and options as they are typed: "[--json] FILE ROW...".
std::string synopsis(const CLI::App& app) {
    std::string words;
    const auto shown = shownOptions(app);
    for (const CLI::Option* option : shown) {
        const auto names = namesOf(*option);
        if (names.empty() || option == app.get_help_ptr()) {
            continue;
        }
        const std::string one = names.back() + (takesValue(option) ? ' ' + placeholder(*option) : std::string());
        words += option->get_required() ? ' ' + one : " [" + one + ']';
    }
    for (const CLI::Option* option : shown) {
        if (option->get_positional()) {
            const bool several = option->get_items_expected_max() > 1;
            const std::string one = option->get_name(true) + (several ? "..." : "");
            words += option->get_required() ? ' ' + one : " [" + one + ']';
        }
    }
    return words + (shownCommands(app).empty() ? "" : " COMMAND");
}

void describeOptions(const CLI::App& app, std::ostream& out) {
    for (const CLI::Option* option : shownOptions(app)) {
        const auto names = namesOf(*option);
        const std::string name = names.empty() ? option->get_name(true) : joined(names, ", ");
        const std::string value = !names.empty() && takesValue(option) ? ' ' + placeholder(*option) : std::string();
        out << ".TP\n.B " << roff(name + value) << '\n' << roff(option->get_description()) << '\n';
    }
}

}  // namespace

std::string bashCompletion(const CLI::App& app) {
    std::ostringstream commands;
    std::ostringstream words;
    std::ostringstream values;
    const auto line = [](std::ostream& out, const std::string& pattern, const std::vector<std::string>& choices) {
        out << "        " << quoted(pattern) << ") words=" << quoted(joined(choices, " ")) << " ;;\n";
    };
    forEachCommand(app, {}, [&](const std::string& path, const CLI::App& command) {
        std::vector<std::string> all;
        for (const CLI::App* below : shownCommands(command)) {
            all.push_back(below->get_name());
            commands << "            " << quoted(path + ' ' + below->get_name()) << ") path+=\" $word\" ;;\n";
        }
        std::vector<const CLI::Option*> options = shownOptions(command);
        if (&command != &app) {  // the program's own go behind any command, but for what ends it
            const auto own = shownOptions(app);
            std::copy_if(own.begin(), own.end(), std::back_inserter(options), takesValue);
        }
        for (const CLI::Option* option : options) {
            for (const std::string& name : namesOf(*option)) {
                all.push_back(name);
                if (takesValue(option)) {
                    line(values, std::string(path).append(1, ' ').append(name), choicesOf(*option));
                }
            }
        }
        line(words, path, all);
    });
    // Where nothing fits, and for the values of options that declare none, bash completes file names.
    const std::string& program = app.get_name();
    const std::string function = '_' + CLI::detail::find_and_replace(program, "-", "_");
    std::ostringstream script;
    script << "# bash completion for " << program << "\n\n"
           << function << "() {\n"
           << "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} path='' word words=''\n"
           << "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
           << "        case \"$path $word\" in\n"
           << commands.str() << "        esac\n    done\n"
           << "    case \"$path $previous\" in\n"
           << values.str() << "        *) case \"$path\" in\n"
           << words.str() << "        esac ;;\n    esac\n"
           << "    COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n}\n\n"
           << "complete -o default -F " << function << ' ' << program << '\n';
    return script.str();
}

std::string manualPage(const CLI::App& app) {
    const std::string program = app.get_name();
    std::string upper = program;
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    std::ostringstream page;
    page << ".TH " << roff(upper) << " 1\n"
         << heading("NAME") << roff(program) << " \\- " << roff(app.get_description()) << '\n'
         << heading("SYNOPSIS") << ".B " << roff(program) << '\n'
         << roff(synopsis(app)) << '\n'
         << heading("OPTIONS");
    describeOptions(app, page);
    page << heading("COMMANDS");
    forEachCommand(app, {}, [&](const std::string& path, const CLI::App& command) {
        if (&command != &app) {
            page << ".SS " << roff(program + path + synopsis(command)) << '\n'
                 << roff(command.get_description()) << '\n';
            describeOptions(command, page);
        }
    });
    if (const std::string footer = app.get_footer(); !footer.empty()) {
        page << heading("NOTES") << roff(footer) << '\n';
    }
    return page.str();
}

void addShellFileCommand(CLI::App& app, Console& console) {
    CLI::App* command = app.add_subcommand("shell-file", "Prints the completion script for bash or the manual page");
    command->group("");
    const auto what = std::make_shared<std::string>();
    command->add_option("WHAT", *what, "Either")->required()->check(CLI::IsMember({"bash", "man"}));
    command->callback(
        [&app, &console, what] { console.out << (*what == "bash" ? bashCompletion(app) : manualPage(app)); });
}

}  // namespace tavrel
