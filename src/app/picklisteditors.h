#pragma once

#include "desktop/picklisttitles.h"

#include <array>
#include <optional>

namespace tavrel {

/// One list of a pick-list editor: where it is stored, and the names of its controls and actions.
struct EditedList {
    PickList list;
    const char* field;
    const char* tableView;
    const char* totalField;
    const char* addAction;
    const char* deleteAction;
    const char* storedUnder = nullptr;  ///< a key other than the list's own

    constexpr Title title() const { return pickListTitle(list); }
};

/// A pick-list editor: the action that shows it, its controller, its layout (the name its frame is kept under) and its
/// one list or two.
struct PickListEditorDescription {
    const char* action;
    const char* controller;
    const char* layout;
    EditedList first;
    std::optional<EditedList> second = std::nullopt;
    bool reloads = false;  ///< takes its list from the store each time it is shown
};

/// The editors in the order of their menu.
inline constexpr std::array<PickListEditorDescription, 15> pickListEditors{{
    {"showSacWindow",
     "ComboSacController",
     "ComboSacDePlongee",
     {PickList::sacDePlongee, "sacItemField", "sacTableView", "totalSacField", "addSacItem", "deleteSacItem"}},
    {"showLieuWindow",
     "ComboLieuController",
     "ComboLieu",
     {PickList::tableauDesLieux, "lieuField", "lieuTableView", "totalLieuxField", "addLieu", "deleteLieu"}},
    {"showSiteWindow",
     "ComboSiteController",
     "ComboSite",
     {PickList::tableauDesSites, "siteField", "siteTableView", "totalSitesField", "addSite", "deleteSite"}},
    {"showPaysWindow",
     "ComboPaysController",
     "ComboPays",
     {PickList::tableauDesPays, "paysField", "paysTableView", "totalPaysField", "addPays", "deletePays"},
     EditedList{PickList::countryCodeArray, "countryCodeField", "countryCodeTableView", "totalCountryCodeField",
                "addCountryCode", "deleteCountryCode"}},
    {"showPalanqueeWindow",
     "ComboPalanqueeController",
     "ComboPalanquee",
     {PickList::tableauDesPalanquees, "palanqueeField", "palanqueeTableView", "totalPalanqueesField", "addPalanquee",
      "deletePalanquee"}},
    {"showEpaveWindow",
     "ComboEpavesController",
     "ComboEpaves",
     {PickList::tableauDesEpaves, "epaveField", "epaveTableView", "totalEpavesField", "addEpave", "deleteWreck"}},
    {"showStructureWindow",
     "ComboStructuresController",
     "ComboStructures",
     {PickList::tableauDesStructures, "structureField", "structureTableView", "totalStructuresField", "addStructure",
      "deleteStructure"}},
    {"showOrdiWindow",
     "ComboOrdiController",
     "ComboOrdi",
     {PickList::tableauDesOrdis, "ordiField", "ordiTableView", "totalOrdiField", "addOrdi", "deleteOrdi"}},
    {"showTypesMatosWindow",
     "ComboTypesMatosController",
     "ComboTypesMatos",
     {PickList::tableauDesTypesMatos, "typeMatosField", "typeMatosTableView", "totalTypesMatosField", "addTypesMatos",
      "deleteTypesMatos"},
     std::nullopt,
     true},
    {"showMagasinsWindow",
     "ComboMagasinsMatosController",
     "ComboMagasinsMatos",
     // The shops go to the key of the equipment types, from where that list takes them; their own key is never written.
     {PickList::tableauDesMagasins, "magasinMatosField", "magasinMatosTableView", "totalMagasinsMatosField",
      "addMagasinMatos", "deleteMagasinMatos", "type materiel"},
     std::nullopt,
     true},
    {"showMarquesWindow",
     "ComboMarquesController",
     "ComboMarques",
     {PickList::tableauDesMarques, "marquesField", "marquesTableView", "totalMarquesField", "addMarque",
      "deleteMarque"},
     std::nullopt,
     true},
    {"showPrestationWindow",
     "ComboPrestationController",
     "ComboPrestation",
     {PickList::tableauDesPrestations, "prestationField", "_prestationsTableView", "totalPrestationsField",
      "addPrestation", "deletePrestation"},
     std::nullopt,
     true},
    {"showActiviteWindow",
     "ComboActiviteController",
     "ComboActivite",
     {PickList::tableauDesActivites, "activiteField", "activiteTableView", "totalActivitesField", "addActivite",
      "deleteActivite"},
     std::nullopt,
     true},
    {"showTypeEpaveWindow",
     "ComboTypeEpaveController",
     "ComboTypeEpave",
     {PickList::tableauDesTypesEpaves, "typeEpaveField", "typeEpaveTableView", "totalTypesEpaveField", "addTypeEpave",
      "deleteTypeEpave"},
     std::nullopt,
     true},
    {"showNaufrageWindow",
     "ComboNaufrageController",
     "ComboNaufrage",
     {PickList::tableauDesCausesNaufrages, "causeField", "causeNaufrageTableView", "totalCausesField",
      "addCauseNaufrage", "deleteCauseNaufrage"},
     std::nullopt,
     true},
}};

}  // namespace tavrel
