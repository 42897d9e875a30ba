#include "logbook/ui/renumberwindow.h"

#include "base/texts.h"
#include "desktop/ui/bringtofront.h"
#include "desktop/ui/progresswindow.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tavrel {

RenumberWindow::RenumberWindow(Carnet& carnet, DocumentWindow* parent)
    : QDialog(parent), carnet_(carnet), window_(*parent), first_(new QSpinBox) {
    setObjectName(QStringLiteral("renumberWindow"));
    setWindowTitle(text("Carnet", "Renumber title"));
    first_->setObjectName(QStringLiteral("firstNumber"));
    first_->setValue(1);

    auto* explanation = new QLabel(text("Carnet", "Renumber explanation"));
    explanation->setWordWrap(true);
    explanation->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(text("Main", "Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &RenumberWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RenumberWindow::reject);

    auto* entry = new QFormLayout;
    entry->addRow(text("Carnet", "Renumber first"), first_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addLayout(entry);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(&carnet, &Carnet::renumberWindowClosed, this, &QWidget::hide);
}

void RenumberWindow::bringToFront() {
    first_->setRange(0, carnet_.highestFirstNumber());
    tavrel::bringToFront(this);
    first_->setFocus();
    first_->selectAll();
}

void RenumberWindow::accept() {
    // The form is about to hold another dive.
    if (!window_.leaveEditing(Settling::leaving)) {
        return;
    }
    first_->setMaximum(carnet_.highestFirstNumber());  // the form may have given a dive
    ProgressWindow progress(this, text("Carnet", "Renumbering"));
    carnet_.renumDives(first_->value(), progress.progress());
}

}  // namespace tavrel
