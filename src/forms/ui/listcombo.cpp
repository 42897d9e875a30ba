#include "forms/ui/listcombo.h"

#include "base/languageorder.h"
#include "forms/ui/wheelguard.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QEvent>
#include <QLineEdit>
#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>

namespace tavrel {

namespace {

/// Entries that are measured for the width of the pop-up.
constexpr int measuredEntries = 500;

}  // namespace

ListCombo::ListCombo(QStringListModel* list, QWidget* parent)
    : QComboBox(parent), list_(list), proposals_(new QStringListModel(this)) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(20);
    setModel(list);
    guardAgainstWheel(this);

    auto* proposals = new QCompleter(proposals_, this);
    proposals->setCaseSensitivity(Qt::CaseInsensitive);
    proposals->setFilterMode(Qt::MatchContains);
    setCompleter(proposals);
    // At the end of editing the combo box itself would put an entry that differs only in capitals in place of the text.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);

    connect(lineEdit(), &QLineEdit::textEdited, this, &ListCombo::entered);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ListCombo::finished);
    // A proposal that the keys reach is in the field already, and Return ends the editing before it is taken.
    connect(proposals, qOverload<const QString&>(&QCompleter::highlighted), this, &ListCombo::entered);
    connect(proposals, qOverload<const QString&>(&QCompleter::activated), this, &ListCombo::entered);
    connect(this, &QComboBox::activated, this, [this](int row) { Q_EMIT entered(itemText(row)); });
    connect(list, &QAbstractItemModel::modelReset, this, &ListCombo::listReset);
    connect(list, &QAbstractItemModel::modelReset, this, &ListCombo::gatherProposals);
    gatherProposals();
}

void ListCombo::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    gatherProposals();
}

void ListCombo::gatherProposals() {
    QStringList all = list_->stringList() + (held_ && lineEdit()->hasFocus() ? held_() : QStringList());
    all.removeDuplicates();
    std::stable_sort(all.begin(), all.end(), languageOrder());
    proposals_->setStringList(all);
}

void ListCombo::showText(const QString& text) {
    const QSignalBlocker quiet(this);
    if (lineEdit()->text() == text) {
        return;
    }
    const int cursor = lineEdit()->cursorPosition();
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
    lineEdit()->setCursorPosition(lineEdit()->hasFocus() ? cursor : 0);
}

void ListCombo::showPopup() {
    int widest = 0;
    for (int row = 0; row < std::min(count(), measuredEntries); ++row) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(row)));
    }
    const int margin = 4 * fontMetrics().averageCharWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    view()->setMinimumWidth(std::min(widest + margin, screen()->availableSize().width() / 2));
    QComboBox::showPopup();
}

}  // namespace tavrel
