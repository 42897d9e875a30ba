#include "logbook/ui/carnettoolbars.h"

#include "logbook/carnet.h"

#include <algorithm>
#include <array>

namespace tavrel {

namespace {

constexpr ToolItem profile{"profil", {"Carnet", "Profile"}, "ProfilPl", {"Carnet", "Tip profile"}};
constexpr ToolItem profileData{
    "profilData", {"Carnet", "Profile datas"}, "profilData", {"Carnet", "Tip profile datas"}};
constexpr ToolItem importUdcf{"importUDCF", {"Carnet", "Import UDCF"}, "importUDCF", {"Carnet", "Tip import UDCF"}};
constexpr ToolItem importUddf{"importUDDF", {"Carnet", "Import UDDF"}, "importUDDF", {"Carnet", "Tip import UDDF"}};

constexpr std::array tableItems{
    ToolItem{"saveDocument", {"Main", "Save"}, "enregistrer", {"Carnet", "Tip save"}},
    ToolItem{"imprimer", {"Main", "Print"}, "imprimante", {"Carnet", "Tip print"}},
    ToolItem{"newDive", {"Main", "Add"}, "ajouterPl", {"Carnet", "Tip add"}},
    ToolItem{"deleteDive", {"Main", "Delete"}, "supprimerPl", {"Carnet", "Tip delete"}},
    profile,
    profileData,
    importUdcf,
    importUddf,
    ToolItem{"synthese", {"Main", "Synthesis card"}, "texte", {"Carnet", "Tip synthesis card"}},
    ToolItem{"statistics", {"Carnet", "Statistics"}, "statistics", {"Carnet", "Tip statistics"}},
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
    ToolItem{"insertDive", {"Main", "Insert"}, "insererPl", {"Carnet", "Tip insert"}},
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

bool validateToolbarItem(const Carnet& carnet, const QString& identifier) {
    static constexpr std::array needDives{"imprimer",   "insertDive", "deleteDive", "profil",
                                          "profilData", "synthese",   "statistics"};
    const bool needs = std::any_of(needDives.begin(), needDives.end(),
                                   [&](const char* each) { return identifier == QLatin1StringView(each); });
    return !needs || carnet.count() > 0;
}

}  // namespace tavrel
