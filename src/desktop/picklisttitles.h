#pragma once

#include "base/texts.h"
#include "desktop/picklists.h"

namespace tavrel {

/// What a shared list is called.
constexpr Title pickListTitle(PickList list) {
    switch (list) {
        case PickList::tableauDesLieux:
            return {"Main", "Places"};
        case PickList::tableauDesSites:
            return {"Main", "Sites"};
        case PickList::tableauDesPays:
            return {"Main", "Countries"};
        case PickList::countryCodeArray:
            return {"Main", "Country codes"};
        case PickList::tableauDesPalanquees:
            return {"Main", "Buddies"};
        case PickList::tableauDesEpaves:
            return {"Main", "Wrecks"};
        case PickList::tableauDesStructures:
            return {"Main", "Clubs"};
        case PickList::tableauDesOrdis:
            return {"Main", "Dive computers"};
        case PickList::sacDePlongee:
            return {"Main", "Diving bag"};
        case PickList::tableauDesTypesEpaves:
            return {"Main", "Wreck types"};
        case PickList::tableauDesCausesNaufrages:
            return {"Main", "Causes of sinking"};
        case PickList::tableauDesTypesMatos:
            return {"Main", "Equipment types"};
        case PickList::tableauDesMarques:
            return {"Main", "Brands"};
        case PickList::tableauDesMagasins:
            return {"Main", "Shops"};
        case PickList::tableauDesPrestations:
            return {"Main", "Services"};
        case PickList::tableauDesActivites:
            return {"Main", "Activities"};
    }
    return {};
}

}  // namespace tavrel
