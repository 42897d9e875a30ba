#pragma once

#include "desktop/desktop.h"
#include "interchange/standardimport.h"

#include <QWidget>

#include <atomic>
#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QThread;
class QTreeWidget;

namespace tavrel {

class TableColumnsPage;

/// The dives of a file before any of them is taken: a list with ticks, where what the logbook holds already is not
/// ticked, with what is doubtful about each and a small profile. The file is read in a thread of its own; the
/// logbook stays in use, and nothing in it changes before the user imports, which is one undo step.
class ImportWindow : public QWidget {
    Q_OBJECT

public:
    /// `mayChange` settles what is typed in the logbook's form; false when the user would rather go on with it.
    ImportWindow(Carnet& carnet, Desktop& desktop, const QString& file, std::function<bool()> mayChange,
                 QWidget* parent);
    ~ImportWindow() override;

    QTreeWidget& list() { return *list_; }
    /// Takes the ticked dives over, tells what came in, and closes.
    void importChosen();

private:
    /// What the reading thread leaves, and how it is told to stop.
    struct Reading;

    void startReading();
    void stopReading();
    void showTable();
    void advance(int thousandths);
    void showFound();
    void addRow(int index);
    void tickAll(bool ticked);
    void updateChosen();

    Carnet& carnet_;
    Desktop& desktop_;
    QString file_;
    std::function<bool()> mayChange_;
    FoundDives found_;
    std::shared_ptr<Reading> state_;
    QThread* thread_ = nullptr;

    QLabel* heading_;
    QProgressBar* progress_;
    TableColumnsPage* tableColumns_;
    QTreeWidget* list_;
    QLabel* lost_;
    QCheckBox* byDate_;
    QCheckBox* keepTexts_;
    QLabel* chosen_;
    QPushButton* columns_;
    QPushButton* import_;
};

}  // namespace tavrel
