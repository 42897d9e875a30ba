#include "app/preferenceswindow.h"

#include "app/colorwell.h"
#include "archive/colorarchive.h"
#include "desktop/commonsettings.h"
#include "desktop/defaults.h"
#include "desktop/ui/customtoolbar.h"
#include "logbook/logbooksettings.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace tavrel {

namespace {

struct PreferencesTest : testing::Test {
    PreferencesTest() {
        using enum Notification;
        for (const auto& [notification, name] :
             {std::pair(updateTableView, "updateTableView"),
              std::pair(updateColumnsTableView, "updateColumnsTableView"), std::pair(updateEditDive, "updateEditDive"),
              std::pair(Notification::profile, "profile"), std::pair(updateDeco, "updateDeco"),
              std::pair(updateRebreather, "updateRebreather")}) {
            subscriptions_.push_back(desktop.notifications.subscribe(notification, [this, name = name] {
                posted.append(QString::fromLatin1(name));
                intervalWhenPosted = desktop.preferences.string(QStringLiteral("stop interval"));
            }));
        }
    }

    template <class Widget>
    Widget& find(const char* name) {
        auto* widget = window().findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_TRUE(widget) << name;
        return *widget;
    }
    void type(const char* name, const char* words) {
        auto& field = find<QLineEdit>(name);
        field.selectAll();
        QTest::keyClicks(&field, QString::fromLatin1(words));
        QTest::keyClick(&field, Qt::Key_Return);
    }
    PreferencesWindow& window() {
        if (!window_) {
            window_ = std::make_unique<PreferencesWindow>(desktop.desktop());
        }
        return *window_;
    }
    /// The store as another program reads it.
    std::unique_ptr<Preferences> readBack() {
        auto store = std::make_unique<Preferences>(desktop.path(QStringLiteral("preferences.ini")));
        registerDefaults(*store);
        return store;
    }
    QStringList takePosted() { return std::exchange(posted, {}); }

    TestDesktop desktop;
    QStringList posted;
    QString intervalWhenPosted;

private:
    std::vector<NotificationCentre::Subscription> subscriptions_;
    std::unique_ptr<PreferencesWindow> window_;
};

TEST_F(PreferencesTest, resetGivesEverySettingItsValueAndStoresIt) {
    desktop.preferences.set(QStringLiteral("column_epave"), true);
    window().resetPreferences();
    EXPECT_TRUE(takePosted().isEmpty());
    const auto store = readBack();
    for (const auto& [key, value] : namedValues(
             "tank volume=15|tank pressure=230|us units=0|display units=1|depth time in color=1|color item=0|"
             "coloured text=|coloured theme=0|low temperature in color=0|low temperature value=|mix in color=1|"
             "foreign in color=1|country code=FRA|column numero=1|column visibilite=1|column_epave=1|column gaz=0|"
             "column scaph=0|alpha background color=0.2|alpha fill color=0.4|fill plot=1|gradient yes=1|"
             "x minor ticks=1|y minor ticks=1|dashed lines=1|ppO2 line=0|stop interval=3|low GF=0|high GF=0|"
             "cell life=18")) {
        EXPECT_TRUE(store->isStored(QString::fromStdString(key))) << key;
        EXPECT_EQ(store->string(QString::fromStdString(key)), value) << key;
    }
    const std::pair<const char*, Rgb> colors[] = {
        {"depth color", {0.5F, 0, 0.5F}},     {"time color", {0, 0, 0.6F}},
        {"low temperature color", {0, 0, 1}}, {"foreign color", {0.725F, 1, 0.674F}},
        {"plot color", {1, 0.5F, 0}},         {"background color", {0.855F, 0.49F, 0.149F}},
        {"fill color", {0.1F, 0.1F, 1}},      {"gradient lines color", {0.702F, 0.702F, 0.702F}},
    };
    for (const auto& [key, value] : colors) {
        EXPECT_EQ(store->get(Setting<QColor>{key}).name(), value.color().name()) << key;
    }
    // Keys without a control stay as they are registered; the interval's other spelling is one of them.
    EXPECT_FALSE(store->isStored(QStringLiteral("stop_interval")));
    EXPECT_FALSE(store->isStored(QStringLiteral("ASC color")) || store->isStored(QStringLiteral("pense bete")));
}

TEST_F(PreferencesTest, settingsFallBackUntilTheyAreStored) {
    const Preferences& stored = desktop.preferences;
    using namespace settings;
    EXPECT_TRUE(stored.get(displayUnits));
    for (const auto* setting : {&colorItem, &lowTemperatureInColor, &columnNumero, &columnEpave}) {
        EXPECT_FALSE(stored.get(*setting)) << setting->key;
    }
    for (const auto* setting : {&lowTemperatureColor, &timeColor}) {
        EXPECT_EQ(stored.get(*setting).name(), u"#0000ff") << setting->key;
    }
    EXPECT_EQ(stored.get(stopInterval), 0);
    EXPECT_EQ(stored.get(tankVolume), 0);
    EXPECT_EQ(stored.get(settings::countryCode), QString());
    // The grey keeps its archive as long as nobody chose another one.
    window().savePrefs();
    EXPECT_EQ(QSettings(desktop.path(QStringLiteral("preferences.ini")), QSettings::IniFormat)
                  .value(QStringLiteral("background color"))
                  .toByteArray(),
              archivedWhite(0.5F));
}

TEST_F(PreferencesTest, everyChangeIsStoredAndTellsItsFollowers) {
    desktop.preferences.set(QStringLiteral("column site"), true);
    desktop.preferences.set(QStringLiteral("column_epave"), true);
    EXPECT_TRUE(find<QCheckBox>("siteColumnSwitch").isChecked());
    EXPECT_FALSE(find<QCheckBox>("epaveColumnSwitch").isChecked());

    const auto postedBy = [this](const char* name) {
        find<QCheckBox>(name).click();
        return takePosted().join(u' ');
    };
    EXPECT_EQ(postedBy("siteColumnSwitch"), u"updateColumnsTableView");
    EXPECT_EQ(postedBy("epaveColumnSwitch") + postedBy("epaveColumnSwitch"), u"");
    EXPECT_EQ(postedBy("mixInColorSwitch"), u"updateTableView");
    EXPECT_EQ(postedBy("displayUnitsSwitch"), u"updateTableView");
    EXPECT_EQ(postedBy("dashedLinesSwitch"), u"profile");
    type("stopIntervalField", "5");
    EXPECT_EQ(takePosted(), QStringList{QStringLiteral("updateDeco")});
    EXPECT_EQ(intervalWhenPosted, u"5");
    type("cellLifeField", "24");
    EXPECT_EQ(takePosted(), QStringList{QStringLiteral("updateRebreather")});
    find<QCheckBox>("lowTemperatureSwitch").click();
    type("tempValueField", "x-1,5");
    type("volumeBlocField", "12");
    takePosted();
    find<QComboBox>("themeInColorPopUp").setCurrentIndex(2);
    Q_EMIT find<QComboBox>("themeInColorPopUp").activated(2);
    auto& well = find<ColorWell>("fillColorWell");
    well.setChooser([](QWidget*, const QColor&) { return std::nullopt; });
    well.click();
    EXPECT_EQ(takePosted(), QStringList{QStringLiteral("updateTableView")});
    well.setChooser([](QWidget*, const QColor&) { return QColor(10, 20, 30); });
    well.click();
    EXPECT_EQ(takePosted(), QStringList{QStringLiteral("profile")});
    EXPECT_EQ(postedBy("usUnitsSwitch"), u"updateTableView profile updateEditDive updateDeco updateRebreather");

    const auto store = readBack();
    // What was not changed goes along: the defaults, as of the alpha, become the user's.
    for (const auto& [key, value] : namedValues(
             "column site=0|column_epave=1|mix in color=1|stop interval=5|cell life=24|low temperature value=-1.5|"
             "tank volume=12|coloured theme=2|us units=1|alpha fill color=0.5")) {
        EXPECT_EQ(store->string(QString::fromStdString(key)), value) << key;
    }
    EXPECT_EQ(store->get(Setting<QColor>{"fill color"}).name(), QColor(10, 20, 30).name());

    // A second window shows what was stored.
    PreferencesWindow second(desktop.desktop());
    for (const PreferenceKey& key : preferenceKeys()) {
        const QString typed = window().control(key.setting).value().toString().replace(u',', u'.');
        EXPECT_EQ(second.control(key.setting).value().toString(), typed) << key.key();
    }
}

TEST_F(PreferencesTest, decoAndRebreatherStoreAfterTheyTold) {
    window().savePrefs();
    window().control(&settings::stopInterval).setValue(QStringLiteral("4"));
    window().control(&settings::lowGF).setValue(QStringLiteral("30"));
    window().control(&settings::cellLife).setValue(QStringLiteral("20"));
    window().updateDecoNotification();
    EXPECT_EQ(intervalWhenPosted, QString());
    EXPECT_EQ(desktop.preferences.get(Setting<qint32>{"stop interval"}), 4);
    EXPECT_EQ(desktop.preferences.get(Setting<qint32>{"low GF"}), 30);
    // The window showed the stored values again, which took the unsaved lifetime with it.
    EXPECT_EQ(window().control(&settings::cellLife).value().toString(), QString());
    window().control(&settings::cellLife).setValue(QStringLiteral("20"));
    window().updateRebreatherNotification();
    EXPECT_EQ(desktop.preferences.get(Setting<qint32>{"cell life"}), 20);
}

TEST_F(PreferencesTest, switchesEnableWhatDependsOnThem) {
    for (const auto& [onOff, dependents] :
         namedValues("tableColorSwitch=profondeurWell dureeWell|itemColorSwitch=textInColorField themeInColorPopUp|"
                     "lowTemperatureSwitch=tempValueField lowTemperatureWell|fillSwitch=fillColorWell alphaFillField|"
                     "gradientYesSwitch=gradientLinesColorWell")) {
        auto& box = find<QCheckBox>(onOff.c_str());
        for (int turn = 0; turn < 2; ++turn) {
            box.click();
            for (const QString& name : dependents.split(u' ')) {
                EXPECT_EQ(find<QWidget>(name.toLatin1()).isEnabled(), box.isChecked()) << name.toStdString();
            }
        }
    }
    EXPECT_EQ(find<QLabel>("temperatureUnit").text(), text("Carnet", "Degree Celsius"));
    find<QCheckBox>("usUnitsSwitch").click();
    EXPECT_EQ(find<QLabel>("temperatureUnit").text(), text("Carnet", "Degree Farenheit"));
}

TEST_F(PreferencesTest, whatIsNoNumberIsNotShownAsOne) {
    desktop.preferences.set(QStringLiteral("low temperature value"), QStringLiteral("cold"));
    EXPECT_EQ(window().control(&settings::lowTemperatureValue).value().toString(), QString());
}

TEST_F(PreferencesTest, fieldsCountWhenTheUserGoesToAnotherWindow) {
    window().show();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    auto& field = find<QLineEdit>("volumeBlocField");
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("12"));
    QWidget logbook;
    logbook.show();
    logbook.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&logbook));
    EXPECT_EQ(readBack()->get(Setting<qint32>{"tank volume"}), 12);
}

TEST_F(PreferencesTest, pagesAndResetButton) {
    auto* bar = window().findChild<CustomToolBar*>(QStringLiteral("prefsToolbar"));
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->arrangement().join(u' '), u"general carnet affichage profil deco rebreather");
    window().show();
    window().move(20, 30);
    const int top = window().y();
    int page = 0;
    for (QAction* action : bar->actions()) {
        action->trigger();
        EXPECT_EQ(window().page(), ++page);
        EXPECT_TRUE(action->isChecked());
        EXPECT_EQ(window().y(), top);
    }
    // A logbook changed its columns.
    desktop.preferences.set(QStringLiteral("column gaz"), true);
    desktop.notifications.post(Notification::updateColumnsTableView);
    EXPECT_TRUE(find<QCheckBox>("gazColumnSwitch").isChecked());
    takePosted();
    desktop.alerts.answerNext(1);
    find<QPushButton>("resetPreferences").click();
    EXPECT_TRUE(takePosted().isEmpty());
    desktop.alerts.answerNext(0);
    find<QPushButton>("resetPreferences").click();
    EXPECT_FALSE(find<QCheckBox>("gazColumnSwitch").isChecked());
    EXPECT_EQ(takePosted().size(), 6);
}

TEST_F(PreferencesTest, theResetSaysWhatItChanges) {
    // At a first start the registered defaults and the reset values differ.
    const auto question = [&] {
        desktop.alerts.answerNext(1);
        find<QPushButton>("resetPreferences").click();
        return desktop.alerts.questions.back().message.split(u'\n');
    };
    EXPECT_TRUE(question().contains(QStringLiteral("New dives – Tank volume: – → 15 L")));
    EXPECT_TRUE(question().contains(QStringLiteral("Depth and time – Depths: #0000ff → #800080")))
        << "blue, then purple";
    EXPECT_FALSE(question().join(u' ').contains(u"Show units in")) << "it is on and stays on";
    EXPECT_TRUE(question().last().startsWith(u"and ")) << "the list is cut to fit the screen";
    window().resetPreferences();
    type("volumeBlocField", "12");
    find<QCheckBox>("gazColumnSwitch").click();
    EXPECT_EQ(question().mid(2), (QStringList{QStringLiteral("New dives – Tank volume: 12 L → 15 L"),
                                              QStringLiteral("Columns of the logbook – Gas: on → off")}));
}

TEST_F(PreferencesTest, saysWhatASwitchDoesBesideItAndIsUsedFromTheKeyboard) {
    EXPECT_TRUE(find<QLabel>("Note US units").text().contains(u"converts nothing"));
    EXPECT_TRUE(find<QLabel>("Tip wreck column").text().contains(u"does not keep a choice"));
    EXPECT_FALSE(find<QLabel>("Note US units").isHidden());
    window().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(&window(), key, modifiers);
        return window().page();
    };
    EXPECT_EQ(press(Qt::Key_PageDown), 2);
    EXPECT_EQ(press(Qt::Key_Tab), 3);
    EXPECT_EQ(press(Qt::Key_PageUp), 2);
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), 1);
    EXPECT_EQ(press(Qt::Key_PageUp), 6) << "around the end";
    for (QToolButton* button : find<CustomToolBar>("prefsToolbar").findChildren<QToolButton*>()) {
        EXPECT_TRUE(button->objectName() == u"qt_toolbar_ext_button" || (button->focusPolicy() & Qt::TabFocus))
            << button->text().toStdString();
    }
    press(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_TRUE(window().isHidden());
}

}  // namespace

}  // namespace tavrel
