#pragma once

#include "base/texts.h"

#include <QColor>
#include <QPalette>
#include <QString>
#include <Qt>

#include <functional>

class QGraphicsEffect;
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

/// Dims a widget while it is enabled; at first it is not.
QGraphicsEffect* newDimming(QWidget* widget);
/// The hidden note "staleNote" that a result belongs to what was typed before. Its room is kept, so that nothing moves.
QLabel* newStaleNote(QWidget* parent);

/// Red that reads on the palette's base: the plain one is too dark on dark and too glaring on white.
QColor readableRed(const QPalette& palette);
/// Blue that does.
QColor readableBlue(const QPalette& palette);

/// The line that says where a result comes from.
QLabel* newFormulaLabel(const QString& formula, QWidget* parent);

/// Puts a result on the clipboard; before there is one, the clipboard keeps what it holds.
void copyResult(const QString& result);
/// A button that copies a result. It never takes Enter from the window's own button.
QPushButton* newCopyButton(Title label, const std::function<QString()>& copied, QWidget* parent);

}  // namespace tavrel
