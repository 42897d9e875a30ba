#include "cli/profilecommand.h"

#include "base/safefile.h"
#include "base/texts.h"
#include "cli/session.h"
#include "logbook/diveprofile.h"
#include "profile/profilegeometry.h"
#include "profile/profilesummary.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tavrel {

namespace {

struct ProfileArguments {
    std::string file;
    int row = 0;
    bool json = false;
    std::string series;
    std::vector<std::string> replacements;
    bool force = false;
};

void writeStroke(JsonWriter& json, const ProfileGeometry::Stroke& stroke) {
    json.beginArray();
    for (const QPointF& point : stroke) {
        json.beginArray();
        json.value(point.x());
        json.value(point.y());
        json.endArray();
    }
    json.endArray();
}

/// A path: the points of its stroke, or its strokes where it has several.
void writePath(JsonWriter& json, const std::vector<ProfileGeometry::Stroke>& strokes) {
    if (strokes.size() == 1) {
        writeStroke(json, strokes.front());
        return;
    }
    json.beginArray();
    for (const ProfileGeometry::Stroke& stroke : strokes) {
        writeStroke(json, stroke);
    }
    json.endArray();
}

void writeGeometry(JsonWriter& json, const ProfileGeometry& geometry) {
    json.beginObject();
    json.key(u"paths");
    json.beginObject();
    const std::pair<QStringView, std::vector<ProfileGeometry::Stroke>> paths[] = {
        {u"axes", geometry.axes},           {u"ticks", geometry.ticks},
        {u"dashed", geometry.dashed},       {u"profile", {geometry.profile}},
        {u"surface", {geometry.surface}},   {u"surfaceExcursions", geometry.surfaceExcursions},
        {u"pressure", {geometry.pressure}}, {u"limit", {geometry.limit}}};
    for (const auto& [name, strokes] : paths) {
        json.key(name);
        writePath(json, strokes);
    }
    json.endObject();
    json.key(u"labels");
    json.beginArray();
    for (const ProfileGeometry::Label& label : geometry.labels) {
        json.beginObject();
        json.member(u"text", label.text);
        json.member(u"x", label.at.x());
        json.member(u"y", label.at.y());
        json.member(u"colour", label.colour.name());
        json.endObject();
    }
    json.endArray();
    json.key(u"icons");
    json.beginArray();
    for (const ProfileGeometry::Icon& icon : geometry.icons) {
        json.beginObject();
        json.member(u"name", icon.name);
        json.member(u"x", icon.at.x());
        json.member(u"y", icon.at.y());
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

void showJson(const Plongee& dive, const Preferences& preferences, Console& console) {
    const ProfileDive drawn = profileDiveOf(dive);
    const ProfileSummary summary = summaryOf(drawn.series);
    JsonWriter json = jsonOn(console);
    json.beginObject();
    json.member(u"maximum", summary.maximum);
    json.member(u"average", summary.average);
    json.member(u"samples", summary.samples);
    json.member(u"sampling", drawn.samplingRate);
    json.member(u"slow", summary.slow);
    json.member(u"ceiling", summary.ceiling);
    json.member(u"surface", summary.surface);
    json.member(u"gasSwitches", summary.gasSwitches);
    json.member(u"endsAtSurface", summary.endsAtSurface);
    json.key(u"geometry");
    writeGeometry(json, profileGeometry(drawn, ProfileStyle::read(preferences)));
    json.endObject();
    json.flush();
    console.out << '\n';
}

void showSummary(const Plongee& dive, Console& console) {
    const ProfileDive drawn = profileDiveOf(dive);
    const ProfileSummary summary = summaryOf(drawn.series);
    print(console, textWith("Carnet", "Max and average depth", summary.maximum, summary.average));
    print(console, textWith("Carnet", "Sampling rate", samplingTitle(dive.samplingRate)));
    print(console, textWith("Carnet", "Recorded points", summary.samples));
    for (const EditedSeries& edited : editedSeries) {
        print(console, edited.title.text() + QStringLiteral(": ") + countText(drawn.series, edited));
    }
}

/// What each "SERIES=TEXTFILE" says; a series that does not exist is wrong usage.
Expected<SeriesTexts> textsOf(const std::vector<std::string>& replacements) {
    SeriesTexts texts;
    for (const std::string& replacement : replacements) {
        const auto equals = replacement.find('=');
        const QString name = fromArgument(replacement.substr(0, equals));
        const EditedSeries* edited = editedSeriesNamed(name);
        if (!edited || equals == std::string::npos) {
            wrongUsage(textWith("Cli", "Not a replacement", fromArgument(replacement)));
        }
        const QString path = pathArgument(replacement.substr(equals + 1));
        const auto file = FileBytes::open(path);
        if (!file) {
            return tl::unexpected(openingFailure(path, file.error()));
        }
        texts[static_cast<std::size_t>(edited - editedSeries.data())] = QString::fromUtf8(file->bytes());
    }
    return texts;
}

Expected<void> run(const ProfileArguments& arguments, Console& console) {
    Session session(console);
    session.byForce = arguments.force;
    const QString path = pathArgument(arguments.file);
    if (auto opened = arguments.replacements.empty() ? session.open(path) : session.openToChange(path); !opened) {
        return opened;
    }
    const auto logbook = session.logbook();
    if (!logbook) {
        return tl::unexpected(logbook.error());
    }
    if (auto checked = session.checkRow(arguments.row); !checked) {
        return checked;
    }
    Carnet& carnet = **logbook;
    if (!arguments.replacements.empty()) {
        const auto texts = textsOf(arguments.replacements);
        if (!texts) {
            return tl::unexpected(texts.error());
        }
        carnet.selectRows({arguments.row});
        importProfil(carnet, *texts);
        auto saved = session.save();
        console.fileSaved = saved.has_value();
        return saved;
    }
    const Plongee& dive = *carnet.recordAt(arguments.row);
    if (!arguments.series.empty()) {
        // As the editor has it, so without a line end that would count as a further element when it is read back.
        const EditedSeries& edited = *editedSeriesNamed(fromArgument(arguments.series));
        console.out << editorText(profileDiveOf(dive).series, edited).toStdString();
    } else if (arguments.json) {
        showJson(dive, session.desktop.desktop().preferences, console);
    } else {
        showSummary(dive, console);
    }
    return {};
}

}  // namespace

void addProfileCommand(CLI::App& app, Console& console) {
    const auto arguments = std::make_shared<ProfileArguments>();
    CLI::App* command = app.add_subcommand("profile",
                                           "The recorded profile of a dive: what it amounts to, its picture in "
                                           "figures, its series, and replacing them");
    command->add_option("FILE", arguments->file, "The logbook")->required();
    command->add_option("--row", arguments->row, "The dive's row, from 0")->required();
    auto* json = command->add_flag("--json", arguments->json, "Summary and geometry as JSON");
    std::vector<std::string> names;
    names.reserve(std::size(editedSeries));
    for (const EditedSeries& edited : editedSeries) {
        names.emplace_back(edited.name);
    }
    auto* series = command->add_option("--series", arguments->series, "One series, an element to a line")
                       ->check(CLI::IsMember(names))
                       ->excludes(json);
    auto* replace = command
                        ->add_option("--replace", arguments->replacements,
                                     "SERIES=TEXTFILE: replaces a series by the lines of a file, and saves the logbook")
                        ->excludes(json)
                        ->excludes(series);
    command->add_flag("--force", arguments->force, forceHelp)->needs(replace);
    command->callback([arguments, &console] {
        if (const auto done = run(*arguments, console); !done) {
            fail(console, done.error());
        }
    });
}

}  // namespace tavrel
