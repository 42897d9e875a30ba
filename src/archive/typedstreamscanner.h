#pragma once

#include "archive/typedstreamfault.h"
#include "archive/typedstreamobjects.h"
#include "archive/typedstreamtags.h"

#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tavrel {

/// The kinds of object that the reader decodes, found by walking an object's superclass chain.
enum class ValueClass : std::uint8_t { other, array, text, date, number, color, image, bitmap, record };

/// A class of the stream. Superclasses are named by their index; the root class has none (-1).
struct StreamClass {
    std::string_view name;
    std::int64_t version = 0;
    std::int32_t superclass = -1;
    ValueClass kind = ValueClass::other;
    std::int16_t chainLength = 1;  ///< classes from this one up to the root
    bool complete = false;         ///< its superclasses are known
};

/// The head of an object value.
struct ObjectHead {
    enum Form : std::uint8_t { nil, reference, literal } form = nil;
    std::size_t number = 0;       ///< of a reference or literal
    std::int32_t classIndex = 0;  ///< of a literal
};

/// The words of a typed stream: numbers, strings, references, classes and heads of objects, with the two tables that
/// references count in. The first fault sticks: everything read after it is zero, nil or at its end, so a caller may
/// read on for a while and look at ok() where it matters.
class TypedStreamScanner {
public:
    /// Objects nested deeper than this, and longer chains of superclasses, are refused.
    static constexpr int maximumDepth = 256;
    static constexpr int maximumChain = 64;

    /// Records are the objects of the class recordClass and its subclasses.
    explicit TypedStreamScanner(QByteArrayView bytes, std::string_view recordClass = {});

    std::string_view recordClass() const { return recordClass_; }

    void readHeader();
    bool isLittleEndian() const { return littleEndian_; }
    std::int64_t systemVersion() const { return systemVersion_; }

    bool ok() const { return !fault_; }
    Failure failure() const;
    void fail(StreamFault fault, std::size_t offset, const QString& what = {});
    void fail(StreamFault fault) { fail(fault, offset()); }

    /// Counts work that the bytes cause beside being read: steps through a type encoding, characters and numbers of
    /// what is met again by a reference. Fails beyond a bound that no file of a program comes near.
    void spend(std::size_t effort) {
        effort_ += effort;
        if (effort_ > effortAllowed_) {
            fail(StreamFault::tooMuch);
        }
    }

    std::size_t offset() const { return static_cast<std::size_t>(position_ - begin_); }
    std::size_t bytesLeft() const { return static_cast<std::size_t>(end_ - position_); }
    bool atEnd() const { return position_ == end_; }

    /// An integer after its head; the unsigned form reads the same bytes as a number without sign.
    std::int64_t readSigned();
    std::uint64_t readUnsigned();
    /// An integer of the type code, raw for c, C and B; must fit the code's width.
    std::int64_t readInteger(char code);
    float readFloat();
    double readDouble();

    /// An unshared string; null data for nil.
    std::string_view readUnsharedString();
    /// Index of a shared string, nil as -1.
    std::int64_t readSharedString();
    std::string_view sharedString(std::int64_t index) const;
    /// The type encoding of a group.
    std::string_view readType();
    /// Its type code, when it has a single one; 0 for any longer encoding.
    char readTypeCode();
    /// A C string; null data for nil.
    std::string_view readCString();
    std::string_view readRaw(std::size_t count);

    /// Takes an integer of type 'i' in a group of its own when both take one byte, as most do; nothing when they do
    /// not.
    std::optional<std::int32_t> takeSmallInteger();
    /// Takes nil in a group of type "@"; whether it stood there.
    bool takeNil();
    /// Whether something new follows, rather than nil or a reference.
    bool nextIsLiteral() const { return position_ != end_ && *position_ == streamtags::literal; }

    /// Index of a class, nil as -1.
    std::int32_t readClass();
    const StreamClass& classAt(std::int32_t index) const { return classes_[static_cast<std::size_t>(index)]; }
    const std::vector<StreamClass>& classes() const { return classes_; }

    /// The head of an object. A literal has its number when this returns, and its contents follow up to the end mark.
    ObjectHead readObjectHead();
    /// Whether another group of an object follows; false at its end mark, which readObjectEnd then takes.
    bool hasGroup();
    void readObjectEnd();

    /// How many objects, classes and strings were defined so far.
    std::size_t definitions() const { return objects_.size() + strings_.size(); }
    ObjectTable& objects() { return objects_; }
    const ObjectTable& objects() const { return objects_; }
    /// The bytes at an offset that an entry of the object table holds, for reading its number again.
    void seek(std::size_t offset) { position_ = begin_ + offset; }

    /// Where the reading stands, with all that was defined so far.
    struct Mark {
        std::size_t offset, strings, classes, objects;
    };
    Mark mark() const { return {offset(), strings_.size(), classes_.size(), objects_.size()}; }
    /// Goes back to a mark: what was defined since is so no more.
    void rewind(const Mark& mark);

private:
    friend class NumberRun;

    struct SharedString {
        std::string_view text;
        char code;
    };

    // The type code of a group that takes one byte to name it and whose value has begun; 0 for any other.
    char codeOfNext() const {
        const auto index = static_cast<signed char>(*position_) - streamtags::firstReference;
        return index >= 0 && static_cast<std::size_t>(index) < strings_.size()
                   ? strings_[static_cast<std::size_t>(index)].code
                   : '\0';
    }

    std::uint64_t readWord(int bytes);
    std::optional<std::size_t> readReference();
    std::size_t readTypeIndex();
    std::int64_t readTagged(bool asSigned);
    void completeChain(std::size_t firstOfChain);

    const unsigned char* begin_;
    const unsigned char* position_;
    const unsigned char* end_;
    std::string_view recordClass_;
    bool littleEndian_ = true;
    std::int64_t systemVersion_ = 0;
    std::vector<SharedString> strings_;
    std::vector<StreamClass> classes_;
    ObjectTable objects_;
    std::optional<StreamFault> fault_;
    std::size_t faultOffset_ = 0;
    QString faultDetail_;
    std::size_t effort_ = 0;
    std::size_t effortAllowed_;
};

inline std::int64_t TypedStreamScanner::readSigned() {
    if (position_ != end_) {
        const auto head = static_cast<signed char>(*position_);
        if (head >= streamtags::firstReference) {
            ++position_;
            return head;
        }
    }
    return readTagged(true);
}

inline std::size_t TypedStreamScanner::readTypeIndex() {
    if (position_ != end_) {
        const auto number = static_cast<signed char>(*position_) - streamtags::firstReference;
        if (number >= 0 && static_cast<std::size_t>(number) < strings_.size()) {
            ++position_;
            return static_cast<std::size_t>(number);
        }
    }
    const std::int64_t index = readSharedString();
    if (index < 0 && ok()) {
        fail(StreamFault::nilName, offset() - 1);
    }
    return index < 0 ? 0 : static_cast<std::size_t>(index);
}

inline std::string_view TypedStreamScanner::readType() {
    const std::size_t index = readTypeIndex();
    return ok() ? strings_[index].text : std::string_view();
}

inline char TypedStreamScanner::readTypeCode() {
    const std::size_t index = readTypeIndex();
    return ok() ? strings_[index].code : '\0';
}

inline std::optional<std::int32_t> TypedStreamScanner::takeSmallInteger() {
    if (end_ - position_ < 2 || codeOfNext() != 'i') {
        return std::nullopt;
    }
    const auto value = static_cast<signed char>(position_[1]);
    if (value < streamtags::firstReference) {
        return std::nullopt;
    }
    position_ += 2;
    return value;
}

inline bool TypedStreamScanner::takeNil() {
    const bool isNil = end_ - position_ >= 2 && position_[1] == streamtags::nil && codeOfNext() == '@';
    position_ += isNil ? 2 : 0;
    return isNil;
}

inline bool TypedStreamScanner::hasGroup() {
    if (position_ == end_) {
        fail(StreamFault::truncated);
        return false;
    }
    return *position_ != streamtags::end;
}

}  // namespace tavrel
