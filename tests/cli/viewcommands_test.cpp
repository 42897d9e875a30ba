#include "cli/commandrunner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tavrel {

namespace {

class ViewCommands : public CommandLine {
protected:
    QJsonObject json(const QStringList& arguments) const {
        return QJsonDocument::fromJson(done(arguments).toUtf8()).object();
    }
    QJsonObject json(const char* words) const { return json(QString::fromUtf8(words).split(u' ')); }
    QJsonObject control(const QJsonObject& form, const char* name) const {
        return form[u"controls"].toObject()[QString::fromUtf8(name)].toObject();
    }
};

QStringList texts(const QJsonObject& table, const char* column) {
    const auto place = table[u"columns"].toArray().toVariantList().indexOf(QString::fromUtf8(column));
    QStringList cells;
    for (const auto& row : table[u"rows"].toArray()) {
        cells.append(row.toArray().at(place).toObject()[u"text"].toString());
    }
    return cells;
}

TEST_F(ViewCommands, tableShowsWhatTheWindowShows) {
    done(QStringList{QStringLiteral("new"), QStringLiteral("Plongee"), QStringLiteral("my.carnet")});
    done("add my.carnet lieu=Sete profondeur=20 epaves=Donator rebreather=1 gaz=Nitrox o2Mix=32");
    const QJsonObject plain = json("table my.carnet --json");
    EXPECT_EQ(plain[u"columns"].toArray().size(), 14);  // the apparatus is hidden at first
    EXPECT_EQ(plain[u"columns"].toArray().first(), QStringLiteral("noPlongee"));
    EXPECT_EQ(texts(plain, "profondeur"), QStringList{QStringLiteral("20 m")});
    EXPECT_EQ(plain[u"count"], QStringLiteral("One dive"));
    const QJsonArray row = plain[u"rows"].toArray().first().toArray();
    EXPECT_EQ(row.at(11).toObject()[u"image"], QStringLiteral("epave"));
    EXPECT_FALSE(row.at(2).toObject().contains(u"colour"));
    EXPECT_FALSE(row.at(2).toObject().contains(u"image"));

    const QJsonObject other =
        json({QStringLiteral("table"), QStringLiteral("my.carnet"), QStringLiteral("--json"),
              QStringLiteral("--preference"), QStringLiteral("us units=1"), QStringLiteral("--preference"),
              QStringLiteral("column site=0"), QStringLiteral("--preference"), QStringLiteral("column scaph=1"),
              QStringLiteral("--preference"), QStringLiteral("mix in color=1")});
    EXPECT_EQ(texts(other, "profondeur"), QStringList{QStringLiteral("20 ft")});
    EXPECT_EQ(texts(other, "rebreather"), QStringList{QStringLiteral("SCR")});
    EXPECT_FALSE(other[u"columns"].toArray().contains(QStringLiteral("site")));
    EXPECT_EQ(other[u"rows"].toArray().first().toArray().first().toObject()[u"colour"], QStringLiteral("#ffff00"));
    EXPECT_EQ(texts(json("table my.carnet --json"), "profondeur"),
              QStringList{QStringLiteral("20 m")});  // nothing was stored
}

TEST_F(ViewCommands, formShowsEntriesAndStoresNothing) {
    done(QStringList{QStringLiteral("new"), QStringLiteral("Carnet de plongee"), QStringLiteral("my.carnet")});
    done("add my.carnet profondeur=20 rebreather=mCCR");
    const QByteArray before = contentsOf(path(QStringLiteral("my.carnet")));
    const QJsonObject blank = json("form my.carnet --new --json --now 2019-05-03T10:30:00");
    EXPECT_EQ(control(blank, "noPlongeeField")[u"value"], QStringLiteral("2"));
    EXPECT_EQ(control(blank, "dateField")[u"value"], QStringLiteral("2019-05-03"));
    EXPECT_EQ(control(blank, "flowField")[u"enabled"], false);
    EXPECT_EQ(control(blank, "flowField")[u"visible"], true);

    const QJsonObject edited = json("form my.carnet --row 0 profondeur=33.5 rebreather=1 nocturne=yes --json");
    EXPECT_EQ(control(edited, "profondeurField")[u"value"], QStringLiteral("33.5"));
    EXPECT_EQ(control(edited, "rebreatherMatrix")[u"value"], 1);
    EXPECT_EQ(control(edited, "nocturneSwitch")[u"value"], 1);
    EXPECT_EQ(control(edited, "flowField")[u"enabled"], true);
    EXPECT_EQ(control(edited, "n2MixField")[u"value"], QStringLiteral("0"));
    EXPECT_EQ(contentsOf(path(QStringLiteral("my.carnet"))), before);
    EXPECT_EQ(run(QStringLiteral("form my.carnet --json").split(u' ')).code, 2);
    EXPECT_EQ(run(QStringLiteral("form my.carnet --row 1 --json").split(u' ')).code, 1);
    EXPECT_EQ(run(QStringLiteral("form my.carnet --row 0 lieu").split(u' ')).code, 2);
}

TEST_F(ViewCommands, sortClicksTheHeadersAndSavesTheOrder) {
    done(QStringLiteral("new Budget b.budget").split(u' '));
    for (const char* service : {"Air", "Nitrox", "Gear"}) {
        done({QStringLiteral("add"), QStringLiteral("b.budget"),
              QStringLiteral("prestation=") + QString::fromUtf8(service)});
    }
    done("sort b.budget prestation");
    EXPECT_EQ(texts(json("table b.budget --json"), "prestation"),
              (QStringList{QStringLiteral("Nitrox"), QStringLiteral("Gear"), QStringLiteral("Air")}));
    done("sort b.budget prestation prestation");
    EXPECT_EQ(texts(json("table b.budget --json"), "prestation"),
              (QStringList{QStringLiteral("Air"), QStringLiteral("Gear"), QStringLiteral("Nitrox")}));
    EXPECT_EQ(run(QStringLiteral("sort b.budget nothing").split(u' ')).code, 2);
}

TEST_F(ViewCommands, everyTypeIsMadeByAnyOfItsNames) {
    struct Name {
        const char* name;
        const char* recordClass;
        const char* extension;
    };
    const Name names[] = {
        {"Carnet de plongee", "Plongee", "carnet"},
        {"Materiel", "Materiel", "materiel"},
        {"Epaves", "Epaves", "epaves"},
        {"Compresseur", "Compresseur", "compresseur"},
        {"Rebreather", "Rebreather", "rebreather"},
        {"Consommables", "Consommables", "consommables"},
        {"Budget", "Budget", "budget"},
        {"Entreprises", "Entreprises", "entreprises"},
        {"Structures", "Structures", "structures"},
        {"Divers documents", "DiversDocs", "documents"},
        {"Carnet de plongée", "Plongee", "carnet"},
        {"diversdocs", "DiversDocs", "documents"},
    };
    int made = 0;
    for (const auto& [name, recordClass, extension] : names) {
        const QString file = QStringLiteral("%1.%2").arg(++made).arg(QLatin1StringView(extension));
        done({QStringLiteral("new"), QString::fromUtf8(name), file});
        done({QStringLiteral("add"), file});
        const QJsonObject shown = json({QStringLiteral("show"), file, QStringLiteral("--json")});
        EXPECT_EQ(shown[u"class"].toString(), QString::fromUtf8(recordClass)) << name;
        EXPECT_EQ(shown[u"records"].toArray().size(), 1) << name;
        EXPECT_EQ(json({QStringLiteral("table"), file, QStringLiteral("--json")})[u"rows"].toArray().size(), 1) << name;
        EXPECT_FALSE(json({QStringLiteral("form"), file, QStringLiteral("--row"), QStringLiteral("0"),
                           QStringLiteral("--json")})[u"controls"]
                         .toObject()
                         .isEmpty());
    }
    EXPECT_EQ(run(QStringLiteral("new Nothing x.file").split(u' ')).code, 2);
}

TEST_F(ViewCommands, cardsAndPagesComeFromTheSameRooms) {
    done(QStringLiteral("new Materiel m.materiel").split(u' '));
    done("add m.materiel marqueMatos=Alpha");
    done("add m.materiel marqueMatos=Beta");
    const QJsonObject card = json("card m.materiel --row 1 --json");
    const QString whole = card[u"text"].toString();
    EXPECT_TRUE(whole.contains(QStringLiteral("Beta")) && !whole.contains(QStringLiteral("Alpha")));
    QString runs;
    for (const auto& each : card[u"runs"].toArray()) {
        runs += each.toObject()[u"text"].toString();
    }
    EXPECT_EQ(runs, whole);
    EXPECT_EQ(card[u"runs"].toArray().first().toObject()[u"colour"], QStringLiteral("#00ff00"));
    EXPECT_FALSE(done("card m.materiel").contains(u'\r'));

    for (int row = 0; row < 70; ++row) {
        done("add m.materiel typeMatos=Fins");
    }
    done("render m.materiel list.pdf --what table");
    EXPECT_TRUE(contentsOf(path(QStringLiteral("list.pdf"))).startsWith("%PDF"));
    done("render m.materiel list.svg --what table");
    EXPECT_TRUE(contentsOf(path(QStringLiteral("list.svg"))).contains("<svg"));
    EXPECT_TRUE(contentsOf(path(QStringLiteral("list-2.svg"))).contains("<svg"));
    EXPECT_EQ(run(QStringLiteral("render m.materiel list.txt --what table").split(u' ')).code, 2);
    done(QStringLiteral("new Plongee my.carnet").split(u' '));
    done("add my.carnet profondeur=20 temps=40");
    for (const char* what : {"stats", "graphs", "card"}) {
        const QString file = QString::fromUtf8(what) + QStringLiteral(".svg");
        done({QStringLiteral("render"), QStringLiteral("my.carnet"), file, QStringLiteral("--what"),
              QString::fromUtf8(what)});
        EXPECT_TRUE(contentsOf(path(file)).contains("<text")) << what;
    }
    EXPECT_EQ(run(QStringLiteral("render m.materiel list.png --what profile").split(u' ')).code, 1);
}

}  // namespace

}  // namespace tavrel
