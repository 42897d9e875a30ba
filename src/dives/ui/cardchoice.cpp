#include "dives/ui/cardchoice.h"

#include "base/texts.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavrel {

CardChoice::CardChoice(const DiveSource& source, std::function<void(DiveChoice)> chosen, QWidget* parent)
    : QDialog(parent), source_(source) {
    setObjectName(QStringLiteral("cardChoice"));
    setWindowTitle(text("Main", "Synthesis card"));
    setWindowModality(Qt::WindowModal);
    auto* layout = new QVBoxLayout(this);
    const auto add = [&](DiveChoice choice, const Title& title, const char* name) {
        auto* button = new QRadioButton(title.text());
        button->setObjectName(QLatin1StringView(name));
        layout->addWidget(button);
        buttons_.emplace(choice, button);
    };
    add(DiveChoice::current, {"Carnet", "Current dive"}, "currentDive");
    add(DiveChoice::selected, {"Carnet", "Selected dives"}, "selectedDives");
    add(DiveChoice::all, {"Carnet", "All dives"}, "allDives");
    auto* boxed = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(boxed, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boxed, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, [this, chosen = std::move(chosen)] { chosen(choice()); });
    layout->addWidget(boxed);
}

DiveChoice CardChoice::choice() const {
    for (const auto& [choice, button] : buttons_) {
        if (button->isChecked()) {
            return choice;
        }
    }
    return DiveChoice::all;
}

void CardChoice::divesForSynthesisWindow() {
    const std::size_t selected = source_.dives(DiveChoice::selected).size();
    const bool hasCurrent = !source_.dives(DiveChoice::current).empty();
    buttons_.at(DiveChoice::current)->setEnabled(hasCurrent);
    buttons_.at(DiveChoice::selected)->setEnabled(selected > 0);
    const DiveChoice proposed = selected > 1 ? DiveChoice::selected
                                : hasCurrent ? DiveChoice::current
                                             : DiveChoice::all;
    buttons_.at(proposed)->setChecked(true);
    buttons_.at(proposed)->setFocus();
    open();
}

}  // namespace tavrel
