#include "divelist.h"

#include "base/numbers.h"

#include <map>

namespace tavrel {

namespace {

/// The numbers of words such as "12:30.5" or "12-14", in pairs; empty when a word has not two.
std::vector<std::pair<double, double>> pairsOf(const QStringList& words, QChar separator) {
    std::vector<std::pair<double, double>> pairs;
    for (const QString& word : words) {
        const QStringList parts = word.split(separator);
        bool first = false;
        bool second = false;
        pairs.emplace_back(parts.value(0).toDouble(&first), parts.value(1).toDouble(&second));
        if (!first || !second || parts.size() != 2) {
            return {};
        }
    }
    return pairs;
}

class Reader {
public:
    explicit Reader(const QString& list) : lines_(list.split(u'\n')) {}

    Expected<std::vector<ListedDive>> read() {
        for (qsizetype line = 0; line < lines_.size(); ++line) {
            const QString text = lines_[line].trimmed();
            if (text.isEmpty()) {
                endBlock();
            } else if (!text.startsWith(u'#') && !take(text)) {
                return failure(QStringLiteral("The list of dives cannot be read."),
                               QStringLiteral("line %1").arg(line + 1));
            }
        }
        endBlock();
        return std::move(dives_);
    }

private:
    void endBlock() {
        if (!set_.isEmpty()) {
            sets_[set_] = dive_.entries;
        } else if (!dive_.entries.empty()) {
            dives_.push_back(std::move(dive_));
        }
        set_.clear();
        dive_ = {};
    }

    void enter(const QString& field, const QString& value) { dive_.entries.emplace_back(field, value); }

    bool take(const QString& line) {
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            set_ = line.mid(1, line.size() - 2);
            return true;
        }
        const auto equals = line.indexOf(u'=');
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        if (equals > 0 && !line.left(equals).contains(u' ')) {
            enter(line.left(equals), line.mid(equals + 1).replace(QStringLiteral("\\n"), QStringLiteral("\n")));
            return true;
        }
        return takeWord(words.front(), words.mid(1));
    }

    bool takeWord(const QString& word, const QStringList& rest) {
        if (word == u"use") {
            const auto found = sets_.find(rest.join(u' '));
            if (found != sets_.end()) {
                dive_.entries.insert(dive_.entries.end(), found->second.begin(), found->second.end());
            }
            return found != sets_.end();
        }
        if (word == u"stop") {
            return rest.size() >= 4 && takeStop(rest);
        }
        if (word == u"course") {
            return takeCourse(pairsOf(rest, u':'));
        }
        if (!dive_.shape) {
            return false;
        }
        const auto pairs =
            word == u"pressure" ? pairsOf({rest.join(u'-')}, u'-') : pairsOf(rest, word == u"gas" ? u':' : u'-');
        for (const auto& [first, second] : pairs) {
            if (word == u"gas") {
                dive_.shape->switches.push_back({first, static_cast<int>(second)});
            } else if (word == u"ceiling") {
                dive_.shape->ceilingViolations.push_back({first, second});
            } else if (word == u"pressure") {
                dive_.shape->startPressure = first;
                dive_.shape->endPressure = second;
            } else {
                return false;
            }
        }
        return !pairs.empty();
    }

    bool takeStop(const QStringList& words) {
        const QString& level = words[0];
        enter(QStringLiteral("deco_Level_%1_sw").arg(level), QStringLiteral("1"));
        enter(QStringLiteral("decoDepth_Level_") + level, words[1]);
        enter(QStringLiteral("decoTime_Level_") + level, words[2]);
        enter(QStringLiteral("decoO2_Level_") + level, words[3]);
        enter(QStringLiteral("decoHe_Level_") + level, words.value(4, QStringLiteral("0")));
        return true;
    }

    bool takeCourse(const std::vector<std::pair<double, double>>& pairs) {
        if (pairs.size() < 2) {
            return false;
        }
        dive_.shape.emplace();
        for (const auto& [minute, depth] : pairs) {
            dive_.shape->points.push_back({minute, depth});
        }
        enter(QStringLiteral("profondeur"), shortestText(dive_.shape->maximumDepth()));
        enter(QStringLiteral("temps"), QString::number(static_cast<int>(dive_.shape->minutes())));
        return true;
    }

    QStringList lines_;
    QString set_;
    ListedDive dive_;
    std::map<QString, std::vector<std::pair<QString, QString>>> sets_;
    std::vector<ListedDive> dives_;
};

}  // namespace

Expected<std::vector<ListedDive>> readDiveList(const QString& list) {
    return Reader(list).read();
}

}  // namespace tavrel
