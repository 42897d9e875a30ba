#include "cli/commandrunner.h"

#include <QRegularExpression>

namespace tavrel {

namespace {

/// What the manual says of commands and options, the lines behind their names.
QStringList descriptions(const QString& page) {
    QStringList found;
    const QStringList lines = page.split(u'\n');
    for (qsizetype line = 2; line < lines.size(); ++line) {
        if (lines[line - 2] == u".TP" || lines[line - 1].startsWith(QStringLiteral(".SS"))) {
            found.append(lines[line]);
        }
    }
    return found;
}

class Help : public CommandLine {};

TEST_F(Help, speaksTheUsersLanguage) {
    const QString english = run({QStringLiteral("show"), QStringLiteral("--help")}).out;
    EXPECT_TRUE(english.contains(u"Lists the records of a document")) << english.toStdString();
    language = QStringLiteral("fr_FR.UTF-8");
    const QString french = run({QStringLiteral("show"), QStringLiteral("--help")}).out;
    for (const char* words : {"Liste les fiches d’un document", "Utilisation", "Affiche cette aide", "Le document"}) {
        EXPECT_TRUE(french.contains(QString::fromUtf8(words))) << words << '\n' << french.toStdString();
    }
    for (const char* words : {"Usage", "Print this", "The document"}) {
        EXPECT_FALSE(french.contains(QString::fromUtf8(words))) << words << '\n' << french.toStdString();
    }
    const QString program = run({QStringLiteral("--help")}).out;
    EXPECT_TRUE(program.contains(u"Commandes:")) << program.toStdString();
    EXPECT_FALSE(program.contains(u"Subcommands")) << program.toStdString();
}

TEST_F(Help, leavesNothingInAnotherLanguage) {
    const QStringList manual{QStringLiteral("shell-file"), QStringLiteral("man")};
    const QStringList english = descriptions(run(manual).out);
    language = QStringLiteral("fr_FR.UTF-8");
    const QStringList french = descriptions(run(manual).out);
    ASSERT_EQ(english.size(), french.size());
    EXPECT_GT(english.size(), 60);
    for (qsizetype place = 0; place < english.size(); ++place) {
        EXPECT_NE(english[place], french[place]) << english[place].toStdString();
    }
}

}  // namespace

}  // namespace tavrel
