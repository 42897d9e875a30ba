#pragma once

#include "interchange/standard/founddive.h"
#include "interchange/xml/xmltree.h"

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace tavrel {

// What stands in a file and comes into no field, named in the dive so that nothing goes unsaid.

/// What an element says in words: its own text, or those of the elements in it, apart from each other. Empty for a
/// number, which says nothing without its element.
QString spokenWords(XmlElement element);

/// A piece of an element's text: that of a child, or what stands between.
struct TextPiece {
    QString text;
    bool isOfChild;
};
/// An element's text piece by piece, those of the children of these names or, without any, of all.
std::vector<TextPiece> textPieces(XmlElement element, std::initializer_list<std::string_view> names = {});
/// Whether it says more than these children do.
bool saysMore(XmlElement element, std::initializer_list<std::string_view> names = {});
/// What stands directly in an element, outside of those in it.
QString ownWords(XmlElement element);

/// Names of what is lost, each once with all that it says, for what may come a million times.
class LostNames {
public:
    void add(std::string_view name) { of(name); }
    /// With the words of the element.
    void add(std::string_view name, XmlElement element);
    void tell(FoundDive& found, const QString& prefix) const;

private:
    struct Words {
        std::unordered_set<std::string> seen;
        QStringList inOrder;
    };
    /// Null for a name beyond the most that anyone reads.
    Words* of(std::string_view name);

    std::map<std::string, Words, std::less<>> names_;
    std::string buffer_;
};

/// Names the children of an element that nothing reads, case aside; one without a text or attributes has nothing to
/// lose.
void loseUnreadChildren(FoundDive& found, XmlElement parent, const QString& prefix,
                        std::initializer_list<std::string_view> read);
/// The same, and the words that stand directly in the element, as the prefix without the stroke behind it.
void loseUnread(FoundDive& found, XmlElement parent, const QString& prefix,
                std::initializer_list<std::string_view> read);
/// Its name as it stands in the file.
QString nameOf(XmlElement element);
/// Names an element that was read but not understood, with its words; nothing and 0 stand for none.
void loseValue(FoundDive& found, XmlElement element, const QString& name);

}  // namespace tavrel
