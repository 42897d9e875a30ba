// Holds every include of every room against the links that the room's CMake file declares.

#include "support/files.h"

#include <QDir>
#include <QDirIterator>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

namespace {

/// The rooms by their folder in src/, each with the libraries that it links, straight or through others.
class House {
public:
    explicit House(const QString& list) {
        QHash<QString, QString> folders;
        QHash<QString, QStringList> links;
        for (const auto& line : list.split(u'\n', Qt::SkipEmptyParts)) {
            const auto halves = line.split(u':');
            const auto names = halves[0].split(u' ');
            folders[names[1]] = names[0];
            links[names[1]] = halves[1].split(u' ', Qt::SkipEmptyParts);
        }
        for (const auto& [library, folder] : folders.asKeyValueRange()) {
            QStringList open{library};
            while (!open.isEmpty()) {
                const QString next = open.takeLast();
                if (!reach_[folder].contains(folders[next])) {
                    reach_[folder].insert(folders[next]);
                    open += links[next];
                }
            }
        }
    }

    QStringList rooms() const { return reach_.keys(); }
    bool mayInclude(const QString& room, const QString& other) const { return reach_[room].contains(other); }

private:
    QHash<QString, QSet<QString>> reach_;
};

/// Every include that crosses a wall, as "file:line includes header".
QStringList breaches(const House& house, const QString& sourceFolder) {
    static const QRegularExpression include(QStringLiteral("^\\s*#\\s*include\\s*([<\"])(.*)/[^/\">]+[\">]"));
    QStringList found;
    for (const auto& room : house.rooms()) {
        QDirIterator files(sourceFolder + u'/' + room, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files);
        while (files.hasNext()) {
            const QString path = files.next();
            const auto lines = QString::fromUtf8(tavrel::contentsOf(path)).split(u'\n');
            for (qsizetype line = 0; line < lines.size(); ++line) {
                const auto match = include.match(lines[line]);
                // In angle brackets stand the system's folders too.
                const bool isRoom = match.captured(1) == u'"' || house.rooms().contains(match.captured(2));
                if (match.hasMatch() && isRoom && !house.mayInclude(room, match.captured(2))) {
                    found << QStringLiteral("%1:%2: %3").arg(path).arg(line + 1).arg(lines[line]);
                }
            }
        }
    }
    return found;
}

TEST(Walls, noRoomIncludesWhatItDoesNotLink) {
    const House house(QString::fromUtf8(tavrel::contentsOf(QStringLiteral(TAVREL_ROOMS))));
    ASSERT_GT(house.rooms().size(), 10);
    EXPECT_EQ(breaches(house, QStringLiteral(TAVREL_SOURCE_FOLDER "/src")).join(u'\n').toStdString(), "");
}

TEST(Walls, everyFolderWithSourcesIsARoom) {
    const House house(QString::fromUtf8(tavrel::contentsOf(QStringLiteral(TAVREL_ROOMS))));
    const QStringList programs{QStringLiteral("app/start")};
    const QDir source(QStringLiteral(TAVREL_SOURCE_FOLDER "/src"));
    QDirIterator files(source.path(), {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString folder = source.relativeFilePath(QFileInfo(files.next()).path());
        EXPECT_TRUE(house.rooms().contains(folder) || programs.contains(folder)) << folder.toStdString();
    }
}

TEST(Walls, aBreachIsFoundWithItsFileAndLine) {
    // Seen from below: base reaches nothing, so every include of another room in records is a breach for it.
    const House house(QStringLiteral("records tavrel_records: \nbase tavrel_base: tavrel_records\n"));
    const auto found = breaches(house, QStringLiteral(TAVREL_SOURCE_FOLDER "/src"));
    ASSERT_FALSE(found.isEmpty());
    EXPECT_TRUE(
        found.first().contains(QRegularExpression(QStringLiteral("/records/\\w+\\.(h|cpp):\\d+: #include \"base/"))))
        << found.first().toStdString();
}

}  // namespace
