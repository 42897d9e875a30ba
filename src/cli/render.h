#pragma once

#include "cli/session.h"
#include "drawing/pages.h"

#include <string>
#include <vector>

namespace tavrel {

/// The card of the records at the rows, of all when there are none; a failure where the type has no card.
Expected<StyledText> cardOf(Session& session, const std::vector<int>& rows);

/// What render can draw: "table", "card", "profile" …
std::vector<std::string> renderings();
/// Of how many records at most each is drawn; 0 for what is drawn of the document.
std::size_t mostRows(const std::string& what);
/// The pages of one of them; a failure when the document, or its record, has no such thing.
Expected<Pages> renderedPages(Session& session, const std::string& what, const std::vector<int>& rows);

}  // namespace tavrel
