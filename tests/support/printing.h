#pragma once

#include <QByteArrayList>
#include <QList>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <numeric>
#include <ostream>
#include <span>

// Qt's texts in the messages of failed tests; found by argument-dependent lookup.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out) {
    *out << '[' << texts.join(QStringLiteral("|")).toStdString() << ']';
}

namespace tavrel {

/// A list in one text, "a b".
inline QString joined(std::span<const char* const> words) {
    return QString::fromUtf8(QByteArrayList(words.begin(), words.end()).join(' '));
}

/// The numbers from `first` up to and without `last`. (clang 14 does not compile std::views::iota.)
inline QList<int> numbers(int first, int last) {
    QList<int> all(last - first);
    std::iota(all.begin(), all.end(), first);
    return all;
}

/// What is said of each thing, in one text, "42|Gozo".
template <class Things, class Say>
QString eachOf(const Things& things, Say say, QChar between = u'|') {
    QStringList texts;
    for (const auto& thing : things) {
        texts << say(thing);
    }
    return texts.join(between);
}

/// What is said of each name of "temps lieu".
template <class Say>
QString eachOf(const char* names, Say say) {
    return eachOf(QByteArray(names).split(' '), [&](const QByteArray& name) { return say(name.constData()); });
}

}  // namespace tavrel
