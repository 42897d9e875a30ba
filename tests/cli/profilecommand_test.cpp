#include "cli/commandrunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tavrel {

namespace {

/// A dive of four samples, ten points to the metre.
class ProfileCommand : public CommandLine {
protected:
    ProfileCommand() {
        done({QStringLiteral("new"), QStringLiteral("Carnet de plongee"), QStringLiteral("a.carnet")});
        done(
            "add a.carnet profilProfondeur=0,42,21,6 GAZ_Flag=0,1,0,2 SLOW_Flag=0,1,0,1 SURF_Flag=0,0,0,1 "
            "PRESS_Data=200,150,100,50 decoO2_Level_1=50 samplingRate=7");
        done("add a.carnet lieu=Marseille");
    }

    QJsonObject profile(const char* row) {
        const QString out = done({QStringLiteral("profile"), QStringLiteral("a.carnet"), QStringLiteral("--row"),
                                  QString::fromUtf8(row), QStringLiteral("--json")});
        return QJsonDocument::fromJson(out.toUtf8()).object();
    }
};

TEST_F(ProfileCommand, givesSummaryAndGeometry) {
    const QJsonObject dive = profile("0");
    EXPECT_EQ(dive[QStringLiteral("maximum")].toDouble(), 42);
    EXPECT_EQ(dive[QStringLiteral("average")].toDouble(), 17.25);
    EXPECT_EQ(dive[QStringLiteral("samples")].toInt(), 4);
    EXPECT_EQ(dive[QStringLiteral("sampling")].toInt(), 7);
    EXPECT_EQ(dive[QStringLiteral("slow")].toInt(), 2);
    EXPECT_EQ(dive[QStringLiteral("ceiling")].toInt(), 0);
    EXPECT_EQ(dive[QStringLiteral("surface")].toInt(), 1);
    EXPECT_EQ(dive[QStringLiteral("gasSwitches")].toInt(), 2);
    EXPECT_TRUE(dive[QStringLiteral("endsAtSurface")].toBool());

    const QJsonObject geometry = dive[QStringLiteral("geometry")].toObject();
    const QJsonObject paths = geometry[QStringLiteral("paths")].toObject();
    EXPECT_EQ(paths.keys().join(u' '), u"axes dashed limit pressure profile surface surfaceExcursions ticks");
    const auto path = [&](const char* name) {
        return QString::fromUtf8(
            QJsonDocument(paths[QLatin1StringView(name)].toArray()).toJson(QJsonDocument::Compact));
    };
    EXPECT_EQ(path("profile"), u"[[30,583],[30,583],[192.5,163],[355,373],[517.5,523],[680,583]]");
    EXPECT_EQ(path("surface"), u"[[30,583],[680,583]]");
    EXPECT_EQ(path("pressure"), u"[[30,80],[30,80],[192.5,65],[355,50],[517.5,35]]");
    EXPECT_EQ(path("axes"), u"[[[30,143],[680,143],[675,138]],[[30,143],[30,598]]]");
    EXPECT_EQ(path("limit"), u"[]");
    const QJsonArray icons = geometry[QStringLiteral("icons")].toArray();
    ASSERT_EQ(icons.size(), 4);
    EXPECT_EQ(icons[1].toObject()[QStringLiteral("name")].toString(), u"alarmeGAZ");
    EXPECT_EQ(icons[1].toObject()[QStringLiteral("x")].toDouble(), 162.5 - 27);
    const QJsonObject label = geometry[QStringLiteral("labels")].toArray().last().toObject();
    EXPECT_EQ(label[QStringLiteral("text")].toString(), u"EAN50");
    EXPECT_EQ(label[QStringLiteral("y")].toDouble(), 523 + 14);
    EXPECT_EQ(label[QStringLiteral("colour")].toString(), u"#000000");
    EXPECT_EQ(profile("1")[QStringLiteral("samples")].toInt(), 0);
}

TEST_F(ProfileCommand, showsAndReplacesSeries) {
    const auto series = [&](const char* name) {
        return done({QStringLiteral("profile"), QStringLiteral("a.carnet"), QStringLiteral("--row"),
                     QStringLiteral("0"), QStringLiteral("--series"), QString::fromUtf8(name)});
    };
    EXPECT_EQ(series("depth"), u"0.0\n42.0\n21.0\n6.0");
    EXPECT_EQ(series("gas"), u"0\n1\n0\n2");
    EXPECT_EQ(series("ascent"), QString());
    writeContents(path(QStringLiteral("depth.txt")), "3\n7\n");
    writeContents(path(QStringLiteral("slow.txt")), "1\n0");
    done("profile a.carnet --row 0 --replace depth=depth.txt --replace slow=slow.txt");
    EXPECT_EQ(series("depth"), u"3.0\n7.0\nnan");
    EXPECT_EQ(series("slow"), u"1\n0");
    EXPECT_EQ(series("gas"), u"0\n1\n0\n2");

    const QByteArray before = contentsOf(path(QStringLiteral("a.carnet")));
    EXPECT_EQ(run(QStringLiteral("profile a.carnet --row 2").split(u' ')).code, 1);
    EXPECT_EQ(run(QStringLiteral("profile a.carnet --row 0 --replace depth=missing.txt").split(u' ')).code, 1);
    EXPECT_EQ(run(QStringLiteral("profile a.carnet --row 0 --replace depths=depth.txt").split(u' ')).code, 2);
    EXPECT_EQ(run(QStringLiteral("profile a.carnet --row 0 --series speed").split(u' ')).code, 2);
    EXPECT_EQ(contentsOf(path(QStringLiteral("a.carnet"))), before);
}

}  // namespace

}  // namespace tavrel
