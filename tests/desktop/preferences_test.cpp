#include "desktop/preferences.h"

#include "archive/colorarchive.h"
#include "desktop/defaults.h"
#include "support/files.h"
#include "support/records.h"
#include "support/streambytes.h"
#include "support/testdesktop.h"

#include <sys/stat.h>

namespace tavrel {

namespace {

constexpr Setting<QColor> plotColor{"plot color", Rgb{1, 0, 0}};
constexpr const char* settingKey = "low temperature value";
const QString key = QString::fromLatin1(settingKey);

/// The preferences as another run of the program finds them: a copy of the file, which no open store knows.
std::unique_ptr<Preferences> nextRun(const TestDesktop& desktop) {
    const QString copy = desktop.path(QStringLiteral("next.ini"));
    EXPECT_TRUE(QFile::copy(desktop.path(QStringLiteral("preferences.ini")), copy));
    return std::make_unique<Preferences>(copy);
}

TEST(Preferences, readEveryKindBackInTheNextRun) {
    TestDesktop desktop;
    Preferences& now = desktop.preferences;
    const QStringList texts{QString(), QStringLiteral("yes, \"quoted\"; = [x] % \\ é ß 潜水"),
                            QStringLiteral(" blanks around "), QStringLiteral("@Invalid()"),
                            QStringLiteral("two\r\nlines\ttab")};
    const QList<QStringList> lists{
        {},
        {QString()},
        {QString(), QString()},
        {QStringLiteral("Port-Cros, la Gabinière")},
        {QStringLiteral("@home"), QStringLiteral("Ärger, Öl"), QString(), QStringLiteral(" x ")}};
    {
        const Preferences::Together together(now);
        now.set(QStringLiteral("yes"), true);
        now.set(QStringLiteral("no"), false);
        now.set(QStringLiteral("whole"), -50);
        now.set(QStringLiteral("fraction"), 0.1);
        for (int i = 0; i < texts.size(); ++i) {
            now.set(QStringLiteral("text %1").arg(i), texts[i]);
        }
        for (int i = 0; i < lists.size(); ++i) {
            now.set(QStringLiteral("list %1").arg(i), lists[i]);
        }
        now.set(plotColor, QColor::fromRgbF(1.0F, 0.5F, 0.0F, 0.25F));
        now.setWindowState(QStringLiteral("Nitrox Prof Max"), QByteArray("\0\xff,x", 4));
    }
    const auto next = nextRun(desktop);
    for (const Preferences* run : std::initializer_list<const Preferences*>{&now, next.get()}) {
        EXPECT_TRUE(run->get(Setting<bool>{"yes"}));
        EXPECT_EQ(run->string(QStringLiteral("yes")), u"1");
        EXPECT_TRUE(run->isStored(QStringLiteral("no")));
        EXPECT_FALSE(run->get(Setting<bool>{"no"}));
        EXPECT_EQ(run->get(Setting<qint32>{"whole"}), -50);
        EXPECT_EQ(run->real(QStringLiteral("fraction")), 0.1);
        for (int i = 0; i < texts.size(); ++i) {
            EXPECT_EQ(run->string(QStringLiteral("text %1").arg(i)), texts[i]);
        }
        for (int i = 0; i < lists.size(); ++i) {
            EXPECT_TRUE(run->isStored(QStringLiteral("list %1").arg(i)));
            EXPECT_EQ(run->strings(QStringLiteral("list %1").arg(i)), lists[i]) << i;
        }
        const QColor color = run->get(Setting<QColor>{"plot color"});
        EXPECT_NEAR(color.greenF(), 0.5, 1e-4);
        EXPECT_NEAR(color.alphaF(), 0.25, 1e-4);
        EXPECT_EQ(run->windowState(QStringLiteral("Nitrox Prof Max")), QByteArray("\0\xff,x", 4));
    }
}

TEST(Preferences, readAWrongKindAsTheDefault) {
    TestDesktop desktop;
    Preferences& preferences = desktop.preferences;
    preferences.registerDefaults({{QStringLiteral("b"), true},
                                  {QStringLiteral("n"), 7},
                                  {QStringLiteral("s"), QStringLiteral("FRA")},
                                  {QStringLiteral("l"), QStringList{QStringLiteral("x"), QStringLiteral("y")}}});
    const QStringList list{QStringLiteral("1"), QStringLiteral("2")};
    for (const auto* name : {"b", "n", "s"}) {
        preferences.set(QLatin1String(name), list);
    }
    preferences.set(QStringLiteral("l"), QByteArray("bytes"));
    preferences.set(plotColor.name(), QStringLiteral("blue"));
    EXPECT_TRUE(preferences.get(Setting<bool>{"b"}));
    EXPECT_EQ(preferences.get(Setting<qint32>{"n"}), 7);
    EXPECT_EQ(preferences.string(QStringLiteral("s")), u"FRA");
    EXPECT_EQ(preferences.strings(QStringLiteral("l")).size(), 2);
    EXPECT_EQ(preferences.get(plotColor), QColor(Qt::red));
    EXPECT_FALSE(preferences.get(Setting<QColor>{plotColor.key}).isValid());
    EXPECT_EQ(preferences.get(Setting<qint32>{"n", 8}), 7);
    EXPECT_EQ(preferences.get(Setting<double>{"l", 0.25}), 0.25);
    EXPECT_EQ(preferences.get(Setting<QString>{"l", "é"}), QStringLiteral("é"));
    preferences.set(QStringLiteral("n"), QStringLiteral("deep"));
    preferences.set(QStringLiteral("b"), QStringLiteral("perhaps"));
    EXPECT_EQ(preferences.real(QStringLiteral("n")), 7.0);
    EXPECT_TRUE(preferences.get(Setting<bool>{"b"}));
    // Without a default either: the zero of the kind.
    preferences.set(key, list);
    EXPECT_EQ(preferences.get(Setting<qint32>{settingKey}), 0);
    EXPECT_FALSE(preferences.get(Setting<bool>{settingKey}));
    EXPECT_FALSE(preferences.get(Setting<QColor>{"no such color"}).isValid());
}

TEST(Preferences, readTextsAsBooleansAndNumbers) {
    TestDesktop desktop;
    Preferences& preferences = desktop.preferences;
    for (const auto& [text, expected] :
         namedValues("YES=true 0 0|yes=true 0 0|true=true 0 0|NO=false 0 0|1=true 1 1|0=false 0 0|0.5=true 0 0.5|"
                     "-3,7 m=true -3 -3.7|=false 0 0|0.0=false 0 0|1e10=true 2147483647 1e+10")) {
        preferences.set(key, QString::fromStdString(text));
        EXPECT_EQ(QVariant(preferences.get(Setting<bool>{settingKey})).toString() + u' ' +
                      QString::number(preferences.get(Setting<qint32>{settingKey})) + u' ' +
                      QString::number(preferences.real(key)),
                  expected)
            << text;
    }
}

TEST(Preferences, thatCannotBeWrittenStayInMemory) {
    const TestDesktop desktop;
    const QString obstacle = desktop.path(QStringLiteral("obstacle"));
    writeContents(obstacle, "");
    const QString file = obstacle + QStringLiteral("/folder/tavrel.ini");
    Preferences preferences(file);
    preferences.set(key, 12);
    EXPECT_EQ(preferences.get(Setting<qint32>{settingKey}), 12);
    RecordingAlerts alerts;
    preferences.synchronize(alerts);
    preferences.synchronize(alerts);
    EXPECT_EQ(alerts.failures.size(), 1U) << "told once";
    const auto result = preferences.synchronize();
    ASSERT_FALSE(result);
    EXPECT_TRUE(result.error().sentence.contains(u"obstacle/folder/tavrel.ini"));
    // The obstacle gone, the next attempt succeeds and the value is there.
    ASSERT_TRUE(QFile::remove(obstacle));
    EXPECT_TRUE(preferences.synchronize());
    EXPECT_TRUE(contentsOf(file).contains("=12"));
}

TEST(Preferences, registerWhatNoSettingFallsBackTo) {
    const TestDesktop desktop;
    EXPECT_EQ(desktop.preferences.string(QStringLiteral("stop_interval")), u"3");
    EXPECT_EQ(desktop.preferences.string(QStringLiteral("stop interval")), QString());
    EXPECT_EQ(desktop.preferences.get(Setting<QColor>{"ASC color"}), QColor(Qt::yellow));
}

TEST(Preferences, keepTheSpaceOfAColor) {
    TestDesktop desktop;
    constexpr Setting<QColor> background{"background color", grey(0.5F)};
    const auto stored = [&] {
        return QSettings(desktop.path(QStringLiteral("preferences.ini")), QSettings::IniFormat)
            .value(background.name())
            .toByteArray();
    };
    // The grey of the fallback is a white; the same grey as the user's own colour is RGB.
    desktop.preferences.set(background, desktop.preferences.get(background));
    EXPECT_EQ(stored(), archivedWhite(0.5F));
    desktop.preferences.set(background, QColor::fromRgbF(0.702F, 0.702F, 0.702F));
    EXPECT_TRUE(stored().contains(streamBytes(R"(84"c" 01 84"ffff")"))) << "calibrated, with its alpha";
    // A component travels as the decimal it was given as: 0.702, three times.
    EXPECT_EQ(stored().count(QByteArray::fromHex("46b6333f")), 3);
    desktop.preferences.set(background.name(), archivedWhite(0.25F));
    desktop.preferences.set(background, desktop.preferences.get(background));
    EXPECT_EQ(stored(), archivedWhite(0.25F));
}

TEST(Preferences, ofOneRunLeaveTheFileAsItIs) {
    TestDesktop desktop;
    desktop.preferences.set(QStringLiteral("country code"), QStringLiteral("FRA"));
    desktop.preferences.set(QStringLiteral("tank volume"), 12);
    {
        Preferences run(desktop.path(QStringLiteral("preferences.ini")), Preferences::Keeping::thisRun);
        EXPECT_EQ(run.string(QStringLiteral("country code")), u"FRA");
        run.set(QStringLiteral("country code"), QStringLiteral("EGY"));
        EXPECT_EQ(run.string(QStringLiteral("country code")), u"EGY");
    }
    const auto next = nextRun(desktop);
    EXPECT_EQ(next->string(QStringLiteral("country code")), u"FRA");
    EXPECT_EQ(next->get(Setting<qint32>{"tank volume"}), 12);
}

TEST(PickLists, areFilledStoredAndSortedByCharacterCode) {
    TestDesktop desktop;
    PickLists& lists = desktop.pickLists;
    for (const auto* name : {"été", "abc", "Zoo", "", "abc"}) {
        lists.append(PickList::tableauDesLieux, QString::fromUtf8(name));
    }
    lists.sort(PickList::tableauDesLieux);
    lists.store(PickList::tableauDesLieux);
    const QStringList sorted{QString(), QStringLiteral("Zoo"), QStringLiteral("abc"), QStringLiteral("abc"),
                             QStringLiteral("été")};
    EXPECT_EQ(lists[PickList::tableauDesLieux], sorted);

    const auto next = nextRun(desktop);
    PickLists filled(*next);
    startDesktop(*next, filled);
    EXPECT_EQ(filled[PickList::tableauDesLieux], sorted);
    filled.remove(PickList::tableauDesLieux, {4, 0, 4, 2, 99, -1});
    EXPECT_EQ(filled[PickList::tableauDesLieux], (QStringList{QStringLiteral("Zoo"), QStringLiteral("abc")}));
    filled.reload(PickList::tableauDesLieux);
    EXPECT_EQ(filled[PickList::tableauDesLieux], sorted);
}

TEST(PickLists, defaultToWhatIsStoredAndTheActivitiesToTheServices) {
    TestDesktop desktop;
    desktop.pickLists.append(PickList::tableauDesPrestations, QStringLiteral("Baptême"));
    desktop.pickLists.store(PickList::tableauDesPrestations);
    desktop.pickLists.store(PickList::tableauDesPrestations, QStringLiteral("type materiel"));
    const auto next = nextRun(desktop);
    PickLists lists(*next);
    startDesktop(*next, lists);
    const QStringList services{QStringLiteral("Baptême")};
    EXPECT_EQ(lists[PickList::tableauDesTypesMatos], services);
    EXPECT_TRUE(lists[PickList::tableauDesActivites].isEmpty());
    lists.append(PickList::tableauDesPrestations, QStringLiteral("Stage"));
    lists.store(PickList::tableauDesPrestations);
    lists.reload(PickList::tableauDesActivites);
    EXPECT_EQ(lists[PickList::tableauDesActivites], services);
    next->set(QStringLiteral("activite"), QStringList());
    lists.reload(PickList::tableauDesActivites);
    EXPECT_TRUE(lists[PickList::tableauDesActivites].isEmpty());
}

TEST(Preferences, areReadFromSaneFilesOnly) {
    TestDesktop desktop;
    const QString pipe = desktop.path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString large = desktop.path(QStringLiteral("large"));
    QFile file(large);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(50 << 20));
    for (const QString& path : {pipe, large, QStringLiteral("/dev/zero"), desktop.path(QString())}) {
        Preferences preferences(path);
        preferences.set(key, 5);
        EXPECT_EQ(preferences.get(Setting<qint32>{settingKey}), 5) << path.toStdString();
        desktop.alerts.clear();
        preferences.synchronize(desktop.alerts);
        preferences.synchronize(desktop.alerts);
        ASSERT_EQ(desktop.alerts.failures.size(), 1U) << path.toStdString();
        EXPECT_TRUE(desktop.alerts.failures[0].sentence.contains(path));
    }
    EXPECT_EQ(file.size(), 50 << 20);
}

TEST(Preferences, areReadByTheirUserAlone) {
    TestDesktop desktop;
    const QString path = desktop.path(QStringLiteral("own/settings.ini"));
    Preferences(path).set(key, 5);
    EXPECT_EQ(modeOf(path), 0600U);
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    Preferences(path).set(key, 6);
    EXPECT_EQ(modeOf(path), 0600U);
}

}  // namespace

}  // namespace tavrel
