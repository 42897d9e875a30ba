#include "calculators/ui/calculatorwindow.h"
#include "calculators/ui/calculatorwindows.h"
#include "calculators/ui/gpscontroller.h"
#include "calculators/ui/physiquecontroller.h"
#include "support/printing.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextEdit>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

template <class Widget>
Widget& named(const QWidget& window, const char* name) {
    auto* widget = window.findChild<Widget*>(QLatin1StringView(name));
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
}

void type(const QWidget& window, const char* field, const char* words) {
    named<QLineEdit>(window, field).setText(QString::fromUtf8(words));
}

void pressEnter(QWidget& widget) {
    widget.setFocus();
    for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QApplication::sendEvent(&widget, &event);
    }
}

QString shown(const QWidget& window, const char* field) {
    return named<QLabel>(window, field).text();
}

TEST(CalculatorWindows, areMadeOnceAndKeepTheirValues) {
    CalculatorWindows windows;
    for (const Calculator& each : calculators()) {
        EXPECT_EQ(windows.window(each.id), nullptr);
        QWidget* window = windows.show(each.id);
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(window->objectName(), QLatin1StringView(each.windowLayout));
        if (const CalculatorPage* page = calculatorPage(each.id)) {
            for (const CalculatorInput& input : page->inputs) {
                EXPECT_NE(window->findChild<QWidget*>(QLatin1StringView(input.field)), nullptr) << input.field;
            }
        }
    }
    QWidget* mod = windows.show(CalculatorId::ProfMax);
    type(*mod, "fracO2Field", "32");
    mod->close();
    EXPECT_FALSE(mod->isVisible());
    EXPECT_EQ(windows.show(CalculatorId::ProfMax), mod);
    EXPECT_TRUE(mod->isVisible());
    EXPECT_EQ(named<QLineEdit>(*mod, "fracO2Field").text(), u"32");
}

TEST(CalculatorWindows, areReachedByOneMenuActionEach) {
    QMenu menu;
    std::vector<CalculatorId> asked;
    addCalculatorActions(menu, [&](CalculatorId id) { asked.push_back(id); });
    for (const Calculator& each : calculators()) {
        auto* action = menu.findChild<QAction*>(QLatin1StringView(each.action));
        ASSERT_NE(action, nullptr) << each.action;
        action->trigger();
        EXPECT_EQ(asked.back(), each.id);
    }
}

TEST(NitroxWindow, calculatesOnEnterAndCopiesTheResult) {
    CalculatorWindow window(CalculatorId::ProfMax);
    window.show();
    EXPECT_EQ(shown(window, "resultatField"), u"");
    const auto copy = [&window] {
        for (auto* button : window.findChildren<QPushButton*>()) {
            if (!button->isDefault()) {
                button->click();
            }
        }
        return QApplication::clipboard()->text();
    };
    QApplication::clipboard()->setText(QStringLiteral("kept"));
    EXPECT_EQ(copy(), u"kept") << "there is no result yet";
    type(window, "fracO2Field", "32,0 %");
    pressEnter(named<QLineEdit>(window, "fracO2Field"));
    EXPECT_EQ(shown(window, "resultatField"), u"MOD : 33.8 m");
    auto& menu = named<QComboBox>(window, "ppO2PopUp");
    EXPECT_EQ(menu.count(), 5);
    menu.setCurrentIndex(4);
    pressEnter(menu);
    EXPECT_EQ(shown(window, "resultatField"), u"MOD : 40.0 m");
    menu.setCurrentIndex(-1);
    window.calculate();
    EXPECT_EQ(copy(), u"MOD : 33.8 m");
}

TEST(RebreatherWindow, rowsKeepTheirColourWhereNoneIsSaid) {
    CalculatorWindow window(CalculatorId::IdealFlow);
    const auto bold = [&] { return named<QLabel>(window, "d10Field").font().bold(); };
    const auto colour = [&] { return named<QLabel>(window, "d10Field").palette().color(QPalette::Text); };
    const QColor black = colour();
    const QSize size = window.sizeHint();
    const auto calculate = [&](const char* supply, const char* wanted) {
        type(window, "idEanxField", supply);
        type(window, "idRealFracO2Field", wanted);
        window.calculate();
    };
    // (1 - 0) x 1.0 / 0.05 is exactly the highest flow.
    calculate("5", "0");
    EXPECT_EQ(shown(window, "d10Field"), u"1.0 l/min : 20.00 l/min");
    EXPECT_EQ(colour(), black);
    calculate("4", "0");
    EXPECT_NE(colour(), black);
    EXPECT_TRUE(bold());
    calculate("5", "0");
    EXPECT_NE(colour(), black) << "red stays at exactly 20";
    EXPECT_EQ(window.sizeHint(), size) << "room for the result is there beforehand";
    calculate("100", "100");
    EXPECT_TRUE(shown(window, "d10Field").contains(u"nan"));
    EXPECT_NE(colour(), black) << "red stays at not-a-number";
    calculate("10", "0");
    EXPECT_EQ(colour(), black);
    EXPECT_FALSE(bold());
    EXPECT_EQ(window.resultText().count(u'\n'), 11);
}

TEST(ConversionsWindow, convertsTheTabInFrontFromTheChosenUnit) {
    PhysiqueController window;
    type(window, "litresField", "12");
    window.convertir();
    EXPECT_EQ(named<QLineEdit>(window, "cubicInchesUSField").text(), u"") << "another tab is in front";
    named<QTabWidget>(window, "conversionsTabView").setCurrentIndex(1);
    window.convertir();
    EXPECT_EQ(named<QLineEdit>(window, "cubicInchesUSField").text(), u"732.288");
    // Typing makes the field's unit the source.
    Q_EMIT named<QLineEdit>(window, "cubicFeetUSField").textEdited({});
    EXPECT_EQ(named<QButtonGroup>(window, "choixVolumeMatrix").checkedId(), 2);
    type(window, "cubicFeetUSField", "1");
    window.convertir();
    EXPECT_EQ(named<QLineEdit>(window, "litresField").text(), u"28.317");
    named<QTabWidget>(window, "conversionsTabView").setCurrentIndex(4);
    named<QButtonGroup>(window, "choixTemperatureMatrix").button(3)->click();
    window.convertir();
    EXPECT_EQ(named<QLineEdit>(window, "celsiusField").text(), u"-273.15");
}

QStringList loggedLines;

TEST(GpsWindow, reportsInThreeColoursAndLogsEachStep) {
    GpsController window;
    window.show();
    type(window, "longitude_in_degreeField", "-1");
    type(window, "longitude_in_minutesField", "30");
    type(window, "latitude_in_degreeField", "48");
    type(window, "altitude_inField", "30");
    for (int run = 0; run < 2; ++run) {
        pressEnter(named<QLineEdit>(window, "altitude_inField"));
        const auto* document = named<QTextEdit>(window, "gpsDataField").document();
        EXPECT_EQ(document->blockCount(), 37) << "a blank line, then the report, whole and once";
        const QTextBlock title = document->findBlockByNumber(1);
        EXPECT_EQ(title.text(), u"----- ED50 -----");
        EXPECT_EQ(title.begin().fragment().charFormat().foreground().color(), QColor(Qt::red));
        auto pieces = document->findBlockByNumber(4).begin();
        EXPECT_EQ(pieces.fragment().charFormat().foreground().color(), QColor(Qt::black));
        EXPECT_EQ((++pieces).fragment().text(), u"30.00 m");
        EXPECT_EQ(pieces.fragment().charFormat().foreground().color(), QColor(Qt::blue));
    }
    EXPECT_TRUE(named<QLineEdit>(window, "longitude_outField").text().startsWith(u"WGS84 -1° 29' "));

    named<QComboBox>(window, "geodesiePopUp").setCurrentIndex(1);
    type(window, "longitude_inField", "2.35");
    type(window, "latitude_inField", "48.85");
    loggedLines.clear();
    const auto previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& line) {
        if (qstrcmp(context.category, "tavrel.gps") == 0) {
            loggedLines << line;
        }
    });
    pressEnter(named<QLineEdit>(window, "latitude_inField"));
    // Enter in the shared altitude runs the converter used last.
    pressEnter(named<QLineEdit>(window, "altitude_inField"));
    pressEnter(named<QComboBox>(window, "geodesiePopUp"));
    qInstallMessageHandler(previous);
    EXPECT_EQ(loggedLines.size(), 3 * 18);
    EXPECT_EQ(loggedLines.value(2), u"lng WGS -> ED = 2.350000");
    EXPECT_EQ(named<QLineEdit>(window, "longitude_outField").text(), u"2.351285");
    EXPECT_TRUE(named<QLineEdit>(window, "altitude_outField").text().startsWith(u"Altitude : "));
}

}  // namespace

}  // namespace tavrel
