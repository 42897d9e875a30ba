#pragma once

#include "archive/recordarchive.h"
#include "cli/fieldtext.h"
#include "dives/plongee.h"
#include "support/printing.h"
#include "support/records.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace tavrel {

inline QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeContents(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// Runs the command line in a folder of its own, in UTC and English, with settings of its own.
class CommandLine : public testing::Test {
protected:
    struct Outcome {
        int code = -1;
        QString out;
        QString error;
    };

    QString path(const QString& name) const { return folder_.filePath(name); }

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

    /// Runs a command given as words that must succeed silently; what it prints.
    QString done(const QStringList& arguments) const {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.code, 0) << arguments.join(u' ').toStdString() << ": " << outcome.error.toStdString();
        EXPECT_EQ(outcome.error, QString()) << arguments.join(u' ').toStdString();
        return outcome.out;
    }
    QString done(const char* words) const { return done(QString::fromUtf8(words).split(u' ')); }

    /// The dives of a logbook, read without the command line.
    std::vector<DivePointer> dives(const QString& file) const {
        const auto read = readRecords(contentsOf(path(file)), Plongee::layout());
        EXPECT_TRUE(read.has_value()) << file.toStdString();
        return read ? allAs<Plongee>(read->records) : std::vector<DivePointer>();
    }
    /// A field of a dive, as the command line would take it.
    QString value(const QString& file, std::size_t row, std::string_view field) const {
        const auto held = dives(file);
        const Field found = Plongee::layout().field(field);
        return row < held.size() && !found.isNull() ? fieldText(found.value(*held[row])) : QStringLiteral("?");
    }

    QString language = QStringLiteral("C.UTF-8");

private:
    QTemporaryDir folder_;
};

}  // namespace tavrel
