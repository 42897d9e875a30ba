#pragma once

#include <QString>

#include <functional>
#include <string>
#include <string_view>

namespace tavrel {

/// Writes JSON on one line, members in the order in which they come. The caller keeps the nesting right.
class JsonWriter {
public:
    /// Takes the text piece by piece as it grows.
    using Sink = std::function<void(std::string_view)>;

    /// Without a sink the whole text is kept.
    explicit JsonWriter(Sink sink = {}) : sink_(std::move(sink)) {}

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    void key(QStringView name);

    void value(bool value) { append(value ? "true" : "false"); }
    void value(int value) { append(std::to_string(value)); }
    void value(qint64 value) { append(std::to_string(value)); }
    void value(quint64 value) { append(std::to_string(value)); }
    /// The shortest decimal that restores the number; "nan", "inf" and "-inf" as texts.
    void value(double value);
    void value(float value);
    void value(const QString& text);
    void value(const char* text) = delete;
    void null() { append("null"); }

    template <class Value>
    void member(QStringView name, const Value& itsValue) {
        key(name);
        value(itsValue);
    }

    /// What the sink has not taken yet; without one everything.
    const std::string& text() const { return text_; }
    /// Hands the rest to the sink.
    void flush();

private:
    void begin(char bracket);
    void end(char bracket);
    template <class Real>
    void appendReal(Real value);
    void append(std::string_view value);
    void separate();
    void appendQuoted(QStringView text);

    Sink sink_;
    std::string text_;
    bool first_ = true;  ///< nothing stands before the next value in its object or array
};

}  // namespace tavrel
