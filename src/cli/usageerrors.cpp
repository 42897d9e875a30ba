#include "cli/usageerrors.h"

#include "base/printable.h"
#include "base/texts.h"
#include "cli/commandline.h"

#include <CLI/CLI.hpp>
#include <QRegularExpression>

namespace tavrel {

namespace {

/// The parser's sentences, which hold the names and words that they are about.
struct Wording {
    CLI::ExitCodes kind;
    const char* pattern;
    Title sentence;  ///< takes what the pattern captures
};

constexpr int choicesPart = 3;  ///< the part that lists them

constexpr Wording wordings[] = {
    {CLI::ExitCodes::RequiredError, "(.*) is required", {"Cli", "Usage required"}},
    {CLI::ExitCodes::RequiresError, "(.*) requires (.*)", {"Cli", "Usage requires"}},
    {CLI::ExitCodes::ExcludesError, "(.*) excludes (.*)", {"Cli", "Usage excludes"}},
    {CLI::ExitCodes::ExtrasError, "The following arguments? w\\w+ not expected: (.*)", {"Cli", "Usage unexpected"}},
    {CLI::ExitCodes::ConversionError, "Could not convert: (\\S+) = (.*)", {"Cli", "Usage no value"}},
    {CLI::ExitCodes::ValidationError, "(\\S+): (.*) not in \\{([^{]*)\\}", {"Cli", "Usage no choice"}},
    {CLI::ExitCodes::ArgumentMismatch, "(\\S+): \\d+ required .* missing", {"Cli", "Usage value missing"}},
    {CLI::ExitCodes::ArgumentMismatch, "(\\S+): At Most 1 required .*", {"Cli", "Usage once"}},
};

QString sentenceOf(const CLI::Error& error) {
    QString words = fromArgument(error.what());
    for (const Wording& each : wordings) {
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(QLatin1String(each.pattern)),
                                         QRegularExpression::DotMatchesEverythingOption);
        const auto match = pattern.match(words);
        if (error.get_exit_code() == static_cast<int>(each.kind) && match.hasMatch()) {
            std::vector<FormatArgument> parts;
            for (int part = 1; part <= pattern.captureCount(); ++part) {
                const QString held = match.captured(part);
                parts.emplace_back(part < choicesPart ? held : held.split(u',').join(QStringLiteral(", ")));
            }
            return fillFormat(text(each.sentence), parts, words);
        }
    }
    return words;
}

}  // namespace

std::string usageErrorText(const CLI::App*, const CLI::Error& error) {
    return toArgument(printable(sentenceOf(error) + u'\n' + text("Cli", "Usage help") + u'\n'));
}

}  // namespace tavrel
