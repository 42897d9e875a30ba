#pragma once

#include "base/texts.h"
#include "desktop/picklists.h"

#include <array>
#include <optional>

namespace tavrel {

/// One list of a pick-list editor: where it is stored, and the names of its controls and actions.
struct EditedList {
    PickList list;
    Title title;
    const char* field;
    const char* tableView;
    const char* totalField;
    const char* addAction;
    const char* deleteAction;
    const char* storedUnder = nullptr;  ///< a key other than the list's own
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
     {PickList::sacDePlongee, Title("Main", "Diving bag"), "sacItemField", "sacTableView", "totalSacField",
      "addSacItem", "deleteSacItem"}},
    {"showLieuWindow",
     "ComboLieuController",
     "ComboLieu",
     {PickList::tableauDesLieux, Title("Main", "Places"), "lieuField", "lieuTableView", "totalLieuxField", "addLieu",
      "deleteLieu"}},
    {"showSiteWindow",
     "ComboSiteController",
     "ComboSite",
     {PickList::tableauDesSites, Title("Main", "Sites"), "siteField", "siteTableView", "totalSitesField", "addSite",
      "deleteSite"}},
    {"showPaysWindow",
     "ComboPaysController",
     "ComboPays",
     {PickList::tableauDesPays, Title("Main", "Countries"), "paysField", "paysTableView", "totalPaysField", "addPays",
      "deletePays"},
     EditedList{PickList::countryCodeArray, Title("Main", "Country codes"), "countryCodeField", "countryCodeTableView",
                "totalCountryCodeField", "addCountryCode", "deleteCountryCode"}},
    {"showPalanqueeWindow",
     "ComboPalanqueeController",
     "ComboPalanquee",
     {PickList::tableauDesPalanquees, Title("Main", "Buddies"), "palanqueeField", "palanqueeTableView",
      "totalPalanqueesField", "addPalanquee", "deletePalanquee"}},
    {"showEpaveWindow",
     "ComboEpavesController",
     "ComboEpaves",
     {PickList::tableauDesEpaves, Title("Main", "Wrecks"), "epaveField", "epaveTableView", "totalEpavesField",
      "addEpave", "deleteWreck"}},
    {"showStructureWindow",
     "ComboStructuresController",
     "ComboStructures",
     {PickList::tableauDesStructures, Title("Main", "Clubs"), "structureField", "structureTableView",
      "totalStructuresField", "addStructure", "deleteStructure"}},
    {"showOrdiWindow",
     "ComboOrdiController",
     "ComboOrdi",
     {PickList::tableauDesOrdis, Title("Main", "Dive computers"), "ordiField", "ordiTableView", "totalOrdiField",
      "addOrdi", "deleteOrdi"}},
    {"showTypesMatosWindow",
     "ComboTypesMatosController",
     "ComboTypesMatos",
     {PickList::tableauDesTypesMatos, Title("Main", "Equipment types"), "typeMatosField", "typeMatosTableView",
      "totalTypesMatosField", "addTypesMatos", "deleteTypesMatos"},
     std::nullopt,
     true},
    {"showMagasinsWindow",
     "ComboMagasinsMatosController",
     "ComboMagasinsMatos",
     // The shops go to the key of the equipment types, from where that list takes them; their own key is never written.
     {PickList::tableauDesMagasins, Title("Main", "Shops"), "magasinMatosField", "magasinMatosTableView",
      "totalMagasinsMatosField", "addMagasinMatos", "deleteMagasinMatos", "type materiel"},
     std::nullopt,
     true},
    {"showMarquesWindow",
     "ComboMarquesController",
     "ComboMarques",
     {PickList::tableauDesMarques, Title("Main", "Brands"), "marquesField", "marquesTableView", "totalMarquesField",
      "addMarque", "deleteMarque"},
     std::nullopt,
     true},
    {"showPrestationWindow",
     "ComboPrestationController",
     "ComboPrestation",
     {PickList::tableauDesPrestations, Title("Main", "Services"), "prestationField", "_prestationsTableView",
      "totalPrestationsField", "addPrestation", "deletePrestation"},
     std::nullopt,
     true},
    {"showActiviteWindow",
     "ComboActiviteController",
     "ComboActivite",
     {PickList::tableauDesActivites, Title("Main", "Activities"), "activiteField", "activiteTableView",
      "totalActivitesField", "addActivite", "deleteActivite"},
     std::nullopt,
     true},
    {"showTypeEpaveWindow",
     "ComboTypeEpaveController",
     "ComboTypeEpave",
     {PickList::tableauDesTypesEpaves, Title("Main", "Wreck types"), "typeEpaveField", "typeEpaveTableView",
      "totalTypesEpaveField", "addTypeEpave", "deleteTypeEpave"},
     std::nullopt,
     true},
    {"showNaufrageWindow",
     "ComboNaufrageController",
     "ComboNaufrage",
     {PickList::tableauDesCausesNaufrages, Title("Main", "Causes of sinking"), "causeField", "causeNaufrageTableView",
      "totalCausesField", "addCauseNaufrage", "deleteCauseNaufrage"},
     std::nullopt,
     true},
}};

}  // namespace tavrel
