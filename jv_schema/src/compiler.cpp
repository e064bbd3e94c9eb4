#include "jv_schema/compiler.h"

#include "foundation/message.h"
#include "jv/jv_document.h"
#include "jv/jv_pointer.h"
#include "jv_schema/embedded_schemas.h"
#include "jv_schema/keywords/references.h"
#include "jv_schema/messages.h"
#include "jv_schema/uri.h"

#include <algorithm> // std::sort
#include <charconv>  // std::from_chars
#include <utility>   // std::pair

namespace specloom::jv::schema {

namespace {

constexpr std::uint8_t beforeRefHadSiblings = bit(Draft::D4) | bit(Draft::D6) | bit(Draft::D7);

/// The text of a member that is a string.
[[nodiscard]] const JV* stringMember(const JV& schema, std::string_view name) {
    const JV* value = schema.get(name);
    return value != nullptr && value->isString() ? value : nullptr;
}

/// The identifier of a schema. Up to draft 7 a reference makes everything beside it void.
[[nodiscard]] std::string_view identifier(const JV& schema, const Dialect& dialect) {
    if (dialect.isOneOf(beforeRefHadSiblings) && schema.get("$ref") != nullptr)
        return {};
    const JV* id = stringMember(schema, dialect.draft() == Draft::D4 ? "id" : "$id");
    return id == nullptr ? std::string_view() : id->text();
}

} // namespace

// ---- sites

const JV* Site::sibling(std::string_view name) const {
    return dialect().find(name) == nullptr ? nullptr : schema().get(name);
}

std::vector<const Node*> Site::nodesOf(const JV& schemas) const {
    require(schemas, Kind::Array);
    std::vector<const Node*> nodes;
    for (const JV* schema : schemas.elements())
        nodes.push_back(&compiler.nodeOf(*schema));
    return nodes;
}

void Site::require(Kind kind) const {
    require(value, kind);
}

void Site::require(const JV& candidate, Kind kind) const {
    if (candidate.kind() != kind)
        fault(formatMessage(message::keywordType, keyword, typeName(kind), typeName(candidate.kind())));
}

void Site::fault(const Message& message) const {
    throw CompileError(message, place.location(keyword));
}

// ---- the way through a compilation

Compiler::Compiler(const CompileOptions& options)
    : options_(options), program_(std::make_shared<Program>()) {}

std::shared_ptr<const Program> Compiler::compile(const JV& schema) {
    const std::shared_ptr<const JV> copy = JVDocument::clone(schema);
    program_->documents.push_back(copy);
    Place& root = enter(*copy, nullptr, {});
    scan(root, options_.baseUri, Dialect::of(options_.defaultDraft));
    program_->root = &nodeOf(root);
    do {
        compileWaiting();
        addDynamicNodes();
    } while (!waiting_.empty());
    shortenAliases();
    return program_;
}

Node& Compiler::nodeOf(Place& place) {
    if (place.node == nullptr) {
        place.node = &program_->nodes.emplace_back();
        place.node->place = &place;
        waiting_.push_back(place.node);
    }
    return *place.node;
}

Node& Compiler::referredNodeOf(Place& place) {
    Node& node = nodeOf(place);
    node.isShared = true;
    return node;
}

void Compiler::compileWaiting() {
    while (!waiting_.empty()) {
        Node& node = *waiting_.back();
        waiting_.pop_back();
        compileNode(node);
    }
}

void Compiler::compileNode(Node& node) {
    const Place& place = *node.place;
    const JV& schema = *place.schema;
    if (schema.isBoolean()) {
        node.accepts = schema.boolean() ? everyKind : KindSet{0};
        return;
    }
    if (!schema.isObject())
        throw CompileError(formatMessage(message::noSchema, typeName(schema.kind())), place.location());
    const Dialect& dialect = *place.resource->dialect;
    std::vector<std::pair<const KeywordEntry*, const JV*>> found;
    for (const Member member : schema.members()) {
        const KeywordEntry* entry = dialect.find(member.key);
        if (entry != nullptr && entry->make != nullptr)
            found.emplace_back(entry, member.value);
    }
    if (dialect.isOneOf(beforeRefHadSiblings) && schema.get("$ref") != nullptr)
        std::erase_if(found, [](const auto& keyword) { return keyword.first->name != "$ref"; });
    std::sort(found.begin(), found.end());
    for (const auto& [entry, value] : found) {
        if (auto keyword = entry->make(Site{*this, place, *value, entry->name})) {
            node.tracks |= entry->vocabulary == Vocabulary::Unevaluated;
            node.accepts &= keyword->accepts();
            if (keyword->kinds() != 0)
                node.entries.push_back({keyword->kinds(), keyword.get()});
            node.keywords.push_back(std::move(keyword));
        }
    }
    if (node.keywords.size() == 1)
        node.alias = plainReference(*node.keywords.front());
}

/// A schema that is nothing but a reference is skipped: each link of the chain would cost a level.
void Compiler::shortenAliases() {
    for (Node& node : program_->nodes) {
        const Node* end = node.alias;
        for (std::size_t steps = 0; end != nullptr && end->alias != nullptr; ++steps, end = end->alias) {
            if (steps > program_->nodes.size())
                throw CompileError(message::endlessReference, node.place->location("$ref"));
        }
        for (Node* link = &node; link->alias != nullptr && link->alias != end;) {
            Node* next = const_cast<Node*>(link->alias); // one of ours
            link->alias = end;
            link = next;
        }
    }
    for (Node& node : program_->nodes) {
        if (node.alias == nullptr)
            continue;
        node.accepts = node.alias->accepts;
        node.tracks = node.alias->tracks;
        node.isShared = node.alias->isShared;
        node.entries = node.alias->entries;
    }
}

// ---- seeing where schemas stand

Place& Compiler::enter(const JV& schema, const Place* parent, std::string_view keyword) {
    Place& place = program_->places[&schema];
    if (place.schema == nullptr) {
        place.schema = &schema;
        place.parent = parent;
        place.keyword = keyword;
        unscanned_.push_back(&place);
    }
    return place;
}

void Compiler::scan(Place& first, std::string_view baseUri, const Dialect& fallback) {
    identify(first, baseUri, fallback);
    while (!unscanned_.empty()) {
        Place& place = *unscanned_.back();
        unscanned_.pop_back();
        if (place.resource == nullptr)
            identify(place, place.parent->resource->uri, *place.parent->resource->dialect);
        if (!place.schema->isObject())
            continue;
        nameAnchors(place);
        for (const Member member : place.schema->members()) {
            if (const KeywordEntry* entry = place.resource->dialect->find(member.key))
                scanKeyword(place, *entry, *member.value);
        }
    }
}

void Compiler::scanKeyword(const Place& parent, const KeywordEntry& entry, const JV& value) {
    const bool takesArray = entry.holds == Holds::Schemas || entry.holds == Holds::SchemaOrSchemas;
    const bool takesMap = entry.holds == Holds::SchemaMap || entry.holds == Holds::Dependencies;
    if (takesArray && value.isArray()) {
        std::size_t index = 0;
        for (const JV* schema : value.elements())
            enter(*schema, &parent, entry.name).index = index++;
    } else if (takesMap && value.isObject()) {
        for (const Member member : value.members()) {
            if (entry.holds == Holds::Dependencies && member.value->isArray())
                continue;
            Place& place = enter(*member.value, &parent, entry.name);
            place.key = member.key;
            place.hasKey = true;
        }
    } else if (entry.holds == Holds::Schema || entry.holds == Holds::SchemaOrSchemas) {
        enter(value, &parent, entry.name);
    }
}

/// Finds the resource that a schema belongs to, which may begin with it.
void Compiler::identify(Place& place, std::string_view baseUri, const Dialect& fallback) {
    const Dialect* dialect = &fallback;
    std::string_view id;
    if (place.schema->isObject()) {
        const JV* metaSchema = stringMember(*place.schema, "$schema");
        // Inside of a document only a schema with an identifier may be written in another dialect.
        const bool mayChoose = place.parent == nullptr || place.schema->get("$id") != nullptr ||
                               place.schema->get("id") != nullptr;
        if (metaSchema != nullptr && mayChoose)
            dialect = &dialectOf(place, metaSchema->text());
        id = splitFragment(identifier(*place.schema, *dialect)).uri;
    }
    if (place.parent != nullptr && id.empty()) {
        place.resource = place.parent->resource;
        return;
    }
    Resource& resource = program_->resources.emplace_back();
    resource.uri = resolveUri(baseUri, id);
    resource.root = place.schema;
    resource.dialect = dialect;
    place.resource = &resource;
    byUri_.emplace(resource.uri, &resource);
    if (place.parent == nullptr)
        byUri_.emplace(std::string(baseUri), &resource);
}

void Compiler::nameAnchors(Place& place) {
    Resource& resource = *place.resource;
    const JV& schema = *place.schema;
    const Draft draft = resource.dialect->draft();
    if (draft != Draft::D2019 && draft != Draft::D2020) {
        const auto fragment = splitFragment(identifier(schema, *resource.dialect)).fragment;
        if (fragment && !fragment->empty())
            resource.anchors.emplace(*fragment, &place);
        return;
    }
    if (const JV* name = stringMember(schema, "$anchor"))
        resource.anchors.emplace(name->text(), &place);
    if (draft == Draft::D2020) {
        if (const JV* name = stringMember(schema, "$dynamicAnchor")) {
            resource.anchors.emplace(name->text(), &place);
            resource.dynamicAnchors.emplace(name->text(), &place);
        }
    } else if (const JV* flag = schema.get("$recursiveAnchor");
               flag != nullptr && flag->isBoolean() && flag->boolean() && &schema == resource.root) {
        resource.dynamicAnchors.emplace(recursiveAnchor, &place);
    }
}

// ---- dialects

std::shared_ptr<const JV> Compiler::findDocument(std::string_view uri) const {
    return options_.registry == nullptr ? embeddedSchema(uri) : options_.registry->find(uri);
}

const Dialect& Compiler::dialectOf(const Place& place, std::string_view metaSchema) {
    const std::string_view uri = splitFragment(metaSchema).uri;
    if (const Dialect* known = Dialect::byMetaSchema(uri))
        return *known;
    if (const auto known = dialects_.find(uri); known != dialects_.end())
        return *known->second;
    const auto fault = [&](const Message& text) -> CompileError {
        std::string at = place.parent == nullptr ? options_.baseUri + "#" : place.parent->location();
        return CompileError(text, std::move(at));
    };
    // A meta-schema is written in some dialect itself: the first of a draft on this way tells the draft.
    const std::shared_ptr<const JV> document = findDocument(uri);
    if (document == nullptr)
        throw fault(formatMessage(message::unknownMetaSchema, quoted(metaSchema)));
    const Dialect* draft = nullptr;
    std::shared_ptr<const JV> next = document;
    for (int steps = 0; steps < 100 && next != nullptr && next->isObject() && draft == nullptr; ++steps) {
        const JV* parent = stringMember(*next, "$schema");
        const std::string_view parentUri = parent == nullptr ? "" : splitFragment(parent->text()).uri;
        draft = parent == nullptr ? &Dialect::of(options_.defaultDraft) : Dialect::byMetaSchema(parentUri);
        next = draft == nullptr ? findDocument(parentUri) : nullptr;
    }
    if (draft == nullptr)
        throw fault(formatMessage(message::unknownMetaSchema, quoted(metaSchema)));
    const JV* vocabularies = document->get("$vocabulary");
    const Dialect* dialect = draft;
    if (vocabularies != nullptr && vocabularies->isObject() && !draft->isOneOf(beforeRefHadSiblings)) {
        VocabularySet set = bit(Vocabulary::Core);
        for (const Member member : vocabularies->members()) {
            const bool required = member.value->isBoolean() && member.value->boolean();
            if (const auto known = Dialect::vocabulary(draft->draft(), member.key))
                set |= *known;
            else if (required)
                throw fault(
                    formatMessage(message::unknownVocabulary, quoted(metaSchema), quoted(member.key)));
        }
        dialect = &program_->dialects.emplace_back(draft->draft(), set);
    }
    dialects_.emplace(uri, dialect);
    return *dialect;
}

// ---- references

Resource* Compiler::findResource(const std::string& uri, const Dialect& fallback) {
    if (const auto known = byUri_.find(uri); known != byUri_.end())
        return known->second;
    std::shared_ptr<const JV> document = findDocument(uri);
    if (document == nullptr)
        return nullptr;
    if (const auto known = program_->places.find(document.get()); known != program_->places.end())
        return known->second.resource; // under another of its URIs
    program_->documents.push_back(document);
    Place& root = enter(*document, nullptr, {});
    scan(root, uri, fallback);
    return root.resource;
}

Place& Compiler::resolve(const Site& from, std::string_view reference) {
    const SplitUri parts = splitFragment(reference);
    const std::string uri = resolveUri(from.place.resource->uri, parts.uri);
    Resource* resource = findResource(uri, from.dialect());
    Place* target = nullptr;
    if (resource != nullptr) {
        const std::string fragment = percentDecoded(parts.fragment.value_or(""));
        if (fragment.empty()) {
            target = &program_->places.at(resource->root);
        } else if (fragment.front() == '/') {
            target = atPointer(*resource, fragment);
        } else if (const auto anchor = resource->anchors.find(fragment); anchor != resource->anchors.end()) {
            target = anchor->second;
        }
    }
    if (target == nullptr)
        from.fault(formatMessage(message::unresolvable, from.keyword, quoted(reference)));
    return *target;
}

/// The place of the schema at a pointer, or null. A schema may stand where no keyword holds one: what leads
/// there is entered on the way.
Place* Compiler::atPointer(Resource& resource, std::string_view pointer) {
    const JV* value = resource.root;
    Place* place = &program_->places.at(value);
    for (const std::string_view escaped : splitString(pointer.substr(1), '/')) {
        std::string token;
        try {
            token = JVPointer::unescapeToken(escaped);
        } catch (const JVPointerError&) {
            return nullptr;
        }
        Place step;
        step.parent = place;
        step.resource = place->resource;
        if (value->isObject()) {
            const Members members = value->members();
            const auto member =
                std::lower_bound(members.begin(), members.end(), token,
                                 [](const Member& one, const std::string& key) { return one.key < key; });
            if (!(member != members.end()) || (*member).key != token)
                return nullptr;
            step.key = (*member).key;
            step.hasKey = true;
            value = (*member).value;
        } else if (value->isArray()) {
            const auto read = std::from_chars(token.data(), token.data() + token.size(), step.index);
            if (read.ec != std::errc() || read.ptr != token.data() + token.size() ||
                step.index >= value->size())
                return nullptr;
            value = value->elements()[step.index];
        } else {
            return nullptr;
        }
        step.schema = value;
        const auto known = program_->places.find(value);
        place = known != program_->places.end() ? &known->second : &program_->ways.emplace_back(step);
    }
    if (program_->places.contains(value))
        return place;
    Place& schema = enter(*value, place->parent, {});
    schema.key = place->key;
    schema.hasKey = place->hasKey;
    schema.index = place->index;
    scan(schema, place->resource->uri, *place->resource->dialect);
    return &schema;
}

std::size_t Compiler::dynamicName(std::string_view name) {
    program_->isDynamic = true;
    return dynamicNames_.emplace(name, dynamicNames_.size()).first->second;
}

void Compiler::addDynamicNodes() {
    if (dynamicNames_.empty())
        return;
    for (Resource& resource : program_->resources) {
        resource.dynamicNodes.resize(dynamicNames_.size());
        for (const auto& [name, number] : dynamicNames_) {
            const auto place = resource.dynamicAnchors.find(name);
            if (place != resource.dynamicAnchors.end())
                resource.dynamicNodes[number] = &nodeOf(*place->second);
        }
    }
}

} // namespace specloom::jv::schema
