#pragma once

#include "book/book.h"
#include "forms/controltable.h"

namespace tavrel {

/// A small record book: things with a name, a price, a day, stars and a state in colour.
struct Thing : Record {
    QString name = QStringLiteral("");
    float price = 0;
    Date bought;
    qint32 stars = 0;

    static const RecordLayout& layout();
};

struct ThingControls : ControlTable<ThingControls> {
    const int group1 = group({1, {"Main", "General"}, GroupLayout::pairs, 1});
    const Id nameField = add({.name = "nameField", .field = "name", .label = literal("Name")});
    const Id priceField = add({.name = "priceField",
                               .kind = ControlKind::decimal,
                               .field = "price",
                               .label = literal("Price"),
                               .usualMinimum = 0,
                               .usualMaximum = 1000});
    const Id boughtField = add({.name = "boughtField",
                                .kind = ControlKind::date,
                                .field = "bought",
                                .label = literal("Bought"),
                                .emptyAt1900 = true});
    const Id starsSlider = add({.name = "starsSlider",
                                .kind = ControlKind::rating,
                                .field = "stars",
                                .label = literal("Stars"),
                                .minimum = 0,
                                .maximum = 5});
    const Id wearProgress = add({.name = "wearProgress", .kind = ControlKind::progress, .label = literal("Wear")});
    const Id stateField = add({.name = "stateField", .kind = ControlKind::readOnly, .label = literal("State")});

    static const ThingControls& table();
};

const BookDescription& shelf();

}  // namespace tavrel
