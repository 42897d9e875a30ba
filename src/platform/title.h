#pragma once

#include "platform/texts.h"

namespace tavrel {

/// A word that a table of controls, columns or commands shows: a key of a text table, or the text itself where it is
/// the same in every language.
struct Title {
    const char* table = nullptr;  ///< null: key is the text itself
    const char* key = "";

    constexpr bool isEmpty() const { return *key == 0; }
    QString text() const { return table ? tavrel::text(table, key) : QString::fromUtf8(key); }
};

constexpr Title literal(const char* text) {
    return {nullptr, text};
}

}  // namespace tavrel
