#include "cli/commandrunner.h"

namespace tavrel {

namespace {

/// A dive of four samples, ten points to the metre.
struct ProfileCommand : LogbookCommands {
    ProfileCommand() {
        done(
            "add a.carnet profilProfondeur=0,42,21,6 GAZ_Flag=0,1,0,2 SLOW_Flag=0,1,0,1 SURF_Flag=0,0,0,1 "
            "PRESS_Data=200,150,100,50 decoO2_Level_1=50 samplingRate=7");
        done("add a.carnet lieu=Marseille");
    }
};

TEST_F(ProfileCommand, givesSummaryAndGeometry) {
    QJsonObject dive = json("profile a.carnet --row 0 --json");
    const QJsonObject geometry = dive.take(u"geometry").toObject();
    const auto compact = [](const auto& part) {
        return QString::fromUtf8(QJsonDocument(part).toJson(QJsonDocument::Compact));
    };
    EXPECT_EQ(compact(dive),
              u"{\"average\":17.25,\"ceiling\":0,\"endsAtSurface\":true,\"gasSwitches\":2,\"maximum\":42,"
              "\"samples\":4,\"sampling\":7,\"slow\":2,\"surface\":1}");

    const QJsonObject paths = geometry[u"paths"].toObject();
    EXPECT_EQ(paths.keys().join(u' '), u"axes dashed limit pressure profile surface surfaceExcursions ticks");
    const auto path = [&](QStringView name) { return compact(paths[name].toArray()); };
    EXPECT_EQ(path(u"profile"), u"[[30,583],[30,583],[192.5,163],[355,373],[517.5,523],[680,583]]");
    EXPECT_EQ(path(u"axes"), u"[[[30,143],[680,143],[675,138]],[[30,143],[30,598]]]");
    EXPECT_EQ(path(u"limit"), u"[]");
    ASSERT_EQ(geometry[u"icons"].toArray().size(), 4);
    EXPECT_EQ(at(geometry, "icons.1.name icons.1.x"), u"alarmeGAZ|135.5");
    const QJsonObject label = geometry[u"labels"].toArray().last().toObject();
    EXPECT_EQ(at(label, "text y colour"), u"EAN50|537|#000000");
    EXPECT_EQ(json("profile a.carnet --row 1 --json")[u"samples"].toInt(), 0);
}

TEST_F(ProfileCommand, showsAndReplacesSeries) {
    EXPECT_EQ(done("profile a.carnet --row 0 --series depth"), u"0.0\n42.0\n21.0\n6.0");
    EXPECT_EQ(done("profile a.carnet --row 0 --series ascent"), QString());
    writeContents(path(QStringLiteral("depth.txt")), "3\n7\n");
    writeContents(path(QStringLiteral("slow.txt")), "1\n0");
    done("profile --row 0 --replace depth=depth.txt --replace slow=slow.txt a.carnet");
    EXPECT_EQ(done("profile a.carnet --row 0 --series depth"), u"3.0\n7.0\nnan");
    EXPECT_EQ(done("profile a.carnet --row 0 --series slow"), u"1\n0");
    EXPECT_EQ(done("profile a.carnet --row 0 --series gas"), u"0\n1\n0\n2");

    const QByteArray before = bytes();
    expectRefusals({{"profile a.carnet --row 2", 1, "2"},
                    {"profile a.carnet --row 0 --replace depth=missing.txt", 1, "missing.txt"},
                    {"profile a.carnet --row 0 --replace depths=depth.txt", 2, "depths"},
                    {"profile a.carnet --row 0 --series speed", 2, "speed"}});
    EXPECT_EQ(bytes(), before);
}

}  // namespace

}  // namespace tavrel
