#pragma once

#include <QString>

#include <string>

namespace tavrel {

/// Writes JSON on one line, members in the order in which they come. The caller keeps the nesting right.
class JsonWriter {
public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    void key(QStringView name);

    void value(bool value) { append(value ? "true" : "false"); }
    void value(int value) { append(std::to_string(value)); }
    void value(qint64 value) { append(std::to_string(value)); }
    /// The shortest decimal that restores the number; "nan", "inf" and "-inf" as texts.
    void value(double value);
    void value(const QString& text);
    void value(const char* text) = delete;
    void null() { append("null"); }

    template <class Value>
    void member(QStringView name, const Value& itsValue) {
        key(name);
        value(itsValue);
    }

    const std::string& text() const { return text_; }

private:
    void begin(char bracket);
    void end(char bracket);
    void append(const std::string& value);
    void separate();
    void appendQuoted(QStringView text);

    std::string text_;
    bool first_ = true;  ///< nothing stands before the next value in its object or array
};

}  // namespace tavrel
