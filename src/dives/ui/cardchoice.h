#pragma once

#include "dives/ui/divesource.h"

#include <QDialog>

#include <functional>
#include <map>

class QRadioButton;

namespace tavrel {

/// Asks which dives a card is wanted of: the current one, the selected ones, or all. A choice without dives cannot be
/// made.
class CardChoice : public QDialog {
    Q_OBJECT

public:
    /// Calls chosen when the user has chosen.
    CardChoice(const DiveSource& source, std::function<void(DiveChoice)> chosen, QWidget* parent = nullptr);

    void divesForSynthesisWindow();

private:
    DiveChoice choice() const;

    DiveSource source_;
    std::map<DiveChoice, QRadioButton*> buttons_;
};

}  // namespace tavrel
