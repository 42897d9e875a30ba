#include "logbook/carnet.h"

#include "book/bookfilter.h"
#include "book/booktable.h"
#include "logbook/divecolumns.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QSignalSpy>

#include <limits>

namespace tavrel {

namespace {

struct CarnetTest : testing::Test {
    void hold(std::vector<Plongee> dives) {
        carnet.appendDives(QStringLiteral("Add"), std::move(dives));
        carnet.undoStack().setClean();
    }
    void holdNumbers(const QList<int>& list) {
        std::vector<Plongee> dives;
        for (const int number : list) {
            dives.push_back({.noPlongee = number});
        }
        hold(std::move(dives));
    }
    QList<int> numbers() const {
        QList<int> result;
        for (int row = 0; row < carnet.count(); ++row) {
            result.append(carnet.record(row).noPlongee);
        }
        return result;
    }
    void type(ControlId<DiveControls> control, const char* text) {
        carnet.form().state().type(control.index, QString::fromUtf8(text));
    }
    QString shown(ControlId<DiveControls> control) const { return carnet.form().state().text(control); }
    QString shown(const char* names) const {
        return eachOf(names, [this](const char* name) { return carnet.form().state().at(controls.find(name)).text; });
    }

    TestDesktop desktop;
    static Expected<QByteArray> counted(Carnet& each) { return QByteArray::number(each.count()); }
    static constexpr LogbookExport exports[] = {{"count", "Export", {"Main", "Export"}, "txt", counted}};
    Carnet carnet{desktop.desktop(), exports};
    const DiveControls& controls = carnet.form().controls();
};

TEST_F(CarnetTest, proposesTheNumberAfterTheLastDiveByPosition) {
    carnet.newDive();
    EXPECT_EQ(shown(controls.noPlongeeField), u"1");
    EXPECT_EQ(carnet.editWindowTitle(), u"Dive no.\u00a01");
    holdNumbers({80, 57});
    carnet.newDive();
    EXPECT_EQ(shown(controls.noPlongeeField), u"58");
    holdNumbers({std::numeric_limits<int>::max()});
    EXPECT_EQ(carnet.nextDiveNumber(), std::numeric_limits<int>::min());
}

TEST_F(CarnetTest, addsAtTheEndAndInsertsBeforeTheSelectedDive) {
    holdNumbers({1, 2, 3, 4, 5});
    carnet.newDive();
    type(controls.noPlongeeField, "3");
    carnet.addDive();
    EXPECT_EQ(numbers(), QList<int>({1, 2, 3, 4, 5, 3}));
    EXPECT_EQ(carnet.selectedRow(), -1);
    EXPECT_EQ(shown(controls.noPlongeeField), u"4");
    EXPECT_TRUE(carnet.isChanged());

    carnet.selectRows({3});
    type(controls.noPlongeeField, "40");
    carnet.insertDive();
    EXPECT_EQ(numbers(), QList<int>({1, 2, 3, 40, 4, 5, 3}));

    type(controls.noPlongeeField, "41");
    carnet.updateDive();
    EXPECT_EQ(numbers(), QList<int>({1, 2, 3, 41, 4, 5, 3}));
    EXPECT_EQ(carnet.editWindowTitle(), u"Dive no.\u00a041");
    carnet.undoStack().undo();
    EXPECT_EQ(shown(controls.noPlongeeField), u"40");  // the form follows

    carnet.undoStack().setClean();
    carnet.deselectAll();
    carnet.insertDive();
    carnet.updateDive();
    EXPECT_FALSE(carnet.isChanged());
    EXPECT_EQ(desktop.alerts.beeps, 2);
}

TEST_F(CarnetTest, deletesTheSelectedDivesAfterOneConfirmation) {
    holdNumbers({1, 2, 3, 4, 5});
    carnet.deleteDive();
    EXPECT_TRUE(desktop.alerts.questions.empty());

    carnet.selectRows({4, 0, 2, 2, 9, -1});
    desktop.alerts.answerNext(1);
    carnet.deleteDive();
    EXPECT_EQ(numbers(), QList<int>({1, 2, 3, 4, 5}));
    desktop.alerts.answerNext(0);
    carnet.deleteDive();
    EXPECT_EQ(numbers(), QList<int>({2, 4}));
    EXPECT_EQ(carnet.selectedRow(), -1);
    EXPECT_EQ(desktop.alerts.beeps, 2);
    EXPECT_EQ(desktop.alerts.questions.back().buttons, QStringList({QStringLiteral("OK"), QStringLiteral("Cancel")}));

    carnet.undoStack().undo();
    EXPECT_EQ(numbers(), QList<int>({1, 2, 3, 4, 5}));
    EXPECT_FALSE(carnet.isChanged());
    carnet.undoStack().redo();
    EXPECT_EQ(numbers(), QList<int>({2, 4}));
}

TEST_F(CarnetTest, renumbersThroughTheForm) {
    const QSignalSpy closed(&carnet, &Carnet::renumberWindowClosed);
    hold({{.noPlongee = 7, .o2Mix = 0, .tempEau = 120}, {.noPlongee = 3, .o2Mix = 32}, {.noPlongee = 9}});
    carnet.renumDives(10);
    EXPECT_EQ(numbers(), QList<int>({10, 11, 12}));
    EXPECT_TRUE(holds(carnet.record(0), "tempEau=-50|o2Mix=21"));
    EXPECT_EQ(carnet.recordAt(1)->o2Mix, 32);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({2}));
    EXPECT_EQ(shown(controls.noPlongeeField), u"12");
    EXPECT_EQ(carnet.editWindowTitle(), u"Dive no.\u00a012");
    EXPECT_EQ(closed.count(), 1);
    carnet.undoStack().undo();
    EXPECT_EQ(numbers(), QList<int>({7, 3, 9}));

    type(controls.siteField, "typed");
    EXPECT_FALSE(carnet.renumDives(20, [](std::size_t, std::size_t) { return false; }));
    EXPECT_EQ(numbers(), QList<int>({7, 3, 9}));
    EXPECT_EQ(shown(controls.siteField), u"typed");
    EXPECT_EQ(closed.count(), 1);

    Carnet empty(desktop.desktop());
    empty.renumDives(1);
    EXPECT_TRUE(empty.isChanged());
}

TEST_F(CarnetTest, aSiteDivedBeforeFillsWhatIsEmpty) {
    hold({filled<Plongee>("noPlongee=1|lieu=Old|site=Arche"),
          filled<Plongee>("noPlongee=2|lieu=Marseille|site=Arche|pays=France|gps=N 43° 12.345'  E 005° 20.700'"),
          filled<Plongee>("noPlongee=3|site=Mur")});
    desktop.pickLists.append(PickList::tableauDesSites, QStringLiteral("arche"));
    carnet.newDive();
    type(controls.siteField, "arche");
    type(controls.paysField, "Malta");
    carnet.form().endEditing(controls.siteField.index);
    EXPECT_EQ(shown("lieuField paysField gpsField"), u"Marseille|Malta|N 43° 12.345'  E 005° 20.700'")
        << "of the last dive there; what is typed stays";
    EXPECT_EQ(carnet.form().state().tag(controls.gpsSystemPopUp), 0);
    EXPECT_EQ(carnet.form().hint(controls.siteField.index), u"From dive no. 2: Place, GPS position");
    carnet.addDive();
    EXPECT_EQ(carnet.record(3).lieu, u"Marseille");
    EXPECT_EQ(carnet.form().hint(controls.siteField.index), QString());
    carnet.undoStack().undo();
    EXPECT_EQ(carnet.count(), 3) << "the dive and what was filled in are one step";
    carnet.newDive();
    type(controls.siteField, "Elsewhere");
    desktop.alerts.answerNext(1);
    carnet.form().endEditing(controls.siteField.index);
    EXPECT_EQ(shown(controls.lieuField), QString());
}

TEST_F(CarnetTest, whatIsTypedIntoAStoredDiveGoesIntoThatDive) {
    holdNumbers({43, 42, 41});
    carnet.selectRows({0});
    desktop.alerts.answerNext(0);
    carnet.deleteDive();
    carnet.selectRows({0});
    type(controls.lieuField, "Nice");
    carnet.undoStack().undo();
    EXPECT_EQ(carnet.selectedRows(), (QList<int>{1})) << "the dive in the form has moved";
    ASSERT_TRUE(carnet.closeEditWindow());
    EXPECT_EQ(numbers(), (QList<int>{43, 42, 41}));
    EXPECT_EQ(carnet.record(0).lieu + u'|' + carnet.record(1).lieu, u"|Nice");

    // It stays when others are shown, hidden and sorted, and where its row goes.
    carnet.selectRows({0, 1});
    type(controls.paysField, "France");
    carnet.filter().setText(QStringLiteral("43"));
    carnet.sortBy(QStringLiteral("noPlongee"));
    carnet.sortBy(QStringLiteral("noPlongee"));
    carnet.deselectAll();
    EXPECT_EQ(shown("noPlongeeField paysField"), u"42|France");
    carnet.updateDive();
    EXPECT_EQ(carnet.record(1).noPlongee, 42);
    EXPECT_EQ(carnet.record(1).pays, u"France");

    // The dive that it was typed into is taken back: what was typed is a new one.
    carnet.addDive();
    carnet.selectRows({3});
    type(controls.paysField, "Malta");
    carnet.undoStack().undo();
    EXPECT_EQ(carnet.shownRow(), -1);
    EXPECT_TRUE(carnet.hasEntries());
    EXPECT_EQ(shown(controls.paysField), u"Malta");
}

TEST_F(CarnetTest, theFormKeepsItsDiveWhenAnOrderComesBack) {
    holdNumbers({1, 2, 3, 4});
    carnet.selectRows({0});
    type(controls.lieuField, "one");
    carnet.updateDive();
    carnet.sortBy(QStringLiteral("noPlongee"));
    ASSERT_EQ(numbers(), (QList<int>{4, 3, 2, 1}));
    type(controls.lieuField, "two");
    carnet.undoStack().undo();
    ASSERT_EQ(numbers(), (QList<int>{1, 2, 3, 4}));
    EXPECT_EQ(carnet.shownRow(), 0);
    carnet.updateDive();
    EXPECT_EQ(numbers(), (QList<int>{1, 2, 3, 4}));
    EXPECT_EQ(carnet.record(0).lieu, u"two");
}

TEST_F(CarnetTest, anUntouchedFormFollowsItsDiveAndNoOther) {
    holdNumbers({1, 2});
    carnet.selectRows({0});
    type(controls.profondeurField, "30");
    carnet.updateDive();
    carnet.deselectAll();
    carnet.convertUnits(UnitSystem::us);
    EXPECT_EQ(shown(controls.profondeurField), u"98.43");
    carnet.undoStack().undo();
    EXPECT_EQ(shown(controls.profondeurField), u"30");
    // The list is read again: the form stays where it was, and is stored nowhere else.
    const QByteArray bytes = *carnet.dataRepresentationOfType(carnet.type());
    ASSERT_TRUE(carnet.loadDataRepresentation(bytes, carnet.type()));
    EXPECT_EQ(carnet.shownRow(), 0);
    carnet.updateDive();
    EXPECT_EQ(numbers(), (QList<int>{1, 2}));
}

TEST_F(CarnetTest, whatIsTypedForANewDiveStaysWhateverIsSelected) {
    holdNumbers({3, 2, 1});
    carnet.selectRows({0, 2});
    carnet.newDive();
    type(controls.lieuField, "Nice");
    carnet.sortBy(QStringLiteral("noPlongee"));
    carnet.sortBy(QStringLiteral("noPlongee"));
    carnet.filter().setText(QStringLiteral("3"));
    carnet.appendDives(QStringLiteral("Import"), std::vector<Plongee>(1));
    carnet.selectRows({0, 3});
    carnet.undoStack().undo();
    EXPECT_EQ(shown(controls.lieuField), u"Nice");
    EXPECT_EQ(carnet.shownRow(), -1);
}

TEST_F(CarnetTest, theFilterTakesWhatStandsForNoneForNone) {
    hold(
        {filled<Plongee>("tempEau=-50|tempAir=-50|coeff=0"), filled<Plongee>("tempEau=5|tempAir=-50|coeff=80|pmBm=1")});
    const auto found = [&](const char* typed) {
        carnet.filter().setText(QString::fromUtf8(typed));
        return carnet.filter().shownRows();
    };
    EXPECT_EQ(found("watertemperature<10"), (std::vector{1}));
    EXPECT_EQ(found("-50"), std::vector<int>());
    EXPECT_EQ(found("tide<50"), std::vector<int>()) << "the coefficient, not the choice beside it";
    EXPECT_EQ(found("tide>50"), (std::vector{1}));
}

TEST_F(CarnetTest, aNewDiveStartsFromTheLastWhenAsked) {
    hold({filled<Plongee>(
        "noPlongee=8|lieu=Marseille|site=Arche|pays=France|partenaires=Anna|date=2024-06-14|heure=2001-01-01T20:30|"
        "temps=45|volumeBloc=12|gaz=1|o2Mix=32|volumeBloc_2=7|equip_12=Torch|notes=Cold|pressionDepart=210|"
        "profondeur=30")});
    carnet.newDive();
    EXPECT_EQ(shown(controls.lieuField), QString()) << "off at first";
    desktop.preferences.set(QStringLiteral("new dive from last"), true);
    carnet.newDive();
    EXPECT_EQ(shown("noPlongeeField lieuField paysField partenairesField volumeBlocField volumeBloc_2Field o2MixField "
                    "equipement_12_Field"),
              u"9|Marseille|France|Anna|12|7|32|Torch");
    EXPECT_EQ(carnet.form().state().tag(controls.gazPopUp[0]), 1);
    EXPECT_EQ(shown("siteField profondeurField departField"), u"||") << "of this dive alone";
    EXPECT_FALSE(carnet.hasEntries());
    // Out of the water at 21:15 the evening before; the clock stands at the 15th of June, the time is still 00:00.
    EXPECT_EQ(shown(controls.surfaceField), u"02:45");
    const auto enterTime = [&](int hour, int minute) {
        carnet.form().state().pick(controls.heureField.index,
                                   Date::fromDateTime(QDateTime(QDate(2001, 1, 1), QTime(hour, minute))));
    };
    enterTime(9, 20);
    EXPECT_EQ(shown(controls.surfaceField), u"12:05");
    type(controls.surfaceField, "12:00");
    enterTime(9, 30);
    EXPECT_EQ(shown(controls.surfaceField), u"12:00") << "what is typed stays";
}

TEST_F(CarnetTest, convertsUnitsOnceAsOneStep) {
    hold({filled<Plongee>("noPlongee=1|profondeur=32.5|altitude=250|tempEau=14|tempAir=-50|decoDepth_Level_1=3|"
                          "decoDepth_Level_6=18|pressionDepart=200|volumeBloc=15|lestage=4|profilProfondeur=0,10,32.5"),
          {.noPlongee = 2}});
    carnet.selectRows({0});
    carnet.convertUnits(UnitSystem::us);
    // A temperature that was not given stays so.
    EXPECT_TRUE(holds(carnet.record(0),
                      "profondeur=106.63|altitude=820|tempEau=57|tempAir=-50|decoDepth_Level_1=9.84|"
                      "decoDepth_Level_6=59.06|profilProfondeur=0,32.81,106.63|pressionDepart=200|volumeBloc=15|"
                      "lestage=4"));
    EXPECT_EQ(carnet.record(1).profondeur, 0.0F);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({0}));
    EXPECT_EQ(shown(controls.profondeurField), u"106.63");

    carnet.convertUnits(UnitSystem::metric);
    EXPECT_TRUE(holds(carnet.record(0), "profondeur=32.5|decoDepth_Level_1=3|tempEau=14"));
    carnet.undoStack().undo();
    carnet.undoStack().undo();
    EXPECT_TRUE(holds(carnet.record(0), "profondeur=32.5|altitude=250"));
}

TEST_F(CarnetTest, goesBackToTheFirstDiveAndThenToNone) {
    holdNumbers({1, 2, 3});
    carnet.selectRows({1});
    carnet.prevDive();
    EXPECT_EQ(carnet.selectedRows(), QList<int>({0}));
    EXPECT_FALSE(carnet.canGoBack());
    carnet.prevDive();
    EXPECT_EQ(carnet.selectedRow(), -1);
    EXPECT_EQ(carnet.currentIndex(), -1);

    carnet.undoStack().setClean();
    carnet.nextDive();  // nothing selected: nothing stored, nothing selected
    EXPECT_FALSE(carnet.isChanged());
}

TEST_F(CarnetTest, keepsWhatIsTypedWhenAStepIsUndone) {
    holdNumbers({1, 2});
    carnet.newDive();
    type(controls.siteField, "New");
    carnet.undoStack().undo();
    EXPECT_EQ(shown(controls.siteField), u"New");
    carnet.undoStack().redo();
    EXPECT_EQ(shown(controls.siteField), u"New");
    // With no row selected the form shows no dive of the list.
    desktop.alerts.answerNext(1);
    carnet.editWindow();
    EXPECT_EQ(shown(controls.siteField), u"");
    EXPECT_FALSE(carnet.formShowsSelectedRecord());
}

TEST_F(CarnetTest, findsWhatFieldsHold) {
    const auto team = [](const char* names) { return Plongee{.partenaires = QString::fromUtf8(names)}; };
    hold({team("Abel"), team("Zoé"), {}, team(""), team("max, GABRIEL")});
    const QString buddies = QStringLiteral("partenaires");

    EXPECT_EQ(carnet.findTextWithField(buddies, QStringLiteral("ab")), 3);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({0, 2, 4}));  // no text at all counts as a match
    EXPECT_EQ(carnet.foundText(), u"3 dives found");
    EXPECT_EQ(carnet.findTextWithField(buddies, QString()), 1);
    EXPECT_EQ(carnet.foundText(), u"One dive found");
    EXPECT_EQ(carnet.findTextWithField(QStringLiteral("notes"), QStringLiteral("x")), 5);

    carnet.findInOrdinateurs(QStringLiteral("ab"));
    EXPECT_EQ(desktop.alerts.failures.size(), 1U);
    EXPECT_EQ(carnet.selectedRow(), -1);
    EXPECT_EQ(carnet.foundText(), u"5 dives found");
}

TEST_F(CarnetTest, sortsDescendingFirstAndKeepsTheSelectedDives) {
    hold({{.noPlongee = 2, .site = QStringLiteral("b")},
          {.noPlongee = 9, .site = QStringLiteral("é")},
          {.noPlongee = 1},
          {.noPlongee = 4, .site = QStringLiteral("B")}});
    const QString number = QStringLiteral("noPlongee");
    carnet.selectRows({0, 1});
    carnet.sortBy(number);
    EXPECT_EQ(numbers(), QList<int>({9, 4, 2, 1}));
    EXPECT_FALSE(carnet.isChanged());
    EXPECT_EQ(carnet.selectedRows(), QList<int>({0, 2}));
    EXPECT_EQ(shown(controls.noPlongeeField), u"2");  // of the last selected row, which updateDive would replace

    carnet.selectRows({1});
    type(controls.siteField, "typed");
    carnet.sortBy(number);
    EXPECT_EQ(numbers(), QList<int>({1, 2, 4, 9}));
    EXPECT_EQ(carnet.selectedRows(), QList<int>({2}));
    EXPECT_EQ(shown(controls.siteField), u"typed");

    carnet.sortBy(QStringLiteral("site"));
    EXPECT_EQ(numbers(), QList<int>({9, 2, 4, 1}));
    carnet.sortBy(number);  // goes on in the direction that it had
    EXPECT_EQ(numbers(), QList<int>({1, 2, 4, 9}));
    EXPECT_TRUE(carnet.sortedAscending());
}

TEST(DiveSort, ordersEveryKindOfValueAndKeepsEqualDivesInTheirOrder) {
    RecordList dives;
    for (const float depth : {12.5F, std::numeric_limits<float>::quiet_NaN(), -1.0F, 12.5F}) {
        const Plongee dive{.date = depth < 0 ? Date() : Date(static_cast<double>(dives.size())), .profondeur = depth};
        dives.push_back(std::make_shared<const Plongee>(dive));
    }
    EXPECT_EQ(sortedOrder(dives, Plongee::layout().field(u"profondeur"), true), std::vector<int>({1, 2, 0, 3}));
    EXPECT_EQ(sortedOrder(dives, Plongee::layout().field(u"profondeur"), false), std::vector<int>({0, 3, 2, 1}));
    EXPECT_EQ(sortedOrder(dives, Plongee::layout().field(u"date"), true), std::vector<int>({2, 0, 1, 3}));
    EXPECT_EQ(sortedOrder(dives, Plongee::layout().field(u"lieu"), false), std::vector<int>({0, 1, 2, 3}));
    EXPECT_EQ(sortedOrder(dives, Plongee::layout().field(u"nothing"), false), std::vector<int>({0, 1, 2, 3}));
    EXPECT_EQ(sortedOrder({}, Plongee::layout().field(u"date"), false), std::vector<int>());
}

TEST_F(CarnetTest, savesByTypeAndRevealsTheLastDiveItReads) {
    holdNumbers({1, 2, 3});
    const auto bytes = carnet.dataRepresentationOfType(Carnet::typeName());
    ASSERT_TRUE(bytes);
    EXPECT_EQ(carnet.dataRepresentationOfType(QStringLiteral("Export")).value_or(QByteArray()), "3");
    EXPECT_FALSE(carnet.dataRepresentationOfType(QStringLiteral("Other")));

    Carnet other(desktop.desktop());
    QList<int> revealed;
    QObject::connect(&other, &Carnet::rowRevealed, [&](int row) { revealed.append(row); });
    ASSERT_TRUE(other.loadDataRepresentation(*bytes, Carnet::typeName()));
    EXPECT_EQ(other.count(), 3);
    EXPECT_EQ(other.selectedRow(), -1);
    EXPECT_EQ(revealed, QList<int>({2}));
}

TEST_F(CarnetTest, setsAFieldByItsName) {
    holdNumbers({1, 2});
    carnet.selectRows({1});
    EXPECT_TRUE(carnet.setValue(1, QStringLiteral("site"), QStringLiteral("Reef")));
    EXPECT_EQ(shown(controls.siteField), u"Reef");
    EXPECT_FALSE(carnet.setValue(2, QStringLiteral("site"), QStringLiteral("Reef")));
    EXPECT_FALSE(carnet.setValue(0, QStringLiteral("site"), qint32(3)));
    EXPECT_FALSE(carnet.setValue(0, QStringLiteral("ordi"), QString()));
}

TEST(CarnetColumns, areSetUpWhereTheNumberIsHidden) {
    TestDesktop desktop;
    auto& preferences = desktop.preferences;
    const auto shown = [&](const char* key) { return preferences.get(Setting<bool>{key}); };
    preferences.set(QStringLiteral("column gaz"), false);
    const Carnet first(desktop.desktop());
    for (const auto& column : diveColumns()) {
        EXPECT_EQ(preferences.get(*column.shown), QLatin1StringView(column.field) != u"rebreather") << column.field;
        EXPECT_TRUE(Plongee::layout().find(column.field)) << column.field;
    }
    preferences.set(QStringLiteral("column site"), false);
    const Carnet second(desktop.desktop());
    EXPECT_FALSE(shown("column site"));
    preferences.set(QStringLiteral("column numero"), false);
    const Carnet third(desktop.desktop());
    EXPECT_TRUE(shown("column site"));
}

TEST_F(CarnetTest, offersItsCommandsSearchesAndPage) {
    const BookDescription& description = carnet.description();
    const auto needingDives = [](const ToolBarDescription& bar) {
        const auto named = [](const ToolItem& item) {
            return item.needsRecords ? QString(QLatin1String(item.identifier)) : QString();
        };
        return eachOf(bar.items, named, u' ').simplified();
    };
    const ToolBarDescription& table = description.tableToolBar;
    EXPECT_STREQ(table.identifier, "tableViewToolbar");
    EXPECT_EQ(needingDives(table), u"imprimer deleteDive profil profilData synthese statistics");
    EXPECT_EQ(joined(table.allowed),
              u"saveDocument imprimer newDive deleteDive profil profilData importUDCF importUDDF "
              "synthese statistics space flexibleSpace separator customise rechercher");
    EXPECT_EQ(joined(table.initial),
              u"saveDocument imprimer separator newDive deleteDive profil importUDCF importUDDF "
              "synthese statistics separator customise flexibleSpace rechercher");
    const ToolBarDescription& edit = description.editToolBar;
    EXPECT_STREQ(edit.identifier, "editWindowToolbar");
    EXPECT_EQ(needingDives(edit), u"insertDive profil profilData");
    EXPECT_EQ(joined(edit.allowed),
              u"addDiveToList insertDive blankFields profil profilData space flexibleSpace "
              "separator customise");
    EXPECT_EQ(joined(edit.initial),
              u"addDiveToList insertDive blankFields profil profilData importUDCF importUDDF "
              "separator customise flexibleSpace");
    const auto searched = [](const BookSearch& search) {
        return search.title.textIn(QStringLiteral("en")) + u'=' + QLatin1String(search.field);
    };
    EXPECT_EQ(eachOf(description.searches, searched),
              u"Boats=bateau|Wrecks=epaves|Notes=notes|Computers=ordi|Buddies=partenaires");
    for (const bool landscape : {false, true}) {
        const PrintSettings print = Carnet::defaultPrintingSettings(landscape);
        EXPECT_EQ(std::tuple(print.top, print.bottom, print.left, print.right, print.scale, print.landscape),
                  std::tuple(23.2, 25.0, 10.0, 10.0, 0.67, landscape));
    }
}

TEST_F(CarnetTest, showsTheUnitsThatItIsToldOf) {
    desktop.preferences.set(QStringLiteral("us units"), true);
    desktop.notifications.post(Notification::updateDeco);
    EXPECT_EQ(shown(controls.ftDepthField), u"ft");
}

}  // namespace

}  // namespace tavrel
