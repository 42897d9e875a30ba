#pragma once

#include "recordbooks/openinghours.h"

namespace tavrel {

/// A company that a diver deals with: a shop, a school, a boat operator, a repairer.
struct Entreprises : OpeningHours {
    QString entreprise;
    QString adresse;
    QString codePostal;  ///< a text, which keeps its leading zeros
    QString ville;
    QString pays;
    QString telephone;
    QString fax;
    QString email;
    QString url;
    QString activite;
    Date miseAJour;  ///< when the card was brought up to date
    QString remarques;
    qint32 cotation = 0;  ///< 0 (not rated) to 5

    static const RecordLayout& layout();
};

/// The company form.
struct EntreprisesControls : OpeningHoursControls<EntreprisesControls> {
    // Page 1: the company and how to reach it.
    const int companyGroup = group({1, {"Entreprises", "Group company"}});
    const Id nomField =
        add({.name = "nomField", .field = "entreprise", .label = {"Entreprises", "Label name"}, .width = 34});
    const Id activiteField = add({.name = "activiteField",
                                  .kind = ControlKind::combo,
                                  .field = "activite",
                                  .label = {"Entreprises", "Label activity"},
                                  .pickList = PickList::tableauDesActivites});
    const Id cotationSlider = add({.name = "cotationSlider",
                                   .kind = ControlKind::rating,
                                   .field = "cotation",
                                   .label = {"Entreprises", "Label rating"},
                                   .minimum = 0,
                                   .maximum = 5});
    const Id miseAJourField = add({.name = "miseAJourField",
                                   .kind = ControlKind::date,
                                   .field = "miseAJour",
                                   .label = {"Entreprises", "Label update"},
                                   .emptyAt1900 = true});
    const Id resetDateToNowButton = add({.name = "resetDateToNowButton",
                                         .kind = ControlKind::button,
                                         .label = {"Entreprises", "Today"},
                                         .tip = {"Entreprises", "Tip today"},
                                         .beside = true});
    const int addressGroup = group({1, {"Entreprises", "Group address"}, GroupLayout::pairs, 2});
    const Id adresseField = add({.name = "adresseField", .field = "adresse", .label = {"Entreprises", "Label street"}});
    const Id codePostalField = add(
        {.name = "codePostalField", .field = "codePostal", .label = {"Entreprises", "Label postal code"}, .width = 8});
    const Id villeField = add({.name = "villeField", .field = "ville", .label = {"Entreprises", "Label town"}});
    const Id paysField = add({.name = "paysField", .field = "pays", .label = {"Entreprises", "Label country"}});
    const int contactGroup = group({1, {"Entreprises", "Group contact"}, GroupLayout::pairs, 2});
    const Id telephoneField = add({.name = "telephoneField",
                                   .field = "telephone",
                                   .label = {"Entreprises", "Label telephone"},
                                   .opens = Opens::phone});
    const Id faxField = add({.name = "faxField", .field = "fax", .label = {"Entreprises", "Label fax"}});
    const Id emailField =
        add({.name = "emailField", .field = "email", .label = {"Entreprises", "Label e-mail"}, .opens = Opens::mail});
    const Id urlField =
        add({.name = "urlField", .field = "url", .label = {"Entreprises", "Label web"}, .opens = Opens::web});

    // Page 2: the week.
    const int hoursGroup = group({2, {"Entreprises", "Group hours"}, GroupLayout::rows});
    const Week hours = addWeek();

    // Page 3: remarks.
    const int remarksGroup = group({3, {"Entreprises", "Group remarks"}});
    const Id remarquesField = add({.name = "remarquesField", .kind = ControlKind::longText, .field = "remarques"});

    static const EntreprisesControls& table();

private:
    EntreprisesControls() = default;
};

}  // namespace tavrel
