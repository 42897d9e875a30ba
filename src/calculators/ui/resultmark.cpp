#include "calculators/ui/resultmark.h"

#include "calculators/ui/calculatorwidgets.h"

#include <QComboBox>
#include <QGraphicsEffect>
#include <QLabel>
#include <QLineEdit>

namespace tavrel {

ResultMark::ResultMark(QWidget* window) : QObject(window), note_(newStaleNote(window)) {}

void ResultMark::watch(QWidget* input) {
    inputs_.append(input);
    if (auto* field = qobject_cast<QLineEdit*>(input)) {
        connect(field, &QLineEdit::textChanged, this, &ResultMark::compare);
    } else if (auto* menu = qobject_cast<QComboBox*>(input)) {
        connect(menu, &QComboBox::currentIndexChanged, this, &ResultMark::compare);
    }
}

void ResultMark::dim(QWidget* shown) {
    shown->setGraphicsEffect(newDimming(shown));
    shown_.append(shown);
}

void ResultMark::calculated() {
    calculated_ = entries();
    hasResult_ = true;
    compare();
}

QStringList ResultMark::entries() const {
    QStringList entries;
    for (const QWidget* input : inputs_) {
        const auto* field = qobject_cast<const QLineEdit*>(input);
        entries << (field ? field->text() : QString::number(static_cast<const QComboBox*>(input)->currentIndex()));
    }
    return entries;
}

void ResultMark::compare() {
    stale_ = hasResult_ && entries() != calculated_;
    for (QWidget* shown : shown_) {
        shown->graphicsEffect()->setEnabled(stale_);
        shown->setAccessibleDescription(stale_ ? note_->text() : QString());
    }
    note_->setVisible(stale_);
    if (changed_) {
        changed_(stale_);
    }
}

}  // namespace tavrel
