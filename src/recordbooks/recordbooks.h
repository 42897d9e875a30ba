#pragma once

#include "book/bookdescription.h"

#include <array>

namespace tavrel {

// The nine record books, each described in the file of its record class.

const BookDescription& invMateriel();
const BookDescription& repEpaves();
const BookDescription& maintComp();
const BookDescription& rebreatherServ();
const BookDescription& invConso();
const BookDescription& previBudget();
const BookDescription& adressesEts();
const BookDescription& adressesStruct();
const BookDescription& diversDocuments();

/// All of them, in the order of the menu.
inline constexpr std::array recordBooks{&invMateriel, &repEpaves,   &maintComp,      &rebreatherServ, &invConso,
                                        &previBudget, &adressesEts, &adressesStruct, &diversDocuments};

}  // namespace tavrel
