#include "desktop/ui/customtoolbar.h"

#include "desktop/ui/icons.h"
#include "desktop/ui/toolbardialog.h"
#include "support/testdesktop.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QToolButton>

namespace tavrel {

namespace {

constexpr ToolItem items[] = {{"save", {"Main", "Save"}, "enregistrer", {}},
                              {"print", {"Main", "Print"}, "imprimante", {}},
                              {"later", {"Main", "Profile"}, "ProfilPl", {}},
                              {"find", {"Main", "General"}, "", {}}};
constexpr const char* allowed[] = {"save", "print", toolSpace, toolSeparator, toolCustomise, "find"};
constexpr const char* initial[] = {"save", toolSeparator, "later", toolSeparator, "print", toolFlexibleSpace, "find"};
constexpr ToolBarDescription description{"testToolbar", items, allowed, initial};

struct ToolBar : testing::Test {
    /// A toolbar that can save, print and find, but nothing later.
    std::unique_ptr<CustomToolBar> make() {
        auto bar = std::make_unique<CustomToolBar>(description, desktop.preferences, &window);
        bar->setAction(QStringLiteral("save"), newToolAction(items[0], &window));
        bar->setAction(QStringLiteral("print"), newToolAction(items[1], &window));
        bar->setWidget(QStringLiteral("find"), new QLineEdit);
        bar->ensurePolished();
        return bar;
    }
    static QStringList shown(const CustomToolBar& bar) {
        QStringList names;
        for (const QAction* action : bar.actions()) {
            names.append(action->isSeparator() ? QStringLiteral("|") : action->objectName());
        }
        return names;
    }
    static QStringList list(const char* words) { return QString::fromUtf8(words).split(u' '); }

    TestDesktop desktop;
    QMainWindow window;
};

TEST_F(ToolBar, showsWhatTheProgramCanDo) {
    const auto bar = make();
    EXPECT_EQ(shown(*bar), list("save | print  find"));
    EXPECT_EQ(bar->action(QStringLiteral("later")), nullptr);
    QAction* save = bar->action(QStringLiteral("save"));
    save->setText(QStringLiteral("Save &Document…"));
    EXPECT_EQ(static_cast<QToolButton*>(bar->widgetForAction(save))->text(), text("Main", "Save"));
    bar->setAction(QStringLiteral("later"), newToolAction(items[2], &window));
    bar->rebuild();
    EXPECT_EQ(shown(*bar).count(QStringLiteral("|")), 2);
}

TEST_F(ToolBar, remembersItsArrangement) {
    make()->setArrangement(list("find later separator unknown save find separator customise"));
    const auto bar = make();
    EXPECT_EQ(bar->arrangement(), list("find later separator save separator customise"));
    EXPECT_EQ(shown(*bar).front(), u"find");
    bar->setStyle(Qt::ToolButtonIconOnly);
    bar->setArrangement(list("save separator later separator print flexibleSpace find"));
    EXPECT_EQ(make()->arrangement(), list("save separator later separator print flexibleSpace find"));
    EXPECT_EQ(make()->toolButtonStyle(), Qt::ToolButtonIconOnly);
    desktop.preferences.setWindowState(QStringLiteral("toolbar testToolbar"), QByteArrayLiteral("{broken"));
    EXPECT_EQ(make()->arrangement(), bar->arrangement());
}

TEST_F(ToolBar, isArrangedInItsDialog) {
    const auto bar = make();
    ToolBarDialog dialog(*bar);
    auto* offered = dialog.findChild<QListWidget*>(QStringLiteral("offered"));
    auto* present = dialog.findChild<QListWidget*>(QStringLiteral("present"));
    const auto choose = [](QListWidget* among, const QString& title) {
        const auto found = among->findItems(title, Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty()) << title.toStdString();
        among->setCurrentItem(found.front());
    };
    EXPECT_EQ(offered->count(), 3);  // what the toolbar does not hold yet, and places any number of times

    choose(present, bar->titleOf(QStringLiteral("save")));
    dialog.removeChosen();
    choose(present, bar->titleOf(QStringLiteral("print")));
    dialog.moveChosen(-1);
    dialog.moveChosen(-1);
    choose(offered, bar->titleOf(QString::fromUtf8(toolCustomise)));
    dialog.addChosen();
    // The item that does not show was passed over, and has stayed.
    EXPECT_EQ(dialog.arrangement(), list("print customise separator later separator flexibleSpace find"));
    choose(offered, bar->titleOf(QStringLiteral("save")));
    dialog.reset();
    EXPECT_EQ(dialog.arrangement(), bar->arrangement());
}

TEST(Icons, areDrawnAtEverySize) {
    for (const int size : {16, 24, 64}) {
        const QImage image = iconNamed(QStringLiteral("ajouterPl")).pixmap(size, size).toImage();
        ASSERT_EQ(image.width(), size);
        EXPECT_GT(qAlpha(image.pixel(size / 4, size / 4)), 200);
        EXPECT_EQ(qAlpha(image.pixel(0, size - 1)), 0);
    }
    EXPECT_TRUE(iconNamed(QStringLiteral("no such icon")).isNull());
}

}  // namespace

}  // namespace tavrel
