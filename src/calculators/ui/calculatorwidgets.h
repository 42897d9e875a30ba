#pragma once

#include "base/texts.h"

#include <QString>
#include <Qt>

#include <functional>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace tavrel {

// The pieces that all calculator windows are put together from.

/// A field for a number: right-aligned, so many digits wide.
QLineEdit* newNumberField(const char* name, QWidget* parent, int digits = 12);

/// Adds a row to a grid: label (with its mnemonic), field, unit.
void addFieldRow(QGridLayout* grid, const QString& label, QWidget* field, const QString& unit,
                 Qt::Alignment alignment = {});

/// A result: prominent, selectable with mouse and keyboard, empty at first.
QLabel* newResultLabel(const char* name, QWidget* parent);

/// The line that says where a result comes from.
QLabel* newFormulaLabel(const QString& formula, QWidget* parent);

/// Puts a result on the clipboard; before there is one, the clipboard keeps what it holds.
void copyResult(const QString& result);
/// A button that copies a result. It never takes Enter from the window's own button.
QPushButton* newCopyButton(Title label, const std::function<QString()>& copied, QWidget* parent);

}  // namespace tavrel
