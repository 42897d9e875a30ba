#include "logbook/diveform.h"

#include "support/records.h"
#include "support/testdesktop.h"

#include <tuple>

namespace tavrel {

namespace {

struct DiveFormTest : testing::Test {
    static int indexOf(const char* name) {
        const int index = DiveControls::table().find(name);
        EXPECT_GE(index, 0) << name;
        return index;
    }
    QString shown(const char* name) const { return form.state().at(indexOf(name)).text; }
    QString explanation(const char* name) const { return form.state().at(indexOf(name)).explanation; }
    void type(const char* name, const char* text) { form.state().type(indexOf(name), QString::fromUtf8(text)); }
    void choose(const char* name, int tag) { form.state().choose(indexOf(name), tag); }
    void store(const char* key, const char* value) {
        desktop.preferences.set(QString::fromUtf8(key), QString::fromUtf8(value));
    }

    TestDesktop desktop;
    DiveForm form{desktop.desktop()};
    const DiveControls& controls = form.controls();
};

TEST_F(DiveFormTest, replacesNumbersOutOfRange) {
    // What is typed, what is shown then, what is stored.
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"coeffField", "coeff", "19 - 0|20 20 20|120 120 120|121 - 0|high - 0"},
        {"tempEauField", "tempEau", "- - -50|-5 -5 -5|-6 -6 -50|100 100 100|101 101 -50|cold cold 0"},
        {"tempAirField", "tempAir", "- - -50|140 140 140|141 141 -50|-49 -49 -49|-51 -51 -50"},
        {"profondeurField", "profondeur", "-1 0 0|18,5 18,5 18.5|deep deep 0"},
        {"tempsField", "temps", "-3 0 0"},
        {"altitudeField", "altitude", "4000 4000 4000|4001 0 0|-1 0 0"},
        {"timeDeco_Level_6_Field", "decoTime_Level_6", "-1 0 0"},
        {"o2MixField", "o2Mix", "0 21 21|1 1 1"},
        {"o2Mix_2Field", "o2Mix_2", "-4 21 21"},
        {"heMixField", "heMix", "86 86 86|87 0 0"},
        {"heMix_2Field", "heMix_2", "-1 0 0"},
        {"lestageField", "lestage", "-2 0.0 0"},
        {"departField", "pressionDepart", "-7 -7 -7"},
        {"finField", "pressionFin", "210 210 210"},
        {"noPlongeeField", "noPlongee", "99999999999 99999999999 2147483647"},
    };
    for (const auto& [control, field, rows] : cases) {
        for (const QString& row : QString::fromUtf8(rows).split(u'|')) {
            const QStringList words = row.split(u' ');
            form.blankFields();
            type(control, words[0].toUtf8());
            const Plongee dive = form.addDiveToList();
            EXPECT_EQ(fieldsOf(dive, field), words[2]) << control << ' ' << row.toStdString();
            EXPECT_EQ(shown(control), words[1]) << control << ' ' << row.toStdString();
        }
    }
    EXPECT_TRUE(desktop.alerts.questions.empty() && desktop.alerts.told.isEmpty());
}

TEST_F(DiveFormTest, clearsForANewDive) {
    for (int index = 0; index < static_cast<int>(controls.controls().size()); ++index) {
        FormStateBase& state = form.state();
        state.setText(index, QStringLiteral("17"));
        state.setTag(index, 3);
    }
    form.profile().profilProfondeur.appendReal(12);
    for (const auto& [key, value] : namedValues("fabricant=Maker|ordinateur=Model|serie=A1|country code=FR|low GF=30|"
                                                "high GF=85|tank volume=15|tank pressure=232")) {
        desktop.preferences.set(QString::fromStdString(key), value);
    }
    form.blankFields();

    for (const auto& [control, expected] : namedValues(
             "noPlongeeField=|coeffField=-|lieuField=|countryCodeField=FR|tempEauField=-|tempAirField=-|"
             "surfaceField=--:--|profondeurField=|tempsField=|altitudeField=0|deco_TTS_Field=-|decoO2_Level_6_Field=-|"
             "timeDeco_Level_1_Field=-|decoHe_Level_3_Field=0|depthDeco_Level_6_Field=0|pony_3_VolumeField=0|"
             "decoSoftNameField=-|decoConservatismField=-|lowGFField=30|highGFField=85|runtimeField=|flowField=0|"
             "volumeBlocField=15|volumeBloc_2Field=15|pressionBloc_2Field=232|departField=|fin_2Field=|o2MixField=21|"
             "heMix_2Field=0|n2Mix_2Field=79|fabricantField=Maker|ordinateurField=Model|serieField=A1|"
             "equipement_12_Field=|lestageField=|notesField=|difficulteField=Very easy")) {
        EXPECT_EQ(shown(control.c_str()), expected) << control;
    }
    EXPECT_EQ(shown("gpsField"), text("Carnet", "GPS template"));
    for (const auto& [control, expected] : namedValues(
             "pmBmPopUp=0|gpsSystemPopUp=1|meteoPopUp=7|ventSecteurPopUp=0|courantPopUp=6|visibilitePopUp=7|"
             "typePlongeePopUp=8|inoubliablePopUp=0|nocturneSwitch=0|decoPopUp=0|deco_Level_4_Switch=0|"
             "rebreatherMatrix=0|gazPopUp=0|ppO2PopUp=0|alliageBloc_2PopUp=0|combinaisonPopUp=0|configurationPopUp=1|"
             "difficulteSlider=0")) {
        EXPECT_EQ(form.state().at(indexOf(control.c_str())).tag, expected.toInt()) << control;
    }
    EXPECT_EQ(form.state().date(controls.dateField), Date::fromDateTime(desktop.clock.moment));
    EXPECT_EQ(form.state().date(controls.heureField).toDateTime(), QDate(2001, 1, 1).startOfDay());
    EXPECT_EQ(form.profile().profilProfondeur, Series::ofReals({0.0}));
    EXPECT_EQ(form.profile().ASC_Flag, Series::ofIntegers({0}));

    // Only preferences that were saved once space the stops.
    store("stop interval", "3");
    form.blankFields();
    EXPECT_EQ(shown("depthDeco_Level_1_Field"), u"3");
    EXPECT_EQ(shown("depthDeco_Level_6_Field"), u"18");
}

TEST_F(DiveFormTest, showsADiveAndGivesItBack) {
    // No item of the menu has the dive's kind.
    const auto dive = filled<Plongee>(
        "noPlongee=57|coeff=0|tempEau=-50|tempAir=-50|profondeur=38.2|decoDepth_Level_2=7.5|decoDepth_Level_4=-3|"
        "decoO2_Level_2=50|decoTime_Level_2=4|typePlongee=2|o2Mix=21|o2Mix_2=21|notes=two\nlines|"
        "profilProfondeur=0,38.2,0");
    store("stop interval", "5");
    form.editFields(dive);
    EXPECT_EQ(shown("coeffField"), u"-");
    EXPECT_EQ(shown("tempEauField") + shown("tempAirField"), u"--");
    EXPECT_EQ(shown("profondeurField"), u"38.2");
    const char* depths[] = {"3", "7.5", "9", "12", "15", "18"};
    for (std::size_t level = 0; level < 6; ++level) {
        EXPECT_EQ(form.state().text(controls.depthDeco_Level_Field[level]), QString::fromUtf8(depths[level]));
    }
    EXPECT_EQ(shown("decoO2_Level_1_Field") + shown("timeDeco_Level_1_Field") + shown("decoHe_Level_1_Field"), u"--0");
    EXPECT_EQ(shown("decoO2_Level_2_Field") + shown("timeDeco_Level_2_Field"), u"504");

    const Plongee built = form.addDiveToList();
    for (const auto& item : Plongee::layout().items) {
        const FieldKind kind = item.field().kind();
        if (!item.key().starts_with("decoDepth") && (kind == FieldKind::integer || kind == FieldKind::real)) {
            EXPECT_TRUE(item.field().value(built) == item.field().value(dive)) << item.key();
        }
    }
    EXPECT_EQ(built.notes, dive.notes);
    EXPECT_EQ(built.profilProfondeur, dive.profilProfondeur);
    EXPECT_EQ(built.SURF_Flag, Series::ofIntegers({0}));
}

TEST_F(DiveFormTest, followsTheEntries) {
    const auto captions = [&] { return shown("blocField") + shown("bloc_2Field"); };
    form.updateUI();
    EXPECT_EQ(captions(), u"Main tank:Second tank:");
    EXPECT_FALSE(form.state().at(indexOf("flowField")).enabled);
    choose("rebreatherMatrix", 1);
    EXPECT_TRUE(form.state().at(indexOf("flowField")).enabled);
    choose("rebreatherMatrix", 3);
    EXPECT_EQ(captions(), u"OXYGEN:DILUENT:");
    EXPECT_EQ(shown("o2MixField"), u"100");
    EXPECT_EQ(shown("setPointField"), text("Carnet", "high setpoint"));
    choose("rebreatherMatrix", 4);
    EXPECT_EQ(captions(), u"OXYGEN:DILUENT:");
    setTextLanguage(QStringLiteral("fr"));
    choose("rebreatherMatrix", 2);
    EXPECT_EQ(captions(), u"OXYGÈNE :DILUANT :");
    choose("rebreatherMatrix", 1);
    EXPECT_EQ(captions(), u"Bloc principal :Bloc secondaire :");
    setTextLanguage(QStringLiteral("en"));
    choose("rebreatherMatrix", 0);
    EXPECT_EQ(shown("setPointField"), text("Carnet", "PpO2"));

    const auto units = [&](const char* names) { return eachOf(names, [&](const char* name) { return shown(name); }); };
    EXPECT_EQ(units("ftDepthField ft_18m_Field fahrEauField"), u"m|m|°C");
    store("us units", "YES");
    form.updateUI();
    EXPECT_EQ(units("ftAltitudeField ft_3m_Field fahrAirField"), u"ft|ft|°F");

    const char* words[] = {"Very easy", "Easy", "Normal", "Hard", "Very hard", "Extreme", "Extreme"};
    for (int difficulty = 0; difficulty < 7; ++difficulty) {
        choose("difficulteSlider", difficulty);
        EXPECT_EQ(shown("difficulteField"), QString::fromUtf8(words[difficulty]));
    }

    const auto mix = [&] { return units("o2MixField n2MixField heMixField"); };
    type("o2MixField", "32");
    choose("razNitroxButton", 0);
    EXPECT_EQ(mix(), u"32|68|0");
    choose("razHelioxButton", 0);
    EXPECT_EQ(mix(), u"32|0|68");
    choose("razAirButton", 0);
    EXPECT_EQ(mix(), u"21|79|0");
}

TEST_F(DiveFormTest, showsWhatFollowsFromTanksAndBottles) {
    const auto held = [&](const char* name) { return form.state().at(indexOf(name)); };
    form.blankFields();
    EXPECT_EQ(shown("deltaPressureField"), u"0 bar used");
    type("departField", "200");
    type("finField", "210");
    type("depart_2Field", "180");
    EXPECT_EQ(shown("deltaPressureField"), u"-10 bar used");
    EXPECT_EQ(explanation("deltaPressureField"), u"Pressure used = 200 bar − 210 bar = -10 bar");
    EXPECT_EQ(shown("deltaPressure_2Field"), u"180 bar used");
    type("heMix_2Field", "30");
    EXPECT_EQ(explanation("n2Mix_2Field"), u"Nitrogen = 100 % − 21 % O₂ − 30 % He = 49 %");

    // A level's box is named whatever is switched on; reports and gauges take one of the levels 3 to 6.
    type("depthDeco_Level_2_Field", "6.9");
    type("decoO2_Level_2_Field", "50");
    EXPECT_EQ(shown("pony_2_TitleField"), u"Pony 2 : 6 m - 50 % O₂");
    EXPECT_EQ(shown("pony_3_TitleField"), u"Pony 3 : 0 m - 0 % O₂");
    type("pony_2_VolumeField", "7");
    type("pony_2_DepartField", "205");
    type("pony_2_FinField", "120");
    type("bailout_2_VolumeField", "5");
    choose("deco_Level_2_Switch", 1);
    EXPECT_EQ(shown("consoPony_2Field"), u"");
    EXPECT_FALSE(held("gaz2Progress").visible);
    choose("deco_Level_6_Switch", 1);
    EXPECT_EQ(shown("consoPony_2Field"), u"Gas available: 1435 L\rGas used: 595 L");
    EXPECT_TRUE(explanation("consoPony_2Field").contains(u"7 L × (205 bar − 120 bar) = 595 L"));
    EXPECT_TRUE(held("gaz2Progress").visible);
    EXPECT_EQ(std::tuple(held("gaz2Progress").tag, held("gaz2Progress").maximum, held("gaz2Progress").ticks),
              std::tuple(120, 205, 20));
    EXPECT_EQ(shown("consoBailout_2Field"), u"Gas available: 0 L\rGas used: 0 L");
    EXPECT_TRUE(held("gazBailout2Progress").visible);
    EXPECT_EQ(shown("consoPony_1Field") + shown("consoBailout_1Field"), u"");
    type("pony_2_VolumeField", "0");
    EXPECT_EQ(shown("consoPony_2Field"), u"");
    EXPECT_FALSE(held("gaz2Progress").visible);
}

TEST_F(DiveFormTest, sumsUpProfileAndOxygen) {
    form.blankFields();
    type("profondeurField", "30");
    type("tempsField", "20");
    EXPECT_EQ(shown("sncDrawer"), u"ppO₂ 0.84 bar, CNS clock 4.8 %");
    EXPECT_EQ(shown("maxAverageDepthField"), u"Maximum depth 0.0 m, average 0.0 m");
    EXPECT_EQ(shown("recordedPointsField"), u"Recorded points: 0");

    form.editFields(filled<Plongee>("o2Mix=32|temps=20|samplingRate=7|profilProfondeur=0,20,25.5,0"));
    EXPECT_EQ(shown("maxAverageDepthField"), u"Maximum depth 25.5 m, average 11.4 m");
    EXPECT_EQ(explanation("maxAverageDepthField"), u"Average depth = mean of 4 samples = 11.4 m");
    EXPECT_EQ(shown("samplingRateField"), u"Sampling interval: 5 s");
    EXPECT_EQ(shown("recordedPointsField"), u"Recorded points: 4");
    // 0.32 × 3.55 bar lies in the band up to 1.14 bar, at 0.43 % a minute.
    EXPECT_EQ(shown("sncDrawer"), u"ppO₂ 1.14 bar, CNS clock 8.6 %");
    // A stop at 19 m counts as 2 bar.
    choose("deco_Level_1_Switch", 1);
    type("depthDeco_Level_1_Field", "19");
    type("decoO2_Level_1_Field", "80");
    EXPECT_TRUE(explanation("sncDrawer").contains(u"ppO₂ = stop 1: 80 % O₂ × 2 bar = 1.60 bar"))
        << explanation("sncDrawer").toStdString();

    int asked = 0;
    QObject::connect(&form, &DiveForm::consumptionRequested, [&] { ++asked; });
    choose("consommationButton", 0);
    EXPECT_EQ(asked, 1);
}

TEST_F(DiveFormTest, hintsAtWhatIsNotReadAsTypedOrIsUnlikely) {
    // What is typed, and the hint at it.
    const std::pair<const char*, const char*> cases[] = {
        {"tempsField", "99999=usually 0 to 1440|99999999999=read as 2147483647"},
        {"altitudeField", "4001=usually 0 to 4000"},
        {"o2MixField", "150=usually 1 to 100"},
        {"departField", "200="},
        {"finField", "210=above the start|50="},
    };
    for (const auto& [control, rows] : cases) {
        for (const auto& [typed, hint] : namedValues(rows)) {
            type(control, typed.c_str());
            EXPECT_EQ(form.hint(indexOf(control)), hint) << control << ' ' << typed;
        }
    }
    const int day = controls.dateField.index;
    form.state().pick(day, Date::fromDateTime(desktop.clock.moment));
    EXPECT_TRUE(form.hint(day).isEmpty());
    form.state().pick(day, Date::fromDateTime(desktop.clock.moment.addDays(1)));
    EXPECT_EQ(form.hint(day), u"in the future");
}

TEST_F(DiveFormTest, offersNewWordsToTheSharedLists) {
    desktop.pickLists.append(PickList::tableauDesLieux, QStringLiteral("Nice"));
    const auto finish = [&](const char* control, const char* typed) {
        type(control, typed);
        form.endEditing(indexOf(control));
    };
    finish("lieuField", "Nice");
    finish("lieuField", "  ");
    finish("decoSoftNameField", "Own list");
    EXPECT_TRUE(desktop.alerts.questions.empty());

    desktop.alerts.answerNext(0);
    finish("lieuField", " Calvi");
    const QStringList expected{QStringLiteral(" Calvi"), QStringLiteral("Nice")};
    EXPECT_TRUE(desktop.alerts.questions.at(0).message.startsWith(u"Add “ Calvi” to the list?\n"));
    EXPECT_EQ(desktop.pickLists[PickList::tableauDesLieux], expected);
    EXPECT_EQ(desktop.preferences.strings(QStringLiteral("lieux")), expected);

    desktop.pickLists.append(PickList::sacDePlongee, QStringLiteral("Torch"));
    desktop.pickLists.append(PickList::sacDePlongee, QStringLiteral("Knife"));
    desktop.alerts.answerNext(1);
    finish("equipement_7_Field", "Reel");
    EXPECT_EQ(desktop.preferences.strings(QStringLiteral("sac de plongee")),
              QStringList({QStringLiteral("Knife"), QStringLiteral("Torch")}));
}

}  // namespace

}  // namespace tavrel
