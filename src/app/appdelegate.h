#pragma once

#include "app/picklistwindow.h"
#include "calculators/ui/calculatorwindows.h"
#include "desktop/desktop.h"

#include <QObject>
#include <QWidget>

#include <map>
#include <memory>

namespace tavrel {

/// Owns the windows that belong to the application rather than to a document, made on their first use and kept, with
/// their contents, to its end: one of each calculator and pick-list editor.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(Desktop& desktop) : desktop_(desktop) {}

    QWidget* showCalculator(CalculatorId id) { return calculators_.show(id); }
    /// The action of an editor: brings its window to the front. An editor that reloads takes its list from the store
    /// first, every time.
    QWidget* showEditor(const PickListEditorDescription& editor);

    /// Tells the editors how often the open documents use an entry; before the first of them is shown.
    void countUsageWith(PickListUsage usage) { usage_ = std::move(usage); }

    /// Asks every open logbook for its renumbering window.
    void sendRenumDivesNotification();
    void showAbout(QWidget* parent);

private:
    Desktop& desktop_;
    PickListUsage usage_;
    CalculatorWindows calculators_;
    std::map<const PickListEditorDescription*, std::unique_ptr<QWidget>> editors_;
};

}  // namespace tavrel
