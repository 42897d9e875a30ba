#pragma once

#include "archive/recordarchive.h"
#include "cli/fieldtext.h"
#include "dives/plongee.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/records.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

#include <initializer_list>
#include <vector>

namespace tavrel {

/// The words of a command, of which those in double quotes may hold blanks.
inline QStringList words(const char* command) {
    return QProcess::splitCommand(QString::fromUtf8(command));
}

/// Runs the command line in a folder of its own, in UTC and English, with settings of its own. Its logbook is a.carnet.
struct CommandLine : testing::Test {
    struct Outcome {
        int code = -1;
        QString out;
        QString error;
    };
    struct Refusal {
        const char* command;
        int code;
        const char* reason;  ///< is in what the command says
    };
    QString path(const QString& name) const { return folder_.filePath(name); }

    void writeSettings(const QByteArray& bytes) const {
        ASSERT_TRUE(QDir(path(QString())).mkpath(QStringLiteral("config/Tavrel")));
        writeContents(path(QStringLiteral("config/Tavrel/tavrel.ini")), bytes);
    }

    Outcome run(const QStringList& arguments, const QString& program = QStringLiteral(TAVREL_CLI)) const {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), path(QStringLiteral("state")));
        environment.insert(QStringLiteral("LC_ALL"), language);
        environment.insert(QStringLiteral("LANGUAGE"), QString());
        environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder_.path());
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << arguments.join(u' ').toStdString();
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    Outcome run(const char* command) const { return run(words(command)); }

    /// Runs a command that must succeed silently; what it prints.
    QString done(const QStringList& arguments) const {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.code, 0) << arguments.join(u' ').toStdString() << ": " << outcome.error.toStdString();
        EXPECT_EQ(outcome.error, QString()) << arguments.join(u' ').toStdString();
        return outcome.out;
    }
    QString done(const char* command) const { return done(words(command)); }
    QJsonObject json(const char* command) const {
        const QString out = done(command);
        EXPECT_TRUE(out.endsWith(u"}\n")) << command << ": " << out.toStdString();
        return QJsonDocument::fromJson(out.toUtf8()).object();
    }

    /// What stands at the paths of an object, each as text: "counts.air total" as "2|4".
    static QString at(const QJsonObject& object, const char* paths) {
        return eachOf(paths, [&](const char* path) {
            QJsonValue value = object;
            for (const QString& step : QString::fromUtf8(path).split(u'.')) {
                value = value.isArray() ? value[step.toInt()] : value[step];
            }
            return value.toVariant().toString();
        });
    }

    void expectRefusals(std::initializer_list<Refusal> refusals) const {
        for (const auto& [command, code, reason] : refusals) {
            const Outcome outcome = run(command);
            EXPECT_EQ(outcome.code, code) << command;
            EXPECT_TRUE(outcome.error.contains(QString::fromUtf8(reason)))
                << command << ": " << outcome.error.toStdString();
            EXPECT_EQ(outcome.out, QString()) << command;
        }
    }

    QByteArray bytes() const { return contentsOf(path(QStringLiteral("a.carnet"))); }
    /// The dives of the logbook, read without the command line.
    std::vector<DivePointer> dives() const {
        const auto read = readRecords(bytes(), Plongee::layout());
        EXPECT_TRUE(read.has_value());
        return read ? allAs<Plongee>(read->records) : std::vector<DivePointer>();
    }
    /// Fields of a dive, as the command line would take them: "lieu=Nice|temps=40".
    void expectValues(std::size_t row, const char* values) const {
        const auto held = dives();
        ASSERT_LT(row, held.size());
        for (const auto& [name, expected] : namedValues(values)) {
            const Field field = Plongee::layout().field(std::string_view(name));
            ASSERT_FALSE(field.isNull()) << name;
            EXPECT_EQ(fieldText(field.value(*held[row])), expected) << row << ' ' << name;
        }
    }

    QString language = QStringLiteral("C.UTF-8");

private:
    QTemporaryDir folder_;
};

/// With an empty logbook.
struct LogbookCommands : CommandLine {
    LogbookCommands() { done("new Plongee a.carnet"); }
};

}  // namespace tavrel
