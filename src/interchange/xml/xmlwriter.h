#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tavrel {

/// A name and its value, in UTF-8.
struct XmlAttribute {
    std::string_view name;
    std::string_view value;
};

/// Writes an XML file element by element: UTF-8 with a declaration, two blanks of indentation for each level, an
/// element's text on one line with its tags, an element without contents as one empty tag. The same bytes as libxml2
/// writes for the same tree, without the tree. Names are ASCII and live as long as the writer; characters that XML
/// cannot hold are left out.
class XmlWriter {
public:
    XmlWriter() = default;

    void begin(std::string_view name, std::initializer_list<XmlAttribute> attributes = {});
    void begin(std::string_view name, std::string_view attribute, std::string_view value) {
        begin(name, {{attribute, value}});
    }
    void end();
    /// An element with text (in UTF-8).
    void element(std::string_view name, std::string_view text);
    void element(std::string_view name, const QString& text);
    /// An element with attributes, and its text if it has one.
    void element(std::string_view name, std::initializer_list<XmlAttribute> attributes, std::string_view text = {});
    /// An element whose text is a number with a fixed count of decimals, or a whole one.
    void decimal(std::string_view name, double value, int decimals);
    void integer(std::string_view name, qint64 value);
    /// A comment, which must not hold two hyphens in a row.
    void comment(std::string_view text);

    /// Ends what is still open; the writer is empty afterwards.
    QByteArray finish();

private:
    void openLine();
    void openTag(std::string_view name, std::initializer_list<XmlAttribute> attributes = {});
    /// The text of the tag just opened, and its end.
    void finishElement(std::string_view name, std::string_view text);
    void closeTag(std::string_view name);

    std::string text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    std::vector<std::string_view> open_;
    bool tagOpen_ = false;  // the start tag of the innermost element still lacks its ">"
};

}  // namespace tavrel
