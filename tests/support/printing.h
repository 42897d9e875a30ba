#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>

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

/// What is said of each name, "temps lieu" as "42|Gozo".
template <class Say>
QString eachOf(const char* names, Say say) {
    QStringList texts;
    for (const QByteArray& name : QByteArray(names).split(' ')) {
        texts << say(name.constData());
    }
    return texts.join(u'|');
}

}  // namespace tavrel
