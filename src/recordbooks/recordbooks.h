#pragma once

#include "book/bookdescription.h"

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

}  // namespace tavrel
