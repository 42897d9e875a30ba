#pragma once

#include "base/failure.h"
#include "forms/controltable.h"
#include "records/recordlayout.h"

#include <QByteArrayView>

namespace tavrel {

/// A service that its diver plans to buy, with up to six priced lines: line 0 is the service itself, 1 to 4 its
/// supplements; what line 5 holds is stored, but counts in no total. Prices in euros.
struct Budget : Record {
    QString prestation;
    qint32 quantite_0 = 0, quantite_1 = 0, quantite_2 = 0, quantite_3 = 0, quantite_4 = 0, quantite_5 = 0;
    float prixUnitaire_0 = 0, prixUnitaire_1 = 0, prixUnitaire_2 = 0;
    float prixUnitaire_3 = 0, prixUnitaire_4 = 0, prixUnitaire_5 = 0;
    QString supplement_1, supplement_2, supplement_3, supplement_4;
    qint32 prixDegressif = 0;  ///< 0 or 1: prepaid cards are offered
    qint32 unitesCarte_1 = 0, unitesCarte_2 = 0, unitesCarte_3 = 0, unitesCarte_4 = 0;
    float prixCarte_1 = 0, prixCarte_2 = 0, prixCarte_3 = 0, prixCarte_4 = 0;
    qint32 prevDepense = 0;  ///< 0 or 1: the expense is planned
    QString entreprise;
    qint32 qualitePrix = 0;  ///< value for money, 0 (not rated) to 5
    qint32 delai = 0;        ///< responsiveness, 0 (not rated) to 5
    Date miseAJour;
    QString notes;

    static const RecordLayout& layout();
};

/// The service form.
struct BudgetControls : ControlTable<BudgetControls> {
    static constexpr std::array<const char*, 5> lines{"1", "2", "3", "4", "5"};
    static constexpr std::array<const char*, 4> supplements{"1", "2", "3", "4"};
    static constexpr std::array<const char*, 4> cards{"1", "2", "3", "4"};

    // Page 1: the service and its lines.
    const int serviceGroup = group({1, {"Budget", "Group service"}});
    const Id prestationField = add({.name = "prestationField",
                                    .kind = ControlKind::combo,
                                    .field = "prestation",
                                    .label = {"Budget", "Label service"},
                                    .pickList = PickList::tableauDesPrestations});
    const Id quantite_0Field = add({.name = "quantite_0Field",
                                    .kind = ControlKind::wholeNumber,
                                    .field = "quantite_0",
                                    .label = {"Budget", "Label quantity"}});
    const Id prixUnitaire_0Field = add({.name = "prixUnitaire_0Field",
                                        .kind = ControlKind::decimal,
                                        .field = "prixUnitaire_0",
                                        .label = {"Budget", "Label unit price"},
                                        .unit = literal("€")});
    const Id prevDepenseSwitch = add({.name = "prevDepenseSwitch",
                                      .kind = ControlKind::onOff,
                                      .field = "prevDepense",
                                      .label = {"Budget", "Label planned"}});

    const int supplementsGroup = group({1, {"Budget", "Group supplements"}, GroupLayout::columns});
    const std::array<Id, 4> supplement_Field = addEach<4>(
        supplements,
        {.name = "supplement_%Field", .field = "supplement_%", .label = {"Budget", "Label supplement"}, .width = 24});
    /// Of line 5, in the form alone: no record holds it.
    const Id supplement_5Field = addFifthSupplement();
    const std::array<Id, 5> quantite_Field = addEach<5>(lines, {.name = "quantite_%Field",
                                                                .kind = ControlKind::wholeNumber,
                                                                .field = "quantite_%",
                                                                .label = {"Budget", "Label quantity"}});
    const std::array<Id, 5> prixUnitaire_Field = addEach<5>(lines, {.name = "prixUnitaire_%Field",
                                                                    .kind = ControlKind::decimal,
                                                                    .field = "prixUnitaire_%",
                                                                    .label = {"Budget", "Label unit price"},
                                                                    .unit = literal("€")});
    const int totalGroup = group({1, {"Budget", "Group total"}});
    const Id totalField = add({.name = "totalField",
                               .kind = ControlKind::readOnly,
                               .label = {"Budget", "Label total"},
                               .unit = literal("€"),
                               .width = 10});

    // Page 2: prepaid cards.
    const int discountGroup = group({2, {"Budget", "Group discount"}});
    const Id prixDegressifSwitch = add({.name = "prixDegressifSwitch",
                                        .kind = ControlKind::onOff,
                                        .field = "prixDegressif",
                                        .label = {"Budget", "Label discount"}});
    const int cardsGroup = group({2, {"Budget", "Group cards"}, GroupLayout::columns});
    const std::array<Id, 4> unitesCarte_Field = addEach<4>(cards, {.name = "unitesCarte_%Field",
                                                                   .kind = ControlKind::wholeNumber,
                                                                   .field = "unitesCarte_%",
                                                                   .label = {"Budget", "Label card units"}});
    const std::array<Id, 4> prixCarte_Field = addEach<4>(cards, {.name = "prixCarte_%Field",
                                                                 .kind = ControlKind::decimal,
                                                                 .field = "prixCarte_%",
                                                                 .label = {"Budget", "Label card price"},
                                                                 .unit = literal("€")});
    const std::array<Id, 4> prixUnite_Field = addEach<4>(cards, {.name = "prixUnite_%Field",
                                                                 .kind = ControlKind::readOnly,
                                                                 .label = {"Budget", "Label price of unit"},
                                                                 .width = 18});

    // Page 3: the supplier.
    const int supplierGroup = group({3, {"Budget", "Group supplier"}});
    const Id entrepriseField =
        add({.name = "entrepriseField", .field = "entreprise", .label = {"Budget", "Label supplier"}});
    const Id qualitePrixSlider = add({.name = "qualitePrixSlider",
                                      .kind = ControlKind::rating,
                                      .field = "qualitePrix",
                                      .label = {"Budget", "Label value"},
                                      .minimum = 0,
                                      .maximum = 5});
    const Id qualitePrixField =
        add({.name = "qualitePrixField", .kind = ControlKind::readOnly, .width = 18, .beside = true});
    const Id delaiSlider = add({.name = "delaiSlider",
                                .kind = ControlKind::rating,
                                .field = "delai",
                                .label = {"Budget", "Label delay"},
                                .minimum = 0,
                                .maximum = 5});
    const Id delaiField = add({.name = "delaiField", .kind = ControlKind::readOnly, .width = 18, .beside = true});
    const Id miseAJourField = add({.name = "miseAJourField",
                                   .kind = ControlKind::date,
                                   .field = "miseAJour",
                                   .label = {"Budget", "Label update"},
                                   .emptyAt1900 = true});
    const int notesGroup = group({3, {"Budget", "Group notes"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const BudgetControls& table();

private:
    BudgetControls() = default;

    Id addFifthSupplement() {
        return {
            ControlTableBase::add({.name = "supplement_5Field", .label = {"Budget", "Label supplement"}, .width = 24},
                                  {}, controls().back().line, 4)};
    }
};

/// The services of a file of an earlier kind: a property list in XML, an array of dictionaries whose keys are the
/// record's properties. Logs when it is none either.
Expected<RecordList> importFromVersion20(QByteArrayView data);

}  // namespace tavrel
