#pragma once

#include "base/progress.h"
#include "book/book.h"
#include "dives/plongee.h"
#include "logbook/diveform.h"
#include "logbook/logbookexport.h"
#include "logbook/unitconversion.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <span>
#include <vector>

namespace tavrel {

/// The logbook among the types of documents.
const BookDescription& carnetDescription();

/// The logbook document: an ordered list of dives, and what only dives have: numbering, exports, the dive's own
/// searches.
class Carnet : public Book<Plongee> {
    Q_OBJECT

public:
    /// The exports are what it can be saved as besides its own type; they outlive it.
    explicit Carnet(Desktop& desktop, std::span<const LogbookExport> exports = {});
    ~Carnet() override;

    /// The document's type name, localised.
    static QString typeName() { return carnetDescription().kind.name.text(); }

    DiveForm& form() { return static_cast<DiveForm&>(BookBase::form()); }
    const DiveForm& form() const { return static_cast<const DiveForm&>(BookBase::form()); }

    Expected<QByteArray> dataRepresentationOfType(const QString& type) override;

    // The operations of all books by their names in a logbook.
    void newDive() { newRecord(); }
    void addDive() { addRecord(); }
    void insertDive() { insertRecord(); }
    void updateDive() { updateRecord(); }
    void deleteDive() { deleteRecords(); }
    void prevDive() { previousRecord(); }
    void nextDive() { nextRecord(); }
    void selectLastDive(int index, bool selected) { selectLast(index, selected); }
    void changementSelectionMaTableView() { followSelection(); }

    /// The highest first number that leaves one for the last dive.
    qint32 highestFirstNumber() const { return std::numeric_limits<qint32>::max() - std::max(count() - 1, 0); }
    /// Numbers all dives from first on, which is no higher than that, each through the form, whose corrections apply.
    /// Whether it came to its end; cancelled, no dive is changed.
    bool renumDives(qint32 first, const Progress& progress = {});
    /// Takes the numbers of all dives from the other system of units into this one, as one undo step. The selection
    /// stays.
    void convertUnits(UnitSystem to);
    /// The number a new dive gets: that of the last dive by position, and one.
    qint32 nextDiveNumber() const;
    static qint32 numberAfter(const Plongee& dive);
    /// Appends dives that were taken in from elsewhere, as one undo step.
    void appendDives(const QString& step, std::vector<Plongee> taken);

    void findInBateaux(const QString& text) { find(QStringLiteral("bateau"), text); }
    void findInEpaves(const QString& text) { find(QStringLiteral("epaves"), text); }
    void findInNotes(const QString& text) { find(QStringLiteral("notes"), text); }
    /// Fails: it asks for a field that dives do not have.
    void findInOrdinateurs(const QString& text) { find(QStringLiteral("ordi"), text); }
    void findInPartenaires(const QString& text) { find(QStringLiteral("partenaires"), text); }

    /// Margins of 23.2, 25, 10 and 10 points, two thirds of the size, landscape for the table and portrait for texts.
    static PrintSettings defaultPrintingSettings(bool landscape);

Q_SIGNALS:
    void renumberWindowRequested();
    void renumberWindowClosed();
    void profileRedrawRequested();
    void synthesisRefillRequested();

protected:
    void proposeNumber() override;
    QString formTitle() const override;

private:
    void setUpFirstRunColumns();

    std::span<const LogbookExport> exports_;
};

}  // namespace tavrel
