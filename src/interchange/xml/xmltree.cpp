#include "interchange/xml/xmltree.h"

#include "base/texts.h"
#include "interchange/xml/xmlencoding.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace tavrel {

namespace {

using Node = XmlNodes::Node;
constexpr std::uint32_t none = XmlNodes::none;

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// Attributes reach the events with an ampersand still written as a reference.
void appendDecoded(std::string& text, std::string_view value) {
    constexpr std::string_view reference = "&#38;";
    for (std::size_t found = value.find(reference); found != std::string_view::npos; found = value.find(reference)) {
        text += value.substr(0, found + 1);
        value.remove_prefix(found + reference.size());
    }
    text += value;
}

/// Builds the nodes from the parser's events.
class Builder {
public:
    explicit Builder(XmlNodes& tree) : tree_(tree) {}

    /// The plain name is that without a prefix; it lives as long as the builder.
    void begin(const char* name, const char* plainName) {
        if (!open_.empty()) {
            endRun(true);
        }
        const std::uint32_t index = append({name, none, none, none, 0, tree_.texts.size()});
        open_.push_back({index, none, plainName});
    }

    std::size_t levels() const { return open_.size(); }
    /// The plain name of the innermost open element; there is one.
    const char* innermost() const { return open_.back().name; }

    /// How many elements are open in the innermost open one of this plain name; 0 when there is none.
    template <class IsNamed>
    std::size_t levelsWithin(IsNamed isNamed) const {
        const auto its = std::find_if(open_.rbegin(), open_.rend(), [&](const Open& it) { return isNamed(it.name); });
        return its == open_.rend() ? 0 : static_cast<std::size_t>(its - open_.rbegin());
    }

    /// Of the element that began last.
    void attribute(const char* name, std::string_view value) {
        const auto element = static_cast<std::uint32_t>(tree_.nodes.size() - 1);
        const std::size_t offset = tree_.texts.size();
        appendDecoded(tree_.texts, value);
        tree_.attributes.push_back({name, element, static_cast<std::uint32_t>(tree_.texts.size() - offset), offset});
    }

    void text(std::string_view piece) {
        if (open_.empty()) {
            return;
        }
        if (!inRun_) {
            runStart_ = tree_.texts.size();
            inRun_ = true;
        }
        tree_.texts += piece;
    }

    void end() {
        if (!open_.empty()) {
            endRun(false);
            open_.pop_back();
        }
    }

    /// Ends the innermost open element of this plain name, with all that is open in it; nothing when there is none.
    template <class IsNamed>
    void endNamed(IsNamed isNamed) {
        const auto its = std::find_if(open_.rbegin(), open_.rend(), [&](const Open& it) { return isNamed(it.name); });
        for (auto levels = its == open_.rend() ? 0 : its - open_.rbegin() + 1; levels > 0; --levels) {
            end();
        }
    }

    /// Ends what a truncated file leaves open.
    void endAll() {
        while (!open_.empty()) {
            end();
        }
    }

private:
    struct Open {
        std::uint32_t index;
        std::uint32_t lastChild;
        const char* name;  ///< without a prefix
    };

    std::uint32_t append(const Node& node) {
        const auto index = static_cast<std::uint32_t>(tree_.nodes.size());
        tree_.nodes.push_back(node);
        if (!open_.empty()) {
            Open& parent = open_.back();
            tree_.nodes.back().parent = parent.index;
            (parent.lastChild == none ? tree_.nodes[parent.index].first : tree_.nodes[parent.lastChild].next) = index;
            parent.lastChild = index;
        }
        return index;
    }

    /// Gives the text that has come in a row to its element, as a node of its own beside elements.
    void endRun(bool elementFollows) {
        if (!inRun_) {
            return;
        }
        inRun_ = false;
        const bool besideElements = elementFollows || open_.back().lastChild != none;
        const std::size_t length = tree_.texts.size() - runStart_;
        if (besideElements && isBlank(std::string_view(tree_.texts).substr(runStart_))) {
            tree_.texts.resize(runStart_);
        } else if (besideElements) {
            append({nullptr, none, none, none, static_cast<std::uint32_t>(length), runStart_});
        } else {
            tree_.nodes[open_.back().index].offset = runStart_;
            tree_.nodes[open_.back().index].length = static_cast<std::uint32_t>(length);
        }
    }

    XmlNodes& tree_;
    std::vector<Open> open_;
    std::size_t runStart_ = 0;
    bool inRun_ = false;
};

// What no dive file comes near, though the parser can take it, at a cost that grows with the square.
constexpr int mostAttributes = 1000;  ///< of an element
constexpr int mostNamespaces = 250;   ///< in force at one place
constexpr std::size_t mostElements = 32'000'000;
constexpr std::size_t mostLevels = 256;  ///< the parser's own, which what a mended file leaves open may pass
constexpr qsizetype mostStrayEnds = 100'000;
constexpr std::size_t mostDeclarations = 1000;
constexpr std::size_t mostDeclaredAttributes = 32;

/// How a file is gone through: as the parser takes it, or by the names of its end tags up to the first damage, and then
/// once more beyond it.
enum class Pass { plain, sound, mending };

/// What the parser's events need while it runs.
struct Reading {
    const Progress& progress;
    Pass pass;
    std::size_t size;                  ///< of all pieces
    std::span<QByteArrayView> pieces;  ///< of the file, what is left of them
    std::size_t levelsBeforeRoot;      ///< elements that only the parser has open
    xmlParserCtxtPtr parser;
    Builder builder;
    XmlMarkup markup;
    std::size_t done = 0;
    qint64 rootEnds = 0;  ///< where the root's start tag ends, bytes
    const xmlChar* rootName = nullptr;
    const xmlChar* rootNamespace = nullptr;
    const xmlChar* rootPrefix = nullptr;
    std::size_t elements = 0;
    std::size_t declarations = 0;
    std::size_t declaredAttributes = 0;
    std::size_t entityBytes = 0;
    bool cancelled = false;
    bool limit = false;
    QString firstError = {};
    QString damage = {};
    std::string endTag = {};  ///< that does not end the element open last; without a prefix
};

constexpr int partsOfAttribute = 5;  // name, prefix, namespace, start and end of the value

/// How many bytes of entities a file may have gone through: more than any that means well, few enough to be quick.
std::size_t entityAllowance(std::size_t fileSize) {
    return 1'000'000 + 5 * fileSize;
}

constexpr QByteArrayView levelBeforeRoot = "<x>";

/// The reading of the file; null for the contents of an entity, which the parser only checks.
Reading* reading(void* context) {
    auto* parser = static_cast<xmlParserCtxtPtr>(context);
    auto* state = static_cast<Reading*>(parser->_private);
    return state->parser == parser ? state : nullptr;
}

void stopBeyondLimits(Reading& state) {
    state.limit = true;
    xmlStopParser(state.parser);
}

/// Hands the parser its next bytes. It comes here from within an element's start, too, whose attributes it compares
/// with each other only when it has them all.
int readBytes(void* context, char* buffer, int length) {
    auto& state = *static_cast<Reading*>(context);
    // Five entries for an attribute, two for a namespace; the lists grow by doubling.
    if (state.parser->maxatts > 2 * 5 * mostAttributes || state.parser->nsMax > 2 * 2 * mostNamespaces) {
        state.limit = true;
    }
    constexpr std::size_t step = 1 << 16;
    if (state.progress && state.done / step != (state.done + static_cast<std::size_t>(length)) / step &&
        !state.progress(state.done, state.size)) {
        state.cancelled = true;
    }
    const bool isKnownDamaged = state.pass == Pass::sound && state.elements > 0 && !state.damage.isEmpty();
    while (!state.pieces.empty() && state.pieces.front().isEmpty()) {
        state.pieces = state.pieces.subspan(1);
    }
    if (state.limit || state.cancelled || isKnownDamaged || state.pieces.empty()) {
        return 0;
    }
    QByteArrayView& piece = state.pieces.front();
    const qsizetype count = std::min<qsizetype>(length, piece.size());
    std::copy_n(piece.data(), count, buffer);
    piece = piece.sliced(count);
    state.done += static_cast<std::size_t>(count);
    return static_cast<int>(count);
}

bool isCalled(std::string_view name, std::string_view other) {
    const auto size = static_cast<qsizetype>(name.size());
    return name.size() == other.size() && qstrnicmp(name.data(), size, other.data(), size) == 0;
}

/// Ends an element that the one about to begin cannot stand in.
void endNeverNested(Reading& state, std::string_view name) {
    for (const std::string_view single : state.markup.neverNested) {
        if (isCalled(name, single)) {
            state.builder.endNamed([&](const char* open) { return isCalled(open, single); });
        }
    }
}

/// Ends what is open in the only element that the one about to begin can stand in: in a sound file no more than one
/// that stands there, too, and so beside it.
void endMisplaced(Reading& state, std::string_view name) {
    for (const auto& [child, parent] : state.markup.standsIn) {
        if (!isCalled(name, child)) {
            continue;
        }
        const std::string_view its = parent;
        const auto isBeside = [&](const auto& other) {
            return other.second == its && isCalled(state.builder.innermost(), other.first);
        };
        const auto& pairs = state.markup.standsIn;
        std::size_t levels = state.builder.levelsWithin([&](const char* open) { return isCalled(open, its); });
        if (state.pass == Pass::mending || (levels == 1 && std::any_of(pairs.begin(), pairs.end(), isBeside))) {
            for (; levels > 0; --levels) {
                state.builder.end();
            }
        }
    }
}

void startElement(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int, const xmlChar**,
                  int attributes, int, const xmlChar** attribute) {
    Reading* state = reading(context);
    if (!state) {
        return;
    }
    if (state->levelsBeforeRoot > 0) {
        --state->levelsBeforeRoot;
        return;
    }
    const bool isTooDeep = state->markup.mended && state->builder.levels() > mostLevels;
    if (++state->elements > mostElements || attributes > mostAttributes || state->parser->nsNr > 2 * mostNamespaces ||
        isTooDeep) {
        stopBeyondLimits(*state);
        return;
    }
    if (state->elements == 1) {
        state->rootNamespace = uri;
        state->rootPrefix = prefix;
        state->rootName = prefix ? xmlDictQLookup(state->parser->dict, prefix, name) : name;
        state->rootEnds = state->pass == Pass::sound ? xmlByteConsumed(state->parser) : 0;
    } else if (state->builder.levels() == 0) {
        return;  // behind the root, which a mended file may end more than once
    }
    // Names and namespaces are of the parser's dictionary: equal ones are one pointer. A prefix that the root does not
    // declare, or whose declaration the parser has left behind in a damaged file, is the root's own.
    const bool isRoots = uri ? uri == state->rootNamespace : prefix == state->rootPrefix;
    const bool plain = !prefix || (state->markup.plainNames && isRoots);
    const xmlChar* whole = plain ? name : xmlDictQLookup(state->parser->dict, prefix, name);
    const auto* plainName = reinterpret_cast<const char*>(name);
    endNeverNested(*state, plainName);
    endMisplaced(*state, plainName);
    state->builder.begin(reinterpret_cast<const char*>(whole), plainName);
    for (int index = 0; state->markup.attributes && index < attributes; ++index, attribute += partsOfAttribute) {
        const auto* value = reinterpret_cast<const char*>(attribute[3]);
        const auto length = static_cast<std::size_t>(attribute[4] - attribute[3]);
        state->builder.attribute(reinterpret_cast<const char*>(attribute[0]), {value, length});
    }
}

void endElement(void* context, const xmlChar* name, const xmlChar*, const xmlChar*) {
    Reading* state = reading(context);
    if (!state) {
        return;
    }
    if (!state->markup.mended) {
        state->builder.end();
        return;
    }
    // What the parser takes for the end of its innermost element may be that of another.
    const std::string other = std::exchange(state->endTag, {});
    const std::string_view ended = other.empty() ? reinterpret_cast<const char*>(name) : std::string_view(other);
    state->builder.endNamed([&](const char* open) { return isCalled(open, ended); });
}

void characters(void* context, const xmlChar* text, int length) {
    if (Reading* state = reading(context)) {
        state->builder.text({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
    }
}

/// The entity unless it ends the reading: its text counts at each reference, since the parser goes through it every
/// time, if only to check it, and its own limits overlook a long entity that is named often.
xmlEntityPtr counted(void* context, xmlEntityPtr entity, bool endless) {
    auto* parser = static_cast<xmlParserCtxtPtr>(context);
    auto& state = *static_cast<Reading*>(parser->_private);
    state.entityBytes += static_cast<std::size_t>(std::max(0, entity->length));
    if (!endless && state.entityBytes <= entityAllowance(state.size)) {
        return entity;
    }
    stopBeyondLimits(state);
    return nullptr;
}

xmlEntityPtr entityNamed(void* context, const xmlChar* name) {
    const xmlEntityPtr entity = xmlSAX2GetEntity(context, name);
    const bool ownText = entity && entity->etype != XML_INTERNAL_PREDEFINED_ENTITY;
    return ownText ? counted(context, entity, false) : entity;
}

/// Parameter entities, which the parser would expand, stay unresolved like the others. Those that name further ones
/// end the reading: they serve to multiply each other, and libxml2 2.9 can loop for ever over them.
xmlEntityPtr parameterEntityNamed(void* context, const xmlChar* name) {
    if (const xmlEntityPtr entity = xmlSAX2GetParameterEntity(context, name)) {
        counted(context, entity, xmlStrchr(entity->content, '%') != nullptr);
    }
    return nullptr;
}

/// Whether one more declaration may be heard.
bool mayDeclare(void* context) {
    auto& state = *static_cast<Reading*>(static_cast<xmlParserCtxtPtr>(context)->_private);
    if (++state.declarations <= mostDeclarations) {
        return true;
    }
    stopBeyondLimits(state);
    return false;
}

void declareEntity(void* context, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                   xmlChar* content) {
    if (mayDeclare(context)) {
        xmlSAX2EntityDecl(context, name, type, publicId, systemId, content);
    }
}

/// Attributes mean nothing here; declared ones would only be added to every element.
void declareAttribute(void* context, const xmlChar*, const xmlChar*, int, int, const xmlChar*,
                      xmlEnumerationPtr values) {
    xmlFreeEnumeration(values);
    auto& state = *static_cast<Reading*>(static_cast<xmlParserCtxtPtr>(context)->_private);
    if (++state.declaredAttributes > mostDeclaredAttributes) {
        stopBeyondLimits(state);
    }
}

void declareElement(void* context, const xmlChar*, int, xmlElementContentPtr) {
    mayDeclare(context);
}

void declareNotation(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
    mayDeclare(context);
}

void declareUnparsedEntity(void* context, const xmlChar*, const xmlChar*, const xmlChar*, const xmlChar*) {
    mayDeclare(context);
}

/// Errors of the parser behind which nothing is missing.
bool isHarmless(int code) {
    // Text that is no UTF-8 stays as it is, and the declaration is known behind blanks, too.
    return code == XML_ERR_INVALID_ENCODING || code == XML_ERR_RESERVED_XML_NAME;
}

void noteError(void* context, xmlErrorPtr error) {
    auto& state = *static_cast<Reading*>(static_cast<xmlParserCtxtPtr>(context)->_private);
    if (error->level == XML_ERR_FATAL && state.damage.isEmpty() && !isHarmless(error->code)) {
        state.damage = QStringLiteral("%1:%2").arg(error->line).arg(error->int2);
    }
    if (error->code == XML_ERR_TAG_NAME_MISMATCH && error->str2 && context == state.parser) {
        const std::string_view name = error->str2;
        state.endTag = name.substr(name.find(':') + 1);
    }
    state.limit = state.limit || error->code == XML_ERR_ENTITY_LOOP || error->code == XML_ERR_NO_MEMORY;
    if (state.firstError.isEmpty() && error->message) {
        state.firstError = QString::fromUtf8(error->message).trimmed();
        if (error->line > 0) {
            state.firstError += QStringLiteral(", %1:%2").arg(error->line).arg(error->int2);
        }
    }
}

/// The parser's events come to the builder. Entities stay with libxml2 as well, which needs them to watch their use;
/// other declarations are counted and forgotten.
void listen(xmlSAXHandler& events) {
    events.startElementNs = startElement;
    events.endElementNs = endElement;
    events.characters = characters;
    events.ignorableWhitespace = characters;
    events.cdataBlock = characters;
    events.getEntity = entityNamed;
    events.getParameterEntity = parameterEntityNamed;
    events.entityDecl = declareEntity;
    events.attributeDecl = declareAttribute;
    events.elementDecl = declareElement;
    events.notationDecl = declareNotation;
    events.unparsedEntityDecl = declareUnparsedEntity;
    events.reference = nullptr;
    events.comment = nullptr;
    events.processingInstruction = nullptr;
    events.serror = noteError;
}

/// While it lives the library prints nothing of its own, as it would about characters that it cannot convert.
class Silence {
public:
    Silence() : handler_(xmlStructuredError), context_(xmlStructuredErrorContext) {
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    }
    ~Silence() { xmlSetStructuredErrorFunc(context_, handler_); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    xmlStructuredErrorFunc handler_;
    void* context_;
};

struct FreeParser {
    void operator()(xmlParserCtxt* parser) const {
        xmlFreeDoc(parser->myDoc);
        xmlFreeParserCtxt(parser);
    }
};

/// What a pass tells of the file's bytes.
struct PassEnd {
    qsizetype root = 0;  ///< where the root begins
    std::size_t done = 0;
};

QByteArrayView upTo(QByteArrayView bytes, qint64 end) {
    return bytes.first(std::clamp<qsizetype>(end, 0, bytes.size()));
}

}  // namespace

/// Goes through a file once.
struct XmlTree::Parsing {
    static Expected<XmlTree> run(Pass pass, QByteArrayView bytes, const Progress& progress, const XmlMarkup& markup,
                                 PassEnd& end);
};

void XmlTree::Free::operator()(void* names) const {
    xmlDictFree(static_cast<xmlDictPtr>(names));
}

void XmlTree::lowerNames() {
    const auto isUpper = [](char sign) { return sign >= 'A' && sign <= 'Z'; };
    const auto lower = [&](const char*& name) {
        const std::string_view own = name ? name : "";
        if (std::none_of(own.begin(), own.end(), isUpper)) {
            return;
        }
        std::string lowered(own);
        for (char& sign : lowered) {
            sign = isUpper(sign) ? static_cast<char>(sign - 'A' + 'a') : sign;
        }
        const xmlChar* kept =
            xmlDictLookup(static_cast<xmlDictPtr>(names_.get()), reinterpret_cast<const xmlChar*>(lowered.c_str()), -1);
        name = kept ? reinterpret_cast<const char*>(kept) : name;
    };
    for (XmlNodes::Node& node : nodes_->nodes) {
        lower(node.name);
    }
    for (XmlNodes::Attribute& attribute : nodes_->attributes) {
        lower(attribute.name);
    }
}

Expected<XmlTree> XmlTree::parse(QByteArrayView bytes, const Progress& progress, XmlMarkup markup) {
    PassEnd end;
    if (!markup.mended) {
        return Parsing::run(Pass::plain, bytes, progress, markup, end);
    }
    const auto converted = xmlInUtf8(bytes);
    const QByteArrayView text = converted ? QByteArrayView(*converted) : bytes;
    auto sound = Parsing::run(Pass::sound, text, progress, markup, end);
    if (!sound || sound->damage_.isEmpty()) {
        return sound;
    }
    sound->nodes_.reset();  // makes room
    const auto size = static_cast<std::size_t>(text.size());
    const Progress goOn = [&, reached = std::min(end.done, size)](std::size_t done, std::size_t) {
        return progress(std::clamp(done, reached, size), size);
    };
    auto mended = Parsing::run(Pass::mending, text, progress ? goOn : progress, markup, end);
    if (mended) {
        mended->damage_ = sound->damage_;
    }
    return mended;
}

Expected<XmlTree> XmlTree::Parsing::run(Pass pass, QByteArrayView bytes, const Progress& progress,
                                        const XmlMarkup& markup, PassEnd& end) {
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(xmlNewParserCtxt());
    if (bytes.size() > std::numeric_limits<int>::max() || !parser) {
        return failure(text("Main", "XML file too large"));
    }
    XmlTree tree;
    xmlDictReference(parser->dict);
    tree.names_.reset(parser->dict);

    // Each end tag too many closes one of the parser's own levels, and with the last of them the file: it gets as many
    // more as it may need.
    const bool mends = pass == Pass::mending;
    const qsizetype levels = mends ? std::min(bytes.count("</"), mostStrayEnds) : 0;
    const QByteArray before = levelBeforeRoot.toByteArray().repeated(levels);
    std::array<QByteArrayView, 3> pieces{bytes.first(mends ? end.root : 0), before, bytes.sliced(mends ? end.root : 0)};
    Reading state{progress,
                  pass,
                  static_cast<std::size_t>(bytes.size() + before.size()),
                  pieces,
                  static_cast<std::size_t>(levels),
                  parser.get(),
                  Builder(*tree.nodes_),
                  markup};
    const Silence silence;
    parser->_private = &state;
    listen(*parser->sax);
    // Without XML_PARSE_NOENT and XML_PARSE_DTDLOAD nothing is resolved. XML_PARSE_HUGE lifts the parser's limits, of
    // which those that keep the reading short are held here as well.
    const int options = XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING |
                        (pass == Pass::plain ? 0 : XML_PARSE_IGNORE_ENC) | (mends ? XML_PARSE_HUGE : 0);
    parser->myDoc = xmlCtxtReadIO(parser.get(), readBytes, nullptr, &state, nullptr, nullptr, options);
    state.builder.endAll();
    if (state.cancelled) {
        return failure(text("Main", "Cancelled"));
    }
    // A parser that recovers from errors disables its events only when it gives up.
    if (state.limit || parser->disableSAX != 0) {
        return failure(text("Main", "XML file beyond limits"), state.firstError);
    }
    if (tree.root().isNull()) {
        return failure(text("Main", "XML file without elements"), state.firstError);
    }
    const QByteArray rootTag = QByteArray("<") + reinterpret_cast<const char*>(state.rootName);
    end = {std::max<qsizetype>(0, upTo(bytes, state.rootEnds).lastIndexOf(rootTag)), state.done};
    tree.damage_ = state.damage;
    return tree;
}

}  // namespace tavrel
