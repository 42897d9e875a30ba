#pragma once

#include "archive/typedstreamscanner.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tavrel {

/// An object of a typed stream with all that it holds, whatever its class, so that it can be written again as it was.
/// Objects name each other by their place in the list, so that one may stand in several places and refer back; the
/// first is the outermost.
struct StoredObject {
    struct Class {
        QByteArray name;
        std::int64_t version = 0;
        friend bool operator==(const Class&, const Class&) = default;
    };
    using Chain = std::vector<Class>;  ///< from the class itself up to the root

    static constexpr char rawBytes = 'r';

    /// A value under its type code; one of rawBytes for a block of them.
    struct Value {
        char code = '@';
        std::int64_t integer = -1;  ///< of "@": the place of the object, -1 for nil
        double real = 0;
        QByteArray bytes = {};  ///< of texts (null for nil) and raw bytes
        Chain chain = {};       ///< of "#"; none for nil
        friend bool operator==(const Value&, const Value&) = default;
    };
    struct Group {
        QByteArray types;
        std::vector<Value> values;  ///< those within arrays and structures in one row
        friend bool operator==(const Group&, const Group&) = default;
    };
    struct Node {
        Chain chain;
        std::vector<Group> groups = {};
        friend bool operator==(const Node&, const Node&) = default;
    };

    std::vector<Node> nodes;
    friend bool operator==(const StoredObject&, const StoredObject&) = default;
};

using StoredPointer = std::shared_ptr<const StoredObject>;

/// Reads whole objects of a stream, and remembers them, since later ones may refer to them.
class StoredObjectReader {
public:
    /// The text that an object of another reader's holds; nothing when it is none.
    using TextOf = std::function<std::optional<QByteArray>(std::size_t number)>;

    explicit StoredObjectReader(TypedStreamScanner& scanner, TextOf textOf = {});

    /// Reads the object that follows, a literal. What it refers to outside of it and of the objects read before, texts
    /// aside, becomes nil. Null when the stream is damaged, which the scanner tells.
    StoredPointer read();

private:
    struct Handler;
    struct Place {
        StoredPointer object;
        std::size_t node;
    };

    std::int64_t readNode();
    std::int64_t placeOf(std::size_t number);
    std::int64_t copied(const Place& known);
    std::int64_t newNode(StoredObject::Chain chain);
    StoredObject::Chain chainOf(std::int32_t classIndex) const;

    TypedStreamScanner& scanner_;
    TextOf textOf_;
    std::size_t bytesToCopy_;
    int depth_ = 0;
    std::shared_ptr<StoredObject> current_;
    std::map<std::size_t, std::int64_t> places_;  ///< in the current object, of objects by their number
    std::map<std::pair<const StoredObject*, std::size_t>, std::int64_t> copies_;
    std::map<std::size_t, Place> known_;
};

/// The object alone as a typed stream, and back; null when that is none.
QByteArray streamOf(const StoredObject& object);
StoredPointer storedObjectOf(QByteArrayView stream);

}  // namespace tavrel
