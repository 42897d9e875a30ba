#include "logbook/carnettoolbars.h"

#include <array>

namespace tavrel {

namespace {

constexpr ToolItem profile{"profil", {"Carnet", "Profile"}, "ProfilPl", {"Carnet", "Tip profile"}, true};
constexpr ToolItem profileData{
    "profilData", {"Carnet", "Profile datas"}, "profilData", {"Carnet", "Tip profile datas"}, true};
constexpr ToolItem importUdcf{"importUDCF", {"Carnet", "Import UDCF"}, "importUDCF", {"Carnet", "Tip import UDCF"}};
constexpr ToolItem importUddf{"importUDDF", {"Carnet", "Import UDDF"}, "importUDDF", {"Carnet", "Tip import UDDF"}};

constexpr std::array tableItems{
    ToolItem{"saveDocument", {"Main", "Save"}, "enregistrer", {"Carnet", "Tip save"}},
    ToolItem{"imprimer", {"Main", "Print"}, "imprimante", {"Carnet", "Tip print"}, true},
    ToolItem{"newDive", {"Main", "Add"}, "ajouterPl", {"Carnet", "Tip add"}},
    ToolItem{"deleteDive", {"Main", "Delete"}, "supprimerPl", {"Carnet", "Tip delete"}, true},
    profile,
    profileData,
    importUdcf,
    importUddf,
    ToolItem{"synthese", {"Main", "Synthesis card"}, "texte", {"Carnet", "Tip synthesis card"}, true},
    ToolItem{"statistics", {"Carnet", "Statistics"}, "statistics", {"Carnet", "Tip statistics"}, true},
    ToolItem{"rechercher", {"Carnet", "Find"}, "", {}},
};
constexpr std::array tableAllowed{
    "saveDocument", "imprimer",        "newDive",     "deleteDive",  "profil",
    "profilData",   "importUDCF",      "importUDDF",  "synthese",    "statistics",
    toolSpace,      toolFlexibleSpace, toolSeparator, toolCustomise, "rechercher",
};
constexpr std::array tableInitial{
    "saveDocument", "imprimer", toolSeparator, "newDive",     "deleteDive",  "profil",          "importUDCF",
    "importUDDF",   "synthese", "statistics",  toolSeparator, toolCustomise, toolFlexibleSpace, "rechercher",
};

constexpr std::array editItems{
    ToolItem{"addDiveToList", {"Main", "Add"}, "ajouterPl", {"Carnet", "Tip add"}},
    ToolItem{"insertDive", {"Main", "Insert"}, "insererPl", {"Carnet", "Tip insert"}, true},
    ToolItem{"blankFields", {"Main", "Erase"}, "raz", {"Main", "Tip erase"}},
    profile,
    profileData,
    importUdcf,
    importUddf,
};
constexpr std::array editAllowed{
    "addDiveToList", "insertDive",      "blankFields", "profil",      "profilData",
    toolSpace,       toolFlexibleSpace, toolSeparator, toolCustomise,
};
constexpr std::array editInitial{
    "addDiveToList", "insertDive", "blankFields", "profil",      "profilData",
    "importUDCF",    "importUDDF", toolSeparator, toolCustomise, toolFlexibleSpace,
};

constexpr ToolBarDescription tableToolBar{"tableViewToolbar", tableItems, tableAllowed, tableInitial};
constexpr ToolBarDescription editToolBar{"editWindowToolbar", editItems, editAllowed, editInitial};

}  // namespace

const ToolBarDescription& setupToolbarCarnet() {
    return tableToolBar;
}

const ToolBarDescription& setupToolbarEdit() {
    return editToolBar;
}

}  // namespace tavrel
