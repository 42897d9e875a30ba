#pragma once

#include "recordbooks/openinghours.h"

namespace tavrel {

/// A diving club or centre. Prices in euros.
struct Structures : OpeningHours {
    QString nom;
    qint32 type = 0;  ///< 0 non-profit, 1 commercial, 2 unknown
    QString affiliation;
    QString gerant;
    QString adresse;
    qint32 codePostal = 0;  ///< a number, so a leading zero is lost
    QString ville;
    QString pays;
    QString telephone;
    QString portable;
    QString fax;
    QString url;
    QString email;
    qint32 cotation = 0;  ///< 0 (not rated) to 5
    Date miseAJour;       ///< when the card was brought up to date
    QString plongee_1, plongee_2, plongee_3, plongee_4, plongee_5;
    float bapteme = 0;  ///< a try-dive
    float prix_1 = 0, prix_2 = 0, prix_3 = 0, prix_4 = 0, prix_5 = 0;
    QString formation_1, formation_2, formation_3, formation_4, formation_5, formation_6;
    float prixForm_1 = 0, prixForm_2 = 0, prixForm_3 = 0, prixForm_4 = 0, prixForm_5 = 0, prixForm_6 = 0;
    qint32 nbPlongees = 0;  ///< dives made with the club
    QString remarques;

    static const RecordLayout& layout();
};

/// The kinds of club, in the order of the menu.
inline constexpr Choice structureTypes[] = {
    {0, {"Structures", "Associative"}}, {1, {"Structures", "Commerciale"}}, {2, {"Structures", "N/A"}}};

/// The club form.
struct StructuresControls : OpeningHoursControls<StructuresControls> {
    static constexpr std::array<const char*, 5> offers{"1", "2", "3", "4", "5"};
    static constexpr std::array<const char*, 6> courses{"1", "2", "3", "4", "5", "6"};

    // Page 1: the club and how to reach it.
    const int clubGroup = group({1, {"Structures", "Group club"}, GroupLayout::pairs, 2});
    const Id nomField = add({.name = "nomField", .field = "nom", .label = {"Structures", "Label name"}});
    const Id typePopUp = add({.name = "typePopUp",
                              .kind = ControlKind::popUp,
                              .field = "type",
                              .label = {"Structures", "Label type"},
                              .choices = structureTypes});
    const Id affiliationField =
        add({.name = "affiliationField", .field = "affiliation", .label = {"Structures", "Label affiliation"}});
    const Id gerantField = add({.name = "gerantField", .field = "gerant", .label = {"Structures", "Label manager"}});
    const Id cotationSlider = add({.name = "cotationSlider",
                                   .kind = ControlKind::rating,
                                   .field = "cotation",
                                   .label = {"Structures", "Label rating"},
                                   .minimum = 0,
                                   .maximum = 5});
    const Id miseAJourField = add({.name = "miseAJourField",
                                   .kind = ControlKind::date,
                                   .field = "miseAJour",
                                   .label = {"Structures", "Label update"},
                                   .emptyAt1900 = true});
    const Id nbPlongeesField = add({.name = "nbPlongeesField",
                                    .kind = ControlKind::wholeNumber,
                                    .field = "nbPlongees",
                                    .label = {"Structures", "Label dives made"}});
    const int addressGroup = group({1, {"Structures", "Group address"}, GroupLayout::pairs, 2});
    const Id adresseField = add({.name = "adresseField", .field = "adresse", .label = {"Structures", "Label street"}});
    const Id codePostalField = add({.name = "codePostalField",
                                    .kind = ControlKind::wholeNumber,
                                    .field = "codePostal",
                                    .label = {"Structures", "Label postal code"},
                                    .width = 8});
    const Id villeField = add({.name = "villeField", .field = "ville", .label = {"Structures", "Label town"}});
    const Id paysField = add({.name = "paysField", .field = "pays", .label = {"Structures", "Label country"}});
    const int contactGroup = group({1, {"Structures", "Group contact"}, GroupLayout::pairs, 2});
    const Id telephoneField = add({.name = "telephoneField",
                                   .field = "telephone",
                                   .label = {"Structures", "Label telephone"},
                                   .opens = Opens::phone});
    const Id portableField = add(
        {.name = "portableField", .field = "portable", .label = {"Structures", "Label mobile"}, .opens = Opens::phone});
    const Id faxField = add({.name = "faxField", .field = "fax", .label = {"Structures", "Label fax"}});
    const Id emailField =
        add({.name = "emailField", .field = "email", .label = {"Structures", "Label e-mail"}, .opens = Opens::mail});
    const Id urlField =
        add({.name = "urlField", .field = "url", .label = {"Structures", "Label web"}, .opens = Opens::web});

    // Page 2: prices.
    const int tryDiveGroup = group({2, {"Structures", "Group try-dive"}});
    const Id baptemeField = add({.name = "baptemeField",
                                 .kind = ControlKind::decimal,
                                 .field = "bapteme",
                                 .label = {"Structures", "Label try-dive"},
                                 .unit = literal("€")});
    const int offersGroup = group({2, {"Structures", "Group dives"}, GroupLayout::columns});
    const std::array<Id, 5> plongee_Field = addEach<5>(
        offers, {.name = "plongee_%Field", .field = "plongee_%", .label = {"Structures", "Label dive"}, .width = 28});
    const std::array<Id, 5> prix_Field = addEach<5>(offers, {.name = "prix_%Field",
                                                             .kind = ControlKind::decimal,
                                                             .field = "prix_%",
                                                             .label = {"Structures", "Label price"},
                                                             .unit = literal("€")});
    const int coursesGroup = group({2, {"Structures", "Group courses"}, GroupLayout::columns});
    const std::array<Id, 6> formation_Field = addEach<6>(
        courses,
        {.name = "formation_%Field", .field = "formation_%", .label = {"Structures", "Label course"}, .width = 28});
    const std::array<Id, 6> prixForm_Field = addEach<6>(courses, {.name = "prixForm_%Field",
                                                                  .kind = ControlKind::decimal,
                                                                  .field = "prixForm_%",
                                                                  .label = {"Structures", "Label price"},
                                                                  .unit = literal("€")});

    // Page 3: the week and remarks.
    const int hoursGroup = group({3, {"Structures", "Group hours"}, GroupLayout::rows});
    const Week hours = addWeek();
    const int remarksGroup = group({3, {"Structures", "Group remarks"}});
    const Id remarquesField = add({.name = "remarquesField", .kind = ControlKind::longText, .field = "remarques"});

    static const StructuresControls& table();

private:
    StructuresControls() = default;
};

}  // namespace tavrel
