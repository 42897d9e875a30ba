#include "calculators/ui/calculatorwindow.h"
#include "calculators/ui/calculatorwindows.h"
#include "calculators/ui/gpscontroller.h"
#include "calculators/ui/physiquecontroller.h"
#include "support/printing.h"
#include "support/records.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QGraphicsEffect>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextEdit>

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

bool isDimmed(const QWidget& widget) {
    return widget.graphicsEffect() && widget.graphicsEffect()->isEnabled();
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
        EXPECT_EQ(title.begin().fragment().charFormat().foreground().color(), QColor(200, 0, 0));
        auto pieces = document->findBlockByNumber(4).begin();
        EXPECT_EQ(pieces.fragment().charFormat().foreground().color(), QColor(Qt::black));
        EXPECT_EQ((++pieces).fragment().text(), u"30.00 m");
        EXPECT_EQ(pieces.fragment().charFormat().foreground().color(), QColor(Qt::blue));
    }
    EXPECT_TRUE(named<QLineEdit>(window, "longitude_outField").text().startsWith(u"WGS84 -1° 29' "));
    EXPECT_TRUE(named<QLineEdit>(window, "positionOut").text().startsWith(u"N 47° 59.9"))
        << named<QLineEdit>(window, "positionOut").text().toStdString();
    EXPECT_TRUE(named<QLineEdit>(window, "positionOut").text().contains(u"W 000° 30."));

    // On dark paper the three colours stay readable.
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    window.setPalette(dark);
    for (QTextBlock line = named<QTextEdit>(window, "gpsDataField").document()->begin(); line.isValid();
         line = line.next()) {
        for (auto piece = line.begin(); !piece.atEnd(); ++piece) {
            EXPECT_GT(piece.fragment().charFormat().foreground().color().lightnessF(), 0.6F);
        }
    }
    window.setPalette({});

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
    EXPECT_EQ(named<QLineEdit>(window, "longitude_outField").text(), u"2.351285");
    EXPECT_TRUE(named<QLineEdit>(window, "altitude_outField").text().startsWith(u"Altitude : "));
    EXPECT_FALSE(isDimmed(named<QLineEdit>(window, "latitude_outField")));
    type(window, "latitude_inField", "48.9");
    EXPECT_TRUE(isDimmed(named<QLineEdit>(window, "latitude_outField")));
}

TEST(GpsWindow, readsAPositionAsDiversWriteIt) {
    GpsController window;
    const auto field = [&](const char* name) { return named<QLineEdit>(window, name).text(); };
    window.readPosition(QStringLiteral("43° 12.345' N 5° 20.7' W"));
    const auto fields = [&](const char* names) { return eachOf(names, field); };
    EXPECT_EQ(fields("latitude_in_degreeField latitude_in_minutesField latitude_in_secondsField latitude_inField"),
              u"43|12.345|0|43.20575");
    // West: each part takes its minus sign, as the converter adds them.
    EXPECT_EQ(fields("longitude_in_degreeField longitude_in_minutesField longitude_inField"), u"-5|-20.7|-5.345");
    EXPECT_TRUE(shown(window, "positionNote").contains(u"N 43° 12.345'"));
    // What is no position leaves the fields alone.
    window.readPosition(QStringLiteral("43° 12.3'"));
    EXPECT_EQ(field("latitude_inField"), u"43.20575");
    window.readPosition(QStringLiteral("S 8° 30,5' O 115°"));
    EXPECT_EQ(fields("latitude_in_degreeField latitude_in_minutesField longitude_inField"), u"-8|-30.5|-115");
}

TEST(NitroxWindow, saysWhenItsResultIsOfOtherInputs) {
    CalculatorWindow window(CalculatorId::ProfMax);
    const auto& result = named<QLabel>(window, "resultatField");
    const auto& note = named<QLabel>(window, "staleNote");
    type(window, "fracO2Field", "32");
    EXPECT_FALSE(isDimmed(result)) << "there is no result yet";
    window.calculate();
    EXPECT_FALSE(isDimmed(result));
    type(window, "fracO2Field", "36");
    EXPECT_TRUE(isDimmed(result));
    EXPECT_FALSE(note.isHidden());
    EXPECT_EQ(result.text(), u"MOD : 33.8 m") << "it stays to be read";
    type(window, "fracO2Field", "32");
    EXPECT_FALSE(isDimmed(result));
    EXPECT_TRUE(note.isHidden());
    named<QComboBox>(window, "ppO2PopUp").setCurrentIndex(4);
    EXPECT_TRUE(isDimmed(result));
    window.calculate();
    EXPECT_FALSE(isDimmed(result));
}

TEST(CalculatorWindows, nameTheInputThatGivesInfinityOrANegativeDepth) {
    // The inputs, one field, and the words beside it; beside all others there are none.
    const std::tuple<CalculatorId, const char*, const char*, const char*> cases[] = {
        {CalculatorId::ProfMax, "fracO2Field=32", "", ""},
        {CalculatorId::ProfMax, "fracO2Field=0", "fracO2Field", "gives infinity"},
        {CalculatorId::ProfMax, "fracO2Field=150", "fracO2Field", "gives a negative depth"},
        {CalculatorId::BestMix, "profondeurMaxField=-10", "profondeurMaxField", "gives infinity, is a negative depth"},
        {CalculatorId::EquivalentDepth, "fracO2Field=40|profondeurField=0", "profondeurField",
         "gives a negative depth"},
        {CalculatorId::EquivalentDepth, "fracO2Field=100|profondeurField=30", "fracO2Field", "gives a negative depth"},
        {CalculatorId::EquivalentDepth, "fracO2Field=21|profondeurField=30", "", ""},
        {CalculatorId::OxygenWindow, "winFO2=32|winMinPpO2=0.16", "winMinPpO2", "gives a negative depth"},
        {CalculatorId::OxygenWindow, "winFO2=10|winMinPpO2=0.16", "", ""},
        {CalculatorId::BlendNitrox, "pressionInitialeField=50|pressionFinaleField=50|fracO2FinaleField=32",
         "pressionFinaleField", "gives infinity"},
        {CalculatorId::TrimixEadEnd, "fracHeTxField=70|profondeurMaxField=0", "profondeurMaxField",
         "gives a negative depth"},
        {CalculatorId::BestTrimix, "depthTxField=60|ENDField=-3|ppO2Field=1.4", "ENDField", "is a negative depth"},
        {CalculatorId::SodaTime, "sodaWeightField=2.5|sodaCapacityField=100", "metabolicProductionField",
         "gives infinity"},
        {CalculatorId::BreathedFraction, "brEanxField=40|brFlowField=1|brMetabolicField=1", "brFlowField",
         "gives infinity"},
        {CalculatorId::IdealFlow, "idEanxField=40|idMetabolicField=1|idRealFracO2Field=40", "idRealFracO2Field",
         "gives infinity"},
    };
    for (const auto& [id, inputs, field, words] : cases) {
        CalculatorWindow window(id);
        for (const auto& [name, value] : namedValues(inputs)) {
            type(window, name.c_str(), value.toUtf8());
        }
        window.calculate();
        for (const CalculatorInput& input : calculatorPage(id)->inputs) {
            const QByteArray name(input.field);
            EXPECT_EQ(shown(window, name + "Fault"), QLatin1String(name == field ? words : ""))
                << inputs << ": " << input.field;
        }
    }
}

TEST(CalculatorWindows, showADecimalCommaInFrench) {
    setTextLanguage(QStringLiteral("fr"));
    CalculatorWindow window(CalculatorId::ProfMax);
    type(window, "fracO2Field", "32,0");
    window.calculate();
    EXPECT_EQ(shown(window, "resultatField"), u"MOD : 33,8 m");
    EXPECT_EQ(window.findChild<QComboBox*>()->currentText(), u"1,4");
    GpsController positions;
    EXPECT_EQ(named<QLineEdit>(positions, "positionField").placeholderText(), u"43° 12,345' N  5° 20,7' O");
    positions.readPosition(QStringLiteral("43° 12,345' N 5° 20,7' O"));
    EXPECT_EQ(named<QLineEdit>(positions, "longitude_inField").text(), u"-5,345");
}

}  // namespace

}  // namespace tavrel
