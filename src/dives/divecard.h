#pragma once

#include "dives/divespan.h"
#include "drawing/styledtext.h"

#include <QString>

#include <memory>

namespace tavrel {

class Preferences;

/// Writes dives as cards: a title, sections, a line for each field. The words are looked up once for all of them.
class DiveCard {
public:
    explicit DiveCard(const Preferences& preferences);
    ~DiveCard();
    DiveCard(const DiveCard&) = delete;
    DiveCard& operator=(const DiveCard&) = delete;

    void append(StyledText& card, const Plongee& dive) const;

private:
    class Words;
    class Writer;
    std::unique_ptr<Words> words_;
    bool usUnits_;
};

/// The cards of the dives in their order, a line between them.
StyledText diveCard(DiveSpan dives, const Preferences& preferences);

}  // namespace tavrel
