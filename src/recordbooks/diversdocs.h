#pragma once

#include "forms/controltable.h"
#include "records/recordlayout.h"

namespace tavrel {

/// A paper of the diver's: attestation, licence, invoice …, with a copy of it as a picture.
struct DiversDocs : Record {
    qint32 type = 0;  ///< see documentTypes
    QString titre;
    QString emetteur;       ///< who issued it
    Date date;              ///< of issue
    qint32 renouveler = 0;  ///< 0 or 1: it must be renewed
    Date dateRenouvellement;
    Image photocopy;
    QString notes;

    static const RecordLayout& layout();
};

/// The kinds of paper.
inline constexpr Choice documentTypes[] = {
    {0, {"Documents", "TableView attestation"}}, {1, {"Documents", "TableView certification"}},
    {2, {"Documents", "TableView certifMed"}},   {3, {"Documents", "TableView facture"}},
    {4, {"Documents", "TableView licence"}},     {5, {"Documents", "TableView autre"}}};

/// The form of a paper.
struct DiversDocsControls : ControlTable<DiversDocsControls> {
    // Page 1: what it is.
    const int documentGroup = group({1, {"Documents", "Group document"}});
    const Id titreField =
        add({.name = "titreField", .field = "titre", .label = {"Documents", "Label title"}, .width = 34});
    const Id typeDocPopUp = add({.name = "typeDocPopUp",
                                 .kind = ControlKind::popUp,
                                 .field = "type",
                                 .label = {"Documents", "Label type"},
                                 .choices = documentTypes});
    const Id emetteurField =
        add({.name = "emetteurField", .field = "emetteur", .label = {"Documents", "Label issuer"}});
    const Id dateField = add({.name = "dateField",
                              .kind = ControlKind::date,
                              .field = "date",
                              .label = {"Documents", "Label date"},
                              .emptyAt1900 = true});
    const int renewalGroup = group({1, {"Documents", "Group renewal"}});
    const Id renouvelerSwitch = add({.name = "renouvelerSwitch",
                                     .kind = ControlKind::onOff,
                                     .field = "renouveler",
                                     .label = {"Documents", "Label renew"}});
    const Id dateRenouvellementField = add({.name = "dateRenouvellementField",
                                            .kind = ControlKind::date,
                                            .field = "dateRenouvellement",
                                            .label = {"Documents", "Label renewal date"},
                                            .emptyAt1900 = true});

    // Page 2: the copy.
    const int copyGroup = group({2, {"Documents", "Group copy"}});
    const Id photocopyView = add({.name = "photocopyView",
                                  .kind = ControlKind::picture,
                                  .field = "photocopy",
                                  .label = {"Documents", "Label copy"}});

    // Page 3: remarks.
    const int notesGroup = group({3, {"Documents", "Group notes"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const DiversDocsControls& table();

private:
    DiversDocsControls() = default;
};

}  // namespace tavrel
