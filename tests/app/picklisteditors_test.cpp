#include "app/appdelegate.h"
#include "app/picklistwindow.h"
#include "forms/picklistentry.h"
#include "support/testdesktop.h"

#include <QComboBox>
#include <QPushButton>
#include <QSet>
#include <QTest>

namespace tavrel {

namespace {

const PickListEditorDescription& editorOf(const char* action) {
    for (const auto& editor : pickListEditors) {
        if (QLatin1StringView(editor.action) == QLatin1StringView(action)) {
            return editor;
        }
    }
    ADD_FAILURE() << action;
    return pickListEditors.front();
}

struct PickListEditors : testing::Test {
    QWidget& show(const char* action) { return *delegate.showEditor(editorOf(action)); }

    static void add(QWidget& window, const EditedList& list, const QString& entry) {
        window.findChild<QLineEdit*>(QLatin1StringView(list.field))->setText(entry);
        window.findChild<QPushButton*>(QLatin1StringView(list.addAction))->click();
    }
    static QStringList entries(QWidget& window, const EditedList& list) {
        QStringList entries;
        const auto* model = window.findChild<QListView*>(QLatin1StringView(list.tableView))->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            entries.append(model->index(row, 0).data().toString());
        }
        return entries;
    }
    /// The list as another program reads it.
    QStringList stored(const char* key) {
        return Preferences(desktop.path(QStringLiteral("preferences.ini"))).strings(QString::fromLatin1(key));
    }

    TestDesktop desktop;
    AppDelegate delegate{desktop.desktop()};
};

TEST_F(PickListEditors, addToTheirListsAndStoreThem) {
    QSet<QString> keys;
    for (const auto& editor : pickListEditors) {
        QWidget& window = show(editor.action);
        EXPECT_EQ(&show(editor.action), &window) << "made once";
        for (const auto& edited : {std::optional(editor.first), editor.second}) {
            if (!edited) {
                continue;
            }
            const QString entry = QString::fromLatin1(edited->field);
            add(window, *edited, entry);
            EXPECT_EQ(entries(window, *edited), QStringList{entry});
            EXPECT_EQ(window.findChild<QLineEdit*>(entry)->text(), QString());
            const QString key =
                edited->storedUnder ? QString::fromLatin1(edited->storedUnder) : PickLists::key(edited->list);
            EXPECT_EQ(stored(key.toLatin1()), QStringList{entry}) << key.toStdString();
            keys.insert(key);
        }
    }
    EXPECT_EQ(keys.size(), pickListCount - 1);
    EXPECT_FALSE(keys.contains(QStringLiteral("magasins")));
}

TEST_F(PickListEditors, keepWhatIsTypedSortedAndDeleteSeveralAtOnce) {
    QWidget& window = show("showLieuWindow");
    const EditedList& places = editorOf("showLieuWindow").first;
    auto* table = window.findChild<QListView*>(QLatin1StringView(places.tableView));
    auto* total = window.findChild<QLabel*>(QLatin1StringView(places.totalField));
    auto* deleteButton = window.findChild<QPushButton*>(QLatin1StringView(places.deleteAction));
    for (const char* entry : {"b", "", " a ", "B", "b", "\xc3\xa9"}) {
        add(window, places, QString::fromUtf8(entry));
    }
    const QString accented = QStringLiteral("é");
    EXPECT_EQ(entries(window, places).join(u'|'), QStringLiteral("| a |b|b|B|") + accented);
    EXPECT_EQ(total->text(), textWith("Carnet", "Entries", 6));

    auto* field = window.findChild<QLineEdit*>(QLatin1StringView(places.field));
    field->setText(QStringLiteral("typed"));
    deleteButton->click();
    EXPECT_EQ(desktop.alerts.beeps, 0);
    EXPECT_EQ(field->text(), u"typed");

    const auto select = [&](const QList<int>& rows) {
        for (const int row : rows) {
            table->selectionModel()->select(table->model()->index(row, 0), QItemSelectionModel::Select);
        }
    };
    select({0, 2, 4});
    desktop.alerts.answerNext(1);
    deleteButton->click();
    EXPECT_EQ(entries(window, places).size(), 6);
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(desktop.alerts.questions.back().buttons, (QStringList{QStringLiteral("OK"), text("Main", "Cancel")}));
    desktop.alerts.answerNext(0);
    table->setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_EQ(entries(window, places).join(u'|'), QStringLiteral(" a |b|") + accented);
    EXPECT_EQ(stored("lieux").size(), 3);
    EXPECT_EQ(total->text(), textWith("Carnet", "Entries", 3));
    EXPECT_TRUE(table->selectionModel()->selectedRows().isEmpty());
    EXPECT_EQ(desktop.alerts.beeps, 2);

    // A form changes the list while the question is on the screen: nothing that was not selected goes.
    select({1});
    desktop.alerts.answerNext(0);
    desktop.alerts.whileAsked = [&] {
        desktop.pickLists.append(PickList::tableauDesLieux, QStringLiteral("B"));
        desktop.pickLists.sort(PickList::tableauDesLieux);
    };
    deleteButton->click();
    EXPECT_EQ(entries(window, places).join(u'|'), QStringLiteral(" a |b|B|") + accented);
}

TEST_F(PickListEditors, sortAsTheLanguageDoesRenameAndCount) {
    delegate.countUsageWith([](PickList list) -> std::optional<QHash<QString, int>> {
        return list == PickList::tableauDesSites ? QHash<QString, int>{{QStringLiteral("Épave"), 7}}
                                                 : QHash<QString, int>();
    });
    QWidget& window = show("showSiteWindow");
    const EditedList& sites = editorOf("showSiteWindow").first;
    for (const char* entry : {"Zoo", "\xc3\x89pave", "abri", "Est"}) {
        add(window, sites, QString::fromUtf8(entry));
    }
    EXPECT_EQ(entries(window, sites).join(u'|'), QStringLiteral("abri|Épave|Est|Zoo"));
    window.hide();
    show("showSiteWindow");
    auto* model = window.findChild<QListView*>(QLatin1StringView(sites.tableView))->model();
    const auto uses = [&](int row) { return model->index(row, 0).data(Qt::AccessibleDescriptionRole).toString(); };
    EXPECT_TRUE(uses(1).contains(u'7')) << uses(1).toStdString();
    EXPECT_TRUE(uses(2).contains(u'0')) << uses(2).toStdString();
    EXPECT_TRUE(model->setData(model->index(0, 0), QStringLiteral("Tombant")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return entries(window, sites).contains(QStringLiteral("Tombant")); }));
    EXPECT_EQ(entries(window, sites).join(u'|'), QStringLiteral("Épave|Est|Tombant|Zoo"));
    EXPECT_TRUE(stored("sites").contains(QStringLiteral("Tombant")));
    EXPECT_FALSE(stored("sites").contains(QStringLiteral("abri")));
}

TEST_F(PickListEditors, decideOnceForAllAboutNewWords) {
    QWidget& window = show("showLieuWindow");
    auto* choice = window.findChild<QComboBox*>(QStringLiteral("lieuFieldNewWords"));
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->currentIndex(), 0) << "asks, until someone chooses";
    const auto choose = [&](int row) {
        choice->setCurrentIndex(row);
        Q_EMIT choice->activated(row);
    };
    choose(1);
    offerToPickList(desktop.desktop(), PickList::tableauDesLieux, QStringLiteral("Malta"));
    EXPECT_EQ(stored("lieux"), QStringList{QStringLiteral("Malta")});
    choose(2);
    offerToPickList(desktop.desktop(), PickList::tableauDesLieux, QStringLiteral("Gozo"));
    EXPECT_EQ(stored("lieux"), QStringList{QStringLiteral("Malta")});
    EXPECT_TRUE(desktop.alerts.questions.empty());
    EXPECT_EQ(desktop.alerts.beeps, 0);
    // Each list has its own choice.
    desktop.alerts.answerNext(0);
    offerToPickList(desktop.desktop(), PickList::tableauDesSites, QStringLiteral("Wall"));
    EXPECT_EQ(desktop.alerts.questions.size(), 1U);
    EXPECT_TRUE(desktop.alerts.questions[0].message.contains(u"Sites"));
    choose(0);
    desktop.alerts.answerNext(1);
    offerToPickList(desktop.desktop(), PickList::tableauDesLieux, QStringLiteral("Gozo"));
    EXPECT_EQ(desktop.alerts.questions.size(), 2U);
}

TEST_F(PickListEditors, showTheSharedListsAndReloadTheLastSeven) {
    const auto& countries = editorOf("showPaysWindow");
    QWidget& window = show("showPaysWindow");
    // A form added an entry.
    desktop.pickLists.append(PickList::countryCodeArray, QStringLiteral("FRA"));
    EXPECT_EQ(entries(window, *countries.second), QStringList{QStringLiteral("FRA")});
    EXPECT_TRUE(entries(window, countries.first).isEmpty());

    // The shops are stored over the equipment types, which take them when their editor is shown.
    const auto& types = editorOf("showTypesMatosWindow").first;
    QWidget& typesWindow = show("showTypesMatosWindow");
    add(typesWindow, types, QStringLiteral("Fins"));
    add(show("showMagasinsWindow"), editorOf("showMagasinsWindow").first, QStringLiteral("Corner shop"));
    EXPECT_EQ(entries(typesWindow, types), QStringList{QStringLiteral("Fins")});
    show("showTypesMatosWindow");
    EXPECT_EQ(entries(typesWindow, types), QStringList{QStringLiteral("Corner shop")});
    EXPECT_TRUE(entries(show("showMagasinsWindow"), editorOf("showMagasinsWindow").first).isEmpty());

    // The others are as they are in memory, whatever the store says.
    int reloading = 0;
    for (const auto& editor : pickListEditors) {
        desktop.preferences.set(PickLists::key(editor.first.list), QStringList{QStringLiteral("stored")});
        const QStringList shown = entries(show(editor.action), editor.first);
        EXPECT_EQ(shown == QStringList{QStringLiteral("stored")}, editor.reloads) << editor.action;
        reloading += editor.reloads;
    }
    EXPECT_EQ(reloading, 7);
}

TEST_F(PickListEditors, remembersFramesUnderTheirNames) {
    QWidget& window = show("showSacWindow");
    window.resize(511, 433);
    window.hide();
    EXPECT_FALSE(desktop.preferences.windowState(QStringLiteral("ComboSacDePlongee")).isEmpty());
    const PickListUsage unknown = [](PickList) { return std::nullopt; };
    PickListWindow again(desktop.desktop(), editorOf("showSacWindow"), unknown);
    EXPECT_EQ(again.size(), QSize(511, 433));
}

}  // namespace

}  // namespace tavrel
