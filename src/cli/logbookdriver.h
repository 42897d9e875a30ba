#pragma once

#include "cli/documentdriver.h"
#include "interchange/exports.h"
#include "logbook/carnet.h"
#include "logbook/tablecells.h"

namespace tavrel {

/// The logbook. Beside the form's controls the seven series of a profile are entered by their names, as numbers
/// separated by commas.
class LogbookDriver : public DocumentDriver {
public:
    explicit LogbookDriver(Desktop& desktop);

    Carnet& carnet() { return carnet_; }

    ListDocumentBase& document() override { return carnet_; }
    FormStateBase& form() override { return carnet_.form().state(); }
    void beginRecord() override { carnet_.newDive(); }
    void addRecord() override { carnet_.addDive(); }
    void updateRecord() override { carnet_.updateDive(); }
    void deleteRecords() override { carnet_.deleteDive(); }
    Expected<void> renumber(qint32 first) override;
    Expected<QString> find(const QString& field, const QString& text) override;
    std::vector<ListColumn> tableColumns() const override;
    std::optional<ListColumn> column(const QString& field) const override;
    QString cell(int row, const QString& field) const override;
    Expected<void> writeJson(QByteArrayView file, JsonWriter& json) const override;

protected:
    std::optional<Expected<void>> enterBeside(const QString& field, const QString& value) override;
    bool hasEntryBeside(const QString& field) const override;

private:
    Carnet carnet_;
    TableStyle style_;
};

}  // namespace tavrel
