#include "interchange/standard/unread.h"

#include "interchange/standard/filevalues.h"

#include <algorithm>

namespace tavrel {

namespace {

bool isBareNumber(std::string_view text) {
    return text.find_first_not_of("0123456789.,+-eE") == std::string_view::npos;
}

/// Whether it is one of the names, or there are none.
bool isOneOf(XmlElement element, std::initializer_list<std::string_view> names) {
    return names.size() == 0 || std::find(names.begin(), names.end(), element.name()) != names.end();
}

}  // namespace

QString spokenWords(XmlElement element) {
    QStringList parts;
    qsizetype inParts = 0;
    for (XmlElement it = element.firstElement(); !it.isNull(); it = it.nextElement()) {
        inParts += it.text().size();
        parts.append(spokenWords(it));
    }
    parts.removeAll(QString());
    const QString whole = wordsOf(element);
    // A text that stands between its elements has no parts that are whole.
    if (!parts.isEmpty() && element.text().size() == inParts) {
        return parts.join(QStringLiteral(", "));
    }
    return isBareNumber(whole.toStdString()) ? QString() : whole.simplified();
}

std::vector<TextPiece> textPieces(XmlElement element, std::initializer_list<std::string_view> names) {
    const QString whole = element.text();
    std::vector<TextPiece> pieces;
    qsizetype from = 0;
    for (XmlElement it = element.firstElement(); !it.isNull(); it = it.nextElement()) {
        const QString text = isOneOf(it, names) ? it.text() : QString();
        if (const qsizetype at = whole.indexOf(text, from); at >= 0 && !text.isEmpty()) {
            pieces.push_back({whole.mid(from, at - from), false});
            pieces.push_back({text, true});
            from = at + text.size();
        }
    }
    pieces.push_back({whole.mid(from), false});
    return pieces;
}

bool saysMore(XmlElement element, std::initializer_list<std::string_view> names) {
    std::string buffer;
    std::size_t said = 0;
    for (XmlElement it = element.firstElement(); !it.isNull(); it = it.nextElement()) {
        said += isOneOf(it, names) ? it.text(buffer).size() : 0;
    }
    return element.text(buffer).size() != said;
}

QString ownWords(XmlElement element) {
    QStringList own;
    if (saysMore(element)) {
        for (const TextPiece& piece : textPieces(element)) {
            own.append(piece.isOfChild ? QString() : piece.text);
        }
    }
    return own.join(u' ').simplified();
}

LostNames::Words* LostNames::of(std::string_view name) {
    constexpr std::size_t mostNames = 1000;
    const auto known = names_.find(name);
    if (known != names_.end()) {
        return &known->second;
    }
    return names_.size() < mostNames ? &names_[std::string(name)] : nullptr;
}

void LostNames::add(std::string_view name, XmlElement element) {
    const std::string_view text = element.text(buffer_);
    Words* words = of(name);
    if (words && !isBareNumber(text) && words->seen.emplace(text).second) {
        if (const QString spoken = spokenWords(element); !spoken.isEmpty()) {
            words->inOrder.append(spoken);
        }
    }
}

void LostNames::tell(FoundDive& found, const QString& prefix) const {
    for (const auto& [name, words] : names_) {
        const QString lost = prefix + QString::fromStdString(name);
        found.lose(lost);
        for (const QString& spoken : words.inOrder) {
            found.lose(lost, spoken);
        }
    }
}

void loseUnreadChildren(FoundDive& found, XmlElement parent, const QString& prefix,
                        std::initializer_list<std::string_view> read) {
    LostNames lost;
    for (XmlElement it = parent.firstElement(); !it.isNull(); it = it.nextElement()) {
        const bool isRead =
            std::any_of(read.begin(), read.end(), [&](std::string_view name) { return isNamed(it, name); });
        if (!isRead && (!wordsOf(it).isEmpty() || it.hasAttributes())) {
            lost.add(it.name(), it);
        }
    }
    lost.tell(found, prefix);
}

void loseUnread(FoundDive& found, XmlElement parent, const QString& prefix,
                std::initializer_list<std::string_view> read) {
    loseUnreadChildren(found, parent, prefix, read);
    if (const QString own = ownWords(parent); !own.isEmpty()) {
        found.lose(prefix.isEmpty() ? nameOf(parent) : prefix.chopped(1), own);
    }
}

QString nameOf(XmlElement element) {
    return QString::fromUtf8(element.name().data(), static_cast<qsizetype>(element.name().size()));
}

void loseValue(FoundDive& found, XmlElement element, const QString& name) {
    if (const QString words = wordsOf(element); !words.isEmpty() && numberOf(element) != 0.0) {
        found.lose(name, words.simplified());
    }
}

}  // namespace tavrel
