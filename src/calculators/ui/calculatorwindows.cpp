#include "calculators/ui/calculatorwindows.h"

#include "calculators/ui/calculatorwindow.h"
#include "calculators/ui/gpscontroller.h"
#include "calculators/ui/physiquecontroller.h"
#include "desktop/ui/bringtofront.h"

#include <QAction>
#include <QMenu>

namespace tavrel {

namespace {

std::unique_ptr<QWidget> newWindow(CalculatorId id) {
    switch (id) {
        case CalculatorId::Conversions:
            return std::make_unique<PhysiqueController>();
        case CalculatorId::Gps:
            return std::make_unique<GpsController>();
        default:
            return std::make_unique<CalculatorWindow>(id);
    }
}

}  // namespace

QWidget* CalculatorWindows::show(CalculatorId id) {
    std::unique_ptr<QWidget>& window = windows_[static_cast<std::size_t>(id)];
    if (!window) {
        window = newWindow(id);
    }
    bringToFront(window.get());
    return window.get();
}

void addCalculatorActions(QMenu& menu, const std::function<void(CalculatorId)>& show) {
    QMenu* submenu = nullptr;
    const Calculator* previous = nullptr;
    for (const Calculator& each : calculators()) {
        if (!previous || previous->group != each.group) {
            submenu = menu.addMenu(text(calculatorGroupTitle(each.group)));
        }
        previous = &each;
        QAction* action = submenu->addAction(text(each.title) + u'…');
        action->setObjectName(QLatin1StringView(each.action));
        QObject::connect(action, &QAction::triggered, action, [show, id = each.id] { show(id); });
    }
}

}  // namespace tavrel
