#include "interchange/standard/unread.h"

#include "interchange/standard/filevalues.h"

#include <algorithm>

namespace tavrel {

namespace {

bool isBareNumber(std::string_view text) {
    return text.find_first_not_of("0123456789.,+-eE") == std::string_view::npos;
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
        found.lose(prefix + QString::fromStdString(name), words.inOrder.join(u'\n'));
    }
}

void loseUnread(FoundDive& found, XmlElement parent, const QString& prefix,
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

void loseValue(FoundDive& found, XmlElement element, const QString& name) {
    if (const QString words = wordsOf(element); !words.isEmpty() && numberOf(element) != 0.0) {
        found.lose(name, words.simplified());
    }
}

}  // namespace tavrel
