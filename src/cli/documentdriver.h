#pragma once

#include "base/failure.h"
#include "base/jsonwriter.h"
#include "desktop/desktop.h"
#include "documents/documentkind.h"
#include "documents/listdocument.h"
#include "forms/formstate.h"

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace tavrel {

/// A column of the list that "show" prints: a field of the records under its heading.
struct ListColumn {
    QString field;
    QString heading;
};

/// A document as the commands work on it, whatever its type. The operations are the document's own.
class DocumentDriver {
public:
    virtual ~DocumentDriver() = default;

    virtual ListDocumentBase& document() = 0;
    virtual FormStateBase& form() = 0;

    /// Clears the form for a new record.
    virtual void beginRecord() = 0;
    /// Appends the record in the form.
    virtual void addRecord() = 0;
    /// Selects one row, which loads its record into the form.
    void editRecord(int row) { document().selectRows({row}); }
    /// Replaces the record at the selected row by the one in the form.
    virtual void updateRecord() = 0;
    /// Removes the records at the selected rows.
    virtual void deleteRecords() = 0;
    /// Numbers all records from first on; a failure for documents without numbers.
    virtual Expected<void> renumber(qint32 first) = 0;
    /// Selects the rows whose field holds the text, and says how many they are; a failure when there is no such field.
    virtual Expected<QString> find(const QString& field, const QString& text) = 0;

    /// Whether a new value of the field can be entered.
    bool hasEntry(const QString& field);
    /// Enters a value as the user would, by the name of a control or of its field.
    Expected<void> enter(const QString& field, const QString& value);

    /// The columns of the document's table.
    virtual std::vector<ListColumn> tableColumns() const = 0;
    /// The column of any field; nothing when the records have no such field.
    virtual std::optional<ListColumn> column(const QString& field) const = 0;
    /// What a column says of the record at a row.
    virtual QString cell(int row, const QString& field) const = 0;

    /// Writes what a file of the document's type holds as one JSON object.
    virtual Expected<void> writeJson(QByteArrayView file, JsonWriter& json) const = 0;

protected:
    /// A value that is entered beside the form's controls; nothing when the field is none of those.
    virtual std::optional<Expected<void>> enterBeside(const QString& field, const QString& value) = 0;
    virtual bool hasEntryBeside(const QString& field) const = 0;
};

/// A type of document that the commands work on.
struct DriverKind : DocumentKind {
    std::unique_ptr<DocumentDriver> (*make)(Desktop& desktop);
};

std::span<const DriverKind> documentKinds();

}  // namespace tavrel
