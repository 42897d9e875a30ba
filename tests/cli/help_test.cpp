#include "cli/commandrunner.h"

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

struct Help : CommandLine {
    void SetUp() override { language = QStringLiteral("fr_FR.UTF-8"); }
};

TEST_F(Help, speaksTheUsersLanguage) {
    const QString help = done("show --help") + done("--help");
    for (const char* words : {"Liste les fiches d’un document", "Utilisation", "Affiche cette aide", "Commandes:"}) {
        EXPECT_TRUE(help.contains(QString::fromUtf8(words))) << words << '\n' << help.toStdString();
    }
    for (const char* words : {"Usage", "Print this", "The document", "Subcommands"}) {
        EXPECT_FALSE(help.contains(QString::fromUtf8(words))) << words << '\n' << help.toStdString();
    }
}

TEST_F(Help, saysWhatIsWrongInTheUsersLanguage) {
    expectRefusals({{"", 2, "Il manque une commande.\nL’option --help en dit plus.\n"},
                    {"calc", 2, "calculateur"},
                    {"show", 2, "Il manque FILE."},
                    {"show a \x1b", 2, "Inattendu : \u241B"},
                    {"show a --json --columns x", 2, "--json ne va pas avec --columns."},
                    {"import a b --json", 2, "--json ne va pas sans --dry-run."},
                    {"renumber a one", 2, "FIRST : « one » n’est pas"},
                    {"render a b --what x", 2, "--what : « x » ne fait pas partie de table, card,"},
                    {"calc convert --from fathoms", 2, "« fathoms »"},
                    {"render a b --what", 2, "--what : il manque la valeur."},
                    {"form a --row 1 --row 2", 2, "--row ne peut être donné qu’une fois."}});
}

TEST_F(Help, leavesNothingInAnotherLanguage) {
    const QStringList french = descriptions(done("shell-file man"));
    language = QStringLiteral("C.UTF-8");
    const QStringList english = descriptions(done("shell-file man"));
    EXPECT_TRUE(english.join(u'\n').contains(u"Lists the records of a document"));
    ASSERT_EQ(english.size(), french.size());
    EXPECT_GT(english.size(), 60);
    for (qsizetype place = 0; place < english.size(); ++place) {
        EXPECT_NE(english[place], french[place]) << english[place].toStdString();
    }
}

}  // namespace

}  // namespace tavrel
