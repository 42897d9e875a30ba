#include "logbook/ui/divesearchfield.h"

#include "base/texts.h"
#include "desktop/preferences.h"
#include "desktop/ui/icons.h"

#include <QActionGroup>
#include <QMenu>
#include <QStyle>

#include <array>

namespace tavrel {

namespace {

struct Searched {
    const char* name;
    Title title;
    void (Carnet::*find)(const QString& text);
};

constexpr std::array<Searched, 5> searched{{
    {"findInBateaux", {"Carnet", "Find boats"}, &Carnet::findInBateaux},
    {"findInEpaves", {"Carnet", "Find wrecks"}, &Carnet::findInEpaves},
    {"findInNotes", {"Carnet", "Find notes"}, &Carnet::findInNotes},
    {"findInOrdinateurs", {"Carnet", "Find computers"}, &Carnet::findInOrdinateurs},
    {"findInPartenaires", {"Carnet", "Find buddies"}, &Carnet::findInPartenaires},
}};
constexpr int buddies = 4;

const QString chosenState = QStringLiteral("logbook search");

}  // namespace

DiveSearchField::DiveSearchField(Carnet& carnet, Desktop& desktop, QWidget* parent)
    : QLineEdit(parent), carnet_(carnet), desktop_(desktop), menu_(new QMenu(this)) {
    setObjectName(QStringLiteral("rechercher"));
    setClearButtonEnabled(true);
    setFixedWidth(fontMetrics().averageCharWidth() * 34);

    auto* group = new QActionGroup(this);
    for (std::size_t item = 0; item < searched.size(); ++item) {
        QAction* action = menu_->addAction(searched[item].title.text());
        action->setObjectName(QString::fromLatin1(searched[item].name));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, item] {
            choose(static_cast<int>(item));
            desktop_.preferences.setWindowState(chosenState, QByteArray(searched[item].name));
            text().isEmpty() ? setFocus() : search();
        });
    }
    QAction* choice = addAction(iconNamed(QStringLiteral("chercher")), LeadingPosition);
    choice->setText(tavrel::text("Carnet", "Find where"));
    choice->setToolTip(choice->text());
    connect(choice, &QAction::triggered, this, [this] { menu_->popup(mapToGlobal(rect().bottomLeft())); });
    connect(this, &QLineEdit::returnPressed, this, &DiveSearchField::search);

    const QByteArray remembered = desktop.preferences.windowState(chosenState);
    chosen_ = buddies;
    for (std::size_t item = 0; item < searched.size(); ++item) {
        if (remembered == searched[item].name) {
            chosen_ = static_cast<int>(item);
        }
    }
    choose(chosen_);
}

void DiveSearchField::choose(int item) {
    chosen_ = item;
    menu_->actions().at(item)->setChecked(true);
    const QString title = searched[static_cast<std::size_t>(item)].title.text();
    setPlaceholderText(textWith("Carnet", "Find in", title));
    setAccessibleName(placeholderText());
}

void DiveSearchField::search() {
    (carnet_.*searched[static_cast<std::size_t>(chosen_)].find)(text());
}

}  // namespace tavrel
