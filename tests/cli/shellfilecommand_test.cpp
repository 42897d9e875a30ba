#include "cli/shellfilecommand.h"

#include "support/printing.h"

#include <CLI/CLI.hpp>
#include <QProcess>
#include <QTemporaryDir>

#include <fstream>

namespace tavrel {

namespace {

struct ShellFiles : testing::Test {
    ShellFiles() : app("The program's own words - and more", "some-program") {
        app.set_version_flag("--version", "1");
        app.add_option("--now", text, "The moment");
        app.footer("Ends with 0.\n.5 is a number.");
        CLI::App* draw = app.add_subcommand("draw", "Draws it");
        draw->add_option("FILE", text, "What to draw")->required();
        draw->add_option("ROW", rows, "Which rows");
        draw->add_option("-w,--what", text, "The part")->check(CLI::IsMember({"table", "card"}));
        draw->add_option("--size", number, "In points, \\n");
        draw->add_flag("--json", flag, "As JSON");
        CLI::App* calc = app.add_subcommand("calc", "Calculates");
        calc->add_subcommand("mod", "A depth")->add_option("--o2", number, "In percent")->required();
        calc->add_subcommand("mix", "A mix");
        app.add_subcommand("secret", "Hidden")->group("");
    }

    /// What bash would offer for the last of the words.
    QString offered(const char* typed) {
        const QString script = folder.filePath(QStringLiteral("completion"));
        std::ofstream(script.toStdString()) << bashCompletion(app);
        QProcess bash;
        bash.start(QStringLiteral("bash"),
                   {QStringLiteral("-c"),
                    QStringLiteral("source \"$0\"; COMP_WORDS=(some-program %1); COMP_CWORD=$((${#COMP_WORDS[@]}-1)); "
                                   "_some_program; echo \"${COMPREPLY[*]}\"")
                        .arg(QLatin1String(typed)),
                    script});
        EXPECT_TRUE(bash.waitForFinished());
        EXPECT_EQ(QString::fromUtf8(bash.readAllStandardError()), QString());
        return QString::fromUtf8(bash.readAllStandardOutput()).trimmed();
    }

    CLI::App app;
    QTemporaryDir folder;
    std::string text;
    std::vector<int> rows;
    int number = 0;
    bool flag = false;
};

TEST_F(ShellFiles, completeCommandsOptionsAndChoices) {
    EXPECT_EQ(offered("''"), u"draw calc -h --help --version --now");
    EXPECT_EQ(offered("c"), u"calc");
    EXPECT_EQ(offered("calc m"), u"mod mix");
    EXPECT_EQ(offered("calc mod --"), u"--help --o2 --now");
    EXPECT_EQ(offered("draw some.file --j"), u"--json");
    EXPECT_EQ(offered("draw --what ''"), u"table card");
    EXPECT_EQ(offered("draw -w c"), u"card");
    // A value that may be anything, and a place that takes none of the words: left to bash, which knows the files.
    EXPECT_EQ(offered("draw --size ''"), QString());
    EXPECT_EQ(offered("draw --now ''"), QString());
    EXPECT_EQ(offered("draw calc"), QString());
    EXPECT_EQ(offered("secret --"), u"--help --version --now");
}

TEST_F(ShellFiles, describeEveryCommand) {
    const QString page = QString::fromStdString(manualPage(app));
    const char* draw =
        ".SS \\&some\\-program draw [\\-\\-what table|card] [\\-\\-size VALUE] [\\-\\-json] FILE [ROW...]\n\\&Draws "
        "it\n";
    for (const char* lines : {
             ".TH \\&SOME\\-PROGRAM 1\n",
             ".SH NAME\n\\&some\\-program \\- \\&The program's own words \\- and more\n",
             draw,
             ".TP\n.B \\&\\-w, \\-\\-what table|card\n\\&The part\n",
             ".TP\n.B \\&\\-\\-size VALUE\n\\&In points, \\en\n",
             ".TP\n.B \\&ROW\n\\&Which rows\n",
             ".SS \\&some\\-program calc mod \\-\\-o2 VALUE\n\\&A depth\n",
             "\\&Ends with 0.\n\\&.5 is a number.\n",
         }) {
        EXPECT_TRUE(page.contains(QString::fromUtf8(lines))) << lines << "\nis missing in\n" << page.toStdString();
    }
    EXPECT_FALSE(page.contains(u"secret"));
}

}  // namespace

}  // namespace tavrel
