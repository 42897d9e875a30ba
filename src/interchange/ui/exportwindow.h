#pragma once

#include "desktop/ui/filedialogs.h"
#include "interchange/exports.h"

#include <QDialog>
#include <QTimer>

#include <array>

class QComboBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tavrel {

/// Asks which dives are to be exported in which format, and says what the file will not hold before it is written.
class ExportWindow : public QDialog {
    Q_OBJECT

public:
    ExportWindow(Carnet& carnet, FileDialogs& fileDialogs, FileTaken isTaken, QWidget* parent);

    /// Asks for the file and writes it; closes when it is written.
    void exportDives();

private:
    enum Choice { allDives, selectedDives, foundDives };

    const LogbookExport& format() const;
    RecordList dives() const;
    /// Those of a format with columns, in their order; none for all of them.
    QStringList columns() const;
    int tickedColumns() const;
    void tickAllColumns(bool ticked);
    void choicesChanged();
    void report();
    QString proposal() const;

    Carnet& carnet_;
    FileDialogs& fileDialogs_;
    FileTaken isTaken_;
    std::array<RecordList, 3> choices_;

    QComboBox* format_;
    std::array<QRadioButton*, 3> which_;
    QGroupBox* columnsBox_;
    QListWidget* columns_;
    QListWidget* losses_;
    QLabel* lossesHint_;
    QPushButton* export_;
    QTimer due_;  ///< the report follows when the choices are made
};

}  // namespace tavrel
