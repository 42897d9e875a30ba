#include "base/texts.h"

#include "base/decimalsign.h"
#include "support/printing.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <utility>

namespace tavrel {

namespace {

using Arguments = std::vector<FormatArgument>;
using Table = std::map<QString, QString>;

TEST(Texts, comeInTheChosenLanguage) {
    setTextLanguage(QStringLiteral("fr_CA.UTF-8"));
    EXPECT_EQ(textLanguage(), u"fr");
    EXPECT_EQ(text("Main", "Save"), u"Enregistrer");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annuler");
    for (const auto* name : {"en", "de_DE", "C"}) {
        setTextLanguage(QLatin1String(name));
        EXPECT_EQ(text(Title("Carnet", "Very easy")), u"Very easy") << name;
    }
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Cancel");
    EXPECT_EQ(text("Carnet", "\r   - Shorty"), u"\r   - Shorty");
}

TEST(Texts, haveTheDecimalSignOfTheLanguage) {
    EXPECT_EQ(withDecimalSign(QStringLiteral("1.5 m")), u"1.5 m");
    setTextLanguage(QStringLiteral("fr"));
    EXPECT_EQ(withDecimalSign(QStringLiteral("1.5 m / 0.25")), u"1,5 m / 0,25");
    EXPECT_EQ(withDecimalSign(QStringLiteral("24.12.2023, 1.10.0 puis 3.5")), u"24.12.2023, 1.10.0 puis 3,5");
    EXPECT_EQ(withDecimalSign(QStringLiteral(".5 5. a.b 12.x.")), u".5 5. a.b 12.x.");
}

TEST(Texts, thatAreMissingShowTheFallback) {
    setTextLanguage(QStringLiteral("fr"));
    const auto missing = [](const char* table, const char* key) { return text(table, key, QStringLiteral("N/A")); };
    EXPECT_EQ(missing("Main", "Savf"), u"N/A");
    EXPECT_EQ(missing("Nowhere", "Save"), u"N/A");
    EXPECT_EQ(text(Title()), QString());
}

TEST(Texts, fillFormatsWithoutRegardToTheLocale) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QString words = QStringLiteral("Épave");
    const qint64 large = 5000000000;
    const std::tuple<const char*, Arguments, const char*> cases[] = {
        {"no placeholder", {}, "no placeholder"},
        {"%d %i|%ld|%lld", {qint64(1), qint64(-2), large, large}, "1 -2|5000000000|5000000000"},
        {"%5d|%-5d|%05d|%+d|%.3d",
         {qint64(42), qint64(42), qint64(-42), qint64(42), qint64(7)},
         "   42|42   |-0042|+42|007"},
        {"%u %x", {qint64(7), qint64(255)}, "7 ff"},
        {"%f|%.1f|%6.2f|%lf", {1.5, 0.25, -3.14159, 2.0}, "1.500000|0.2| -3.14|2.000000"},
        {"%e|%g|%g", {1234.5, 0.5, 1e10}, "1.234500e+03|0.5|1e+10"},
        {"%.1f", {qint64(3)}, "3.0"},
        {"%f %5.1f %.1f", {nan, -nan, -std::numeric_limits<double>::infinity()}, "nan   nan -inf"},
        {"%@ m, %@ l, %s", {18.5, qint64(12), words}, "18.5 m, 12 l, Épave"},
        {"[%7@][%-7s][%.2s]", {words, words, words}, "[  Épave][Épave  ][Ép]"},
        {"100 %% O₂ (%d%%)", {qint64(1)}, "100 % O₂ (1%)"},
        {"%@", {QStringLiteral("%d %@")}, "%d %@"},
    };
    for (const auto& [format, arguments, result] : cases) {
        EXPECT_EQ(fillFormat(QString::fromUtf8(format), arguments, QStringLiteral("?")), QString::fromUtf8(result))
            << format;
    }
    const std::pair<const char*, Arguments> unfit[] = {
        {"%d", {1.5}},
        {"%d", {words}},
        {"%u", {qint64(-1)}},
        {"%f", {words}},
        {"%d", {}},
        {"%d", {qint64(1), qint64(2)}},
        {"%", {}},
        {"50 % of", {}},
        {"%5", {qint64(1)}},
        {"%n", {qint64(1)}},
        {"%*d", {qint64(5), qint64(1)}},
        {"%1$d", {qint64(1)}},
        {"%99999999999d", {qint64(1)}},
    };
    for (const auto& [format, arguments] : unfit) {
        EXPECT_EQ(fillFormat(QString::fromUtf8(format), arguments, QStringLiteral("?")), u"?") << format;
    }
    setTextLanguage(QStringLiteral("fr"));
    EXPECT_EQ(textWith("Carnet", "Found dives", 3), u"3 plongées trouvées");
    EXPECT_EQ(textWith("Carnet", "Found dives", Fallback{QStringLiteral("N/A")}, QStringLiteral("three")), u"N/A");
    EXPECT_EQ(fillFormat(QStringLiteral("%@"), {formatArgument(0.1F)}), u"0.1");
    EXPECT_EQ(fillFormat(QStringLiteral("%.1f"), {formatArgument(std::numeric_limits<float>::quiet_NaN())}), u"nan");
}

/// The messages of a .ts file, in order; fails the test on a malformed file, a key met twice or out of order.
Table readTable(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    Table table;
    QString key;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source") {
            const QString previous = key;
            key = xml.readElementText();
            EXPECT_LT(previous, key) << path.toStdString() << ": keys are sorted, each there once";
        } else if (xml.isStartElement() && xml.name() == u"translation") {
            EXPECT_TRUE(xml.attributes().isEmpty());
            table[key] = xml.readElementText();
            EXPECT_FALSE(table[key].isEmpty()) << path.toStdString() << ": " << key.toStdString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return table;
}

/// All tables of a language by name.
std::map<QString, Table> readLanguage(const QString& language) {
    std::map<QString, Table> tables;
    const QDir folder(QStringLiteral(TAVREL_SOURCE_FOLDER "/resources/texts/") + language);
    for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("*.ts")})) {
        tables[file.completeBaseName()] = readTable(file.filePath());
    }
    return tables;
}

TEST(TextTables, haveTheSameKeysAndPlaceholdersInEveryLanguage) {
    const auto english = readLanguage(QStringLiteral("en"));
    ASSERT_FALSE(english.empty());
    const QDir languages(QStringLiteral(TAVREL_SOURCE_FOLDER "/resources/texts"));
    for (const QString& language : languages.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const auto tables = readLanguage(language);
        EXPECT_EQ(tables.size(), english.size()) << language.toStdString();
        setTextLanguage(language);
        for (const auto& [name, table] : english) {
            const Table other = tables.contains(name) ? tables.at(name) : Table();
            EXPECT_EQ(other.size(), table.size()) << language.toStdString() << ' ' << name.toStdString();
            for (const auto& [key, words] : table) {
                const auto where = QStringList{language, name, key}.join(u' ').toStdString();
                ASSERT_TRUE(other.contains(key)) << where;
                EXPECT_FALSE(formatPlaceholders(words).isNull()) << where;
                EXPECT_EQ(formatPlaceholders(other.at(key)), formatPlaceholders(words)) << where;
                EXPECT_EQ(text(name.toUtf8(), key.toUtf8()), other.at(key)) << where << " is not compiled in";
            }
        }
    }
}

QString unescaped(QString literal) {
    literal.replace(QStringLiteral("\\r"), QStringLiteral("\r"));
    literal.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
    literal.replace(QStringLiteral("\\\""), QStringLiteral("\""));
    return literal;
}

TEST(TextTables, holdTheKeysThatTheCodeUsesAndNoOthers) {
    const auto english = readLanguage(QStringLiteral("en"));
    // text("Table", "Key", textWith("Table", "Key", Title("Table", "Key"), Title name{"Table", "Key"}, {"Table", "Key"}
    const QRegularExpression use(QStringLiteral(
        R"re((?:\b(text|textWith|Title(?:\s+\w+)?)\s*[({]|\{)\s*"((?:[^"\\]|\\.)*)"\s*,\s*"((?:[^"\\]|\\.)*)")re"));
    std::set<std::pair<QString, QString>> used;
    QDirIterator files(QStringLiteral(TAVREL_SOURCE_FOLDER "/src"), {QStringLiteral("*.h"), QStringLiteral("*.cpp")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QString code = QString::fromUtf8(file.readAll());
        code.remove(QRegularExpression(QStringLiteral(R"(^\s*//.*$)"), QRegularExpression::MultilineOption));
        // A sentence for the user comes from a table, whatever is made of it.
        const QRegularExpression sentence(
            QStringLiteral(R"re((?:QStringLiteral|failure)\(u?"[A-ZÀ-Ý][^"]* [^"]*[.!?]")re"));
        EXPECT_FALSE(sentence.match(code).hasMatch())
            << file.fileName().toStdString() << ": " << sentence.match(code).captured().toStdString();
        // Nor does the command line say what is in none: all that it says in words of its own is there.
        const QRegularExpression spoken(QStringLiteral(R"re((?<!u)"([A-Za-z]+(?: [a-z]+)+) ?")re"));
        for (auto matches = spoken.globalMatch(file.fileName().contains(u"/cli/") ? code : QString());
             matches.hasNext();) {
            const QString words = matches.next().captured(1);
            EXPECT_TRUE(std::any_of(english.begin(), english.end(),
                                    [&](const auto& table) { return table.second.contains(words); }))
                << file.fileName().toStdString() << ": " << words.toStdString();
        }
        for (auto matches = use.globalMatch(code); matches.hasNext();) {
            const auto match = matches.next();
            const QString table = unescaped(match.captured(2));
            const QString key = unescaped(match.captured(3));
            const auto where = QStringList{file.fileName(), table, key}.join(u' ').toStdString();
            const auto found = english.find(table);
            used.emplace(table, key);
            if (match.captured(1).isEmpty() && found == english.end()) {
                continue;  // a pair of other texts
            }
            if (found == english.end() || !found->second.contains(key)) {
                ADD_FAILURE() << where << " is in no table";
            } else if (match.captured(1) == u"textWith") {
                EXPECT_FALSE(formatPlaceholders(found->second.at(key)).isEmpty()) << where << " has nothing to fill";
            }
        }
    }
    for (const auto& [name, table] : english) {
        for (const auto& [key, words] : table) {
            // What the command line says of itself is looked up by its own words.
            EXPECT_TRUE(name == u"Help" || used.contains({name, key}))
                << name.toStdString() << ' ' << key.toStdString() << " is used by nothing";
        }
    }
}

}  // namespace

}  // namespace tavrel
