#pragma once

#include "base/progress.h"
#include "desktop/notificationcentre.h"
#include "desktop/printsettings.h"
#include "dives/plongee.h"
#include "documents/documentkind.h"
#include "documents/listdocument.h"
#include "logbook/diveform.h"

#include <functional>
#include <map>
#include <vector>

namespace tavrel {

class Carnet;

/// A type that a logbook can be saved as besides its own: its name and what produces its bytes.
struct ExportType {
    QString name;
    std::function<Expected<QByteArray>(Carnet&)> produce;
};

/// The logbook document: an ordered list of dives, the form through which dives are entered, and every operation of its
/// two windows, without them.
class Carnet : public ListDocument<Plongee> {
    Q_OBJECT

public:
    /// The export types are tried in their order after the logbook's own type.
    explicit Carnet(Desktop& desktop, const std::vector<ExportType>& exportTypes = {});
    ~Carnet() override;

    static constexpr DocumentKind kind{{"Main", "Carnet de plongee"}, "Plongee", "carnet"};
    /// The document's type name, localised.
    static QString typeName() { return kind.name.text(); }

    DiveForm& form() { return form_; }
    const DiveForm& form() const { return form_; }
    /// The row of the dive last loaded into the form; -1 when none.
    int currentIndex() const { return _currentIndex; }
    /// Whether the form holds the dive of the selected row rather than a new one.
    bool formShowsSelectedDive() const { return showsSelectedDive_ && selectedRow() >= 0; }
    const std::vector<ExportType>& exportTypes() const { return exportTypes_; }

    Expected<QByteArray> dataRepresentationOfType(const QString& type) override;
    /// The list is replaced before the type is checked, so a wrong type fails with the list already replaced.
    Expected<void> loadDataRepresentation(QByteArrayView data, const QString& type) override;

    // Dives. Where an operation would need a selected row and none is, the list stays as it is and a beep sounds.
    void newDive();
    void addDive();
    void insertDive();
    void updateDive();
    void deleteDive();
    /// Numbers all dives from first on, each through the form, whose corrections apply. Whether it came to its end;
    /// cancelled, no dive is changed.
    bool renumDives(qint32 first, const Progress& progress = {});
    /// Stores the form into the selected dive and goes to the one before or behind it.
    void prevDive() { step(-1); }
    void nextDive() { step(+1); }
    /// Selects the row alone and scrolls to it; when it is not to stay selected, only scrolls.
    void selectLastDive(int index, bool selected);
    void editWindow();
    /// Stores the form into the selected dive and closes; false when the user would rather go on editing.
    bool closeEditWindow();
    /// Stores what the user entered into the form since the selected dive was loaded; nothing when there is nothing.
    void storeEntries();
    /// Follows a selection: the dive of the selected row goes into the form.
    void changementSelectionMaTableView();
    /// The number a new dive gets: that of the last dive by position, and one.
    qint32 nextDiveNumber() const;
    static qint32 numberAfter(const Plongee& dive);
    /// Appends dives that were taken in from elsewhere, as one undo step.
    void appendDives(const QString& step, std::vector<Plongee> taken);

    // The form.
    void blankFields();
    /// Loads the dive at currentIndex into the form.
    void editFields();
    void updateUI();

    // The table.
    /// Sets a field of a dive by its name; a failure when there is no such field, row or kind of value.
    Expected<void> setValue(int row, const QString& field, const FieldValue& value);
    /// Sorts the dives by a field, descending at first and turned round by each further call for the same field. Not a
    /// change of the document. The selected dives stay selected.
    void sortBy(const QString& field);
    /// Whether the field was sorted last, and in which direction.
    const QString& sortedField() const { return _idColonne; }
    bool sortedAscending() const { return _ascendingDirection.count(_idColonne) && _ascendingDirection.at(_idColonne); }

    // The search. Each selects the matching dives; a dive without the field's text counts as a match.
    /// How many dives hold the text, case aside, or a failure when no dive has such a field.
    Expected<int> findTextWithField(const QString& field, const QString& text);
    void findInBateaux(const QString& text) { find(QStringLiteral("bateau"), text); }
    void findInEpaves(const QString& text) { find(QStringLiteral("epaves"), text); }
    void findInNotes(const QString& text) { find(QStringLiteral("notes"), text); }
    /// Fails: it asks for a field that dives do not have.
    void findInOrdinateurs(const QString& text) { find(QStringLiteral("ordi"), text); }
    void findInPartenaires(const QString& text) { find(QStringLiteral("partenaires"), text); }
    /// What the last search found, as text.
    const QString& foundText() const { return foundText_; }

    // What the windows show.
    /// "One dive" or how many there are.
    QString stateText() const;
    bool canGoBack() const;
    bool canGoForward() const;
    const QString& editWindowTitle() const { return editWindowTitle_; }

    /// Margins of 23.2, 25, 10 and 10 points, two thirds of the size, landscape for the table and portrait for texts.
    static PrintSettings defaultPrintingSettings(bool landscape);

Q_SIGNALS:
    void stateChanged();  ///< the count, the found text or the way back and forward
    void editWindowRequested();
    void editWindowClosed();
    void editWindowTitleChanged();
    void renumberWindowRequested();
    void renumberWindowClosed();
    void tableReloadRequested();
    void columnsRebuildRequested();
    void profileRedrawRequested();
    void synthesisRefillRequested();

private:
    void step(int direction);
    void find(const QString& field, const QString& text);
    void listen(Notification name, std::function<void()> handler);
    void setUpFirstRunColumns();
    Plongee builtDive() { return form_.addDiveToList(); }
    void proposeNextNumber();
    bool storeForm();
    void formIsStored(int row);
    void titleEditWindow(qint32 number);

    DiveForm form_;
    std::vector<ExportType> exportTypes_;
    std::vector<NotificationCentre::Subscription> subscriptions_;
    int _currentIndex = -1;
    bool keepsForm_ = false;
    bool showsSelectedDive_ = false;  ///< rather than a cleared form
    bool hasEntries_ = false;         ///< of the user's since the form was loaded, cleared or stored
    QString _idColonne;
    std::map<QString, bool> _ascendingDirection;
    QString foundText_;
    QString editWindowTitle_;
};

}  // namespace tavrel
