#include "jv_generator/json_schema.h"

#include "jv/jv_document.h"
#include "jv/jv_pointer.h"

#include <algorithm> // std::ranges::any_of, std::ranges::lower_bound
#include <array>     // std::to_array
#include <utility>   // std::move
#include <vector>    // std::vector

namespace specloom::jv_generator {

namespace {

using jv::JV;

enum class Holding : std::uint8_t { Value, Schema, List, Map };

struct BundledKeyword {
    std::string_view name;
    Holding holding;
    bool chooses = false; ///< what does not fit a schema below it matters too, or is not looked at before
};

constexpr auto bundledKeywords = std::to_array<BundledKeyword>({
    {"additionalProperties", Holding::Schema},
    {"allOf", Holding::List},
    {"anyOf", Holding::List},
    {"const", Holding::Value},
    {"contains", Holding::Schema, true},
    {"contentEncoding", Holding::Value},
    {"dependentRequired", Holding::Value},
    {"dependentSchemas", Holding::Map},
    {"discriminator", Holding::Value, true},
    {"else", Holding::Schema},
    {"enum", Holding::Value},
    {"format", Holding::Value},
    {"if", Holding::Schema, true},
    {"items", Holding::Schema},
    {"maxContains", Holding::Value},
    {"maxItems", Holding::Value},
    {"maxLength", Holding::Value},
    {"maxProperties", Holding::Value},
    {"minContains", Holding::Value},
    {"minItems", Holding::Value},
    {"minLength", Holding::Value},
    {"minProperties", Holding::Value},
    {"multipleOf", Holding::Value},
    {"not", Holding::Schema, true},
    {"oneOf", Holding::List, true},
    {"pattern", Holding::Value},
    {"patternProperties", Holding::Map},
    {"prefixItems", Holding::List},
    {"properties", Holding::Map},
    {"propertyNames", Holding::Schema, true},
    {"then", Holding::Schema},
    {"unevaluatedItems", Holding::Schema, true},
    {"unevaluatedProperties", Holding::Schema, true},
    {"uniqueItems", Holding::Value},
});

[[nodiscard]] bool isContainer(const JV& value) {
    return value.isArray() || value.isObject();
}

} // namespace

/// Walks over a schema and what it refers to. Input decides how deep that is, so it keeps a list.
class JSONSchemaBuilder {
  public:
    JSONSchemaBuilder(JSONSchema& result, const JV& document) : result_(result), document_(document) {
        const JV* version = document.get("openapi");
        isOpenAPI30_ = version != nullptr && version->isString() && version->text().starts_with("3.0");
    }

    void build(const std::vector<const openapi::Node*>& schemas, JSONSchema::Root root) {
        result_.bundle_ = JV::newObject();
        result_.definitions_ = result_.bundle_->setObject("$defs");
        for (const openapi::Node* schema : schemas)
            result_.references_.emplace(schema->source(), define(*schema->source()));
        if (root == JSONSchema::Root::First)
            result_.bundle_->setString("$ref", "#/$defs/0");
        else
            describeMembers(*result_.bundle_->setObject("properties"));
        while (!waiting_.empty()) {
            const auto [source, target] = waiting_.back();
            waiting_.pop_back();
            convert(*source, *target);
        }
    }

  private:
    struct Waiting {
        const JV* source;
        JV* target;
    };

    void describeMembers(JV& properties) const {
        for (const auto& [source, reference] : result_.references_)
            properties.setObject(JSONSchema::memberOf(reference))->setString("$ref", reference);
    }

    /// The reference to the definition of a schema of the document.
    [[nodiscard]] std::string define(const JV& schema) {
        const auto [known, isNew] = names_.emplace(&schema, std::to_string(names_.size()));
        if (isNew)
            enter(schema, *result_.definitions_->setNull(known->second));
        return "#/$defs/" + known->second;
    }

    void enter(const JV& source, JV& target) {
        result_.origins_.emplace(&target, &source);
        if (source.isBoolean())
            target.setBoolean(source.boolean());
        else
            target.makeObject();
        if (source.isObject())
            waiting_.push_back({&source, &target});
    }

    void convert(const JV& source, JV& target) {
        if (const JV* reference = source.get("$ref"); reference != nullptr && reference->isString()) {
            if (const JV* schema = component(reference->text()))
                target.setString("$ref", define(*schema));
            if (isOpenAPI30_)
                return;
        }
        for (const jv::Member member : source.members()) {
            const auto* keyword =
                std::ranges::lower_bound(bundledKeywords, member.key, {}, &BundledKeyword::name);
            if (keyword != bundledKeywords.end() && keyword->name == member.key)
                convertKeyword(*keyword, *member.value, target);
        }
        convertTypes(source, target);
        convertRequired(source, target);
        for (const char* name : {"minimum", "maximum"})
            convertLimit(source, name, target);
        if (!isOpenAPI30_)
            convertDynamicReference(source, target);
    }

    /// A document is one resource, and in one resource an anchor is one schema: so it is known where a
    /// dynamic reference leads. It becomes one more schema of `allOf`.
    void convertDynamicReference(const JV& source, JV& target) {
        const JV* reference = source.get("$dynamicRef");
        if (reference == nullptr || !reference->isString())
            return;
        const JV* schema = component(reference->text());
        if (schema == nullptr && reference->text().starts_with('#'))
            schema = anchored(reference->text().substr(1));
        if (schema == nullptr)
            return;
        const std::string definition = define(*schema);
        JV* all = target.get("allOf");
        if (all == nullptr || !all->isArray())
            all = target.setArray("allOf");
        all->appendObject()->setString("$ref", definition);
    }

    /// The object of the document that bears an anchor, or null.
    [[nodiscard]] const JV* anchored(std::string_view name) {
        if (!hasAnchors_)
            collectAnchors();
        const auto known = anchors_.find(name);
        return known == anchors_.end() ? nullptr : known->second;
    }

    void collectAnchors() {
        hasAnchors_ = true;
        std::vector<const JV*> open{&document_};
        while (!open.empty()) {
            const JV& value = *open.back();
            open.pop_back();
            if (value.isArray())
                open.insert(open.end(), value.elements().begin(), value.elements().end());
            if (!value.isObject())
                continue;
            for (const char* keyword : {"$dynamicAnchor", "$anchor"}) {
                if (const JV* anchor = value.get(keyword); anchor != nullptr && anchor->isString())
                    anchors_.try_emplace(anchor->text(), &value);
            }
            for (const jv::Member member : value.members())
                open.push_back(member.value);
        }
    }

    void convertKeyword(const BundledKeyword& keyword, const JV& value, JV& target) {
        result_.formatsChoose_ |=
            keyword.chooses || (keyword.name == "const" && isContainer(value)) ||
            (keyword.name == "enum" && value.isArray() &&
             std::ranges::any_of(value.elements(), [](const JV* member) { return isContainer(*member); }));
        switch (keyword.holding) {
        case Holding::Value:
            target.set(keyword.name, jv::JVDocument::clone(value));
            return;
        case Holding::Schema:
            enter(value, *target.setNull(keyword.name));
            return;
        case Holding::List:
            if (!value.isArray() || (value.size() == 0))
                return;
            if (JV* list = target.setArray(keyword.name)) {
                for (const JV* schema : value.elements())
                    enter(*schema, *list->appendNull());
            }
            return;
        case Holding::Map:
            if (!value.isObject())
                return;
            if (JV* map = target.setObject(keyword.name)) {
                for (const jv::Member member : value.members())
                    enter(*member.value, *map->setNull(member.key));
            }
            return;
        }
    }

    /// `nullable` adds to the types, so it says nothing where there are none.
    void convertTypes(const JV& source, JV& target) const {
        const JV* type = source.get("type");
        if (type == nullptr || !(type->isString() || type->isArray()))
            return;
        const JV* nullable = source.get("nullable");
        if (!isOpenAPI30_ || nullable == nullptr || !nullable->isBoolean() || !nullable->boolean()) {
            target.set("type", jv::JVDocument::clone(*type));
            return;
        }
        JV* types = target.setArray("type");
        bool hasNull = false;
        const auto add = [&](const JV& name) {
            hasNull |= name.text() == "null";
            types->appendString(name.text());
        };
        if (type->isString()) {
            add(*type);
        } else {
            for (const JV* name : type->elements())
                add(*name);
        }
        if (!hasNull)
            types->appendString("null");
    }

    static void convertRequired(const JV& source, JV& target) {
        const JV* required = source.get("required");
        if (required == nullptr || !required->isArray())
            return;
        JV* names = target.setArray("required");
        for (const JV* name : required->elements()) {
            if (name->isString())
                names->appendString(name->text());
        }
    }

    void convertLimit(const JV& source, std::string_view name, JV& target) const {
        const std::string exclusiveName = name == "minimum" ? "exclusiveMinimum" : "exclusiveMaximum";
        const JV* limit = source.get(name);
        const JV* exclusive = source.get(exclusiveName);
        const bool isFlag = exclusive != nullptr && exclusive->isBoolean();
        if (limit != nullptr && limit->isNumber())
            target.setNumber(isFlag && exclusive->boolean() ? std::string_view(exclusiveName) : name,
                             limit->number());
        if (exclusive != nullptr && exclusive->isNumber())
            target.setNumber(exclusiveName, exclusive->number());
    }

    /// The schema among the components that a reference means, as the reader of documents takes it.
    [[nodiscard]] const JV* component(std::string_view reference) const {
        constexpr std::size_t frame = std::string_view("#/components/schemas/").size();
        const JV* components = document_.get("components");
        const JV* schemas =
            components == nullptr || !components->isObject() ? nullptr : components->get("schemas");
        if (schemas == nullptr || !schemas->isObject() || reference.size() < frame)
            return nullptr;
        return schemas->get(reference.substr(frame));
    }

    JSONSchema& result_;
    const JV& document_;
    bool isOpenAPI30_ = false;
    std::unordered_map<const JV*, std::string> names_;
    std::unordered_map<std::string_view, const JV*> anchors_;
    bool hasAnchors_ = false;
    std::vector<Waiting> waiting_;
};

JSONSchema::JSONSchema(const openapi::Node& schema) : JSONSchema(std::vector{&schema}) {}

JSONSchema::JSONSchema(const std::vector<const openapi::Node*>& schemas, Root root) {
    if (!schemas.empty())
        JSONSchemaBuilder(*this, *schemas.front()->root()->source()).build(schemas, root);
}

const JV& JSONSchema::target(std::string_view reference) const {
    return *definitions_->get(reference.substr(std::string_view("#/$defs/").size()));
}

const JV* JSONSchema::origin(const JV& schema) const {
    const auto known = origins_.find(&schema);
    return known == origins_.end() ? nullptr : known->second;
}

const JV* JSONSchema::at(std::string_view pointer) const {
    jv::JVPointer tokens;
    tokens.parse(pointer);
    return bundle_->resolve(tokens);
}

std::string JSONSchema::documentPointer(std::string_view fragment) const {
    fragment.remove_prefix(std::min(fragment.size(), fragment.find('#') + 1));
    jv::JVPointer tokens;
    for (tokens.parse(fragment); !tokens.empty(); tokens.pop_back()) {
        const JV* schema = bundle_->resolve(tokens);
        if (const JV* source = schema == nullptr ? nullptr : origin(*schema))
            return source->pointer();
    }
    return root().isNull() ? std::string() : origin(root())->pointer();
}

} // namespace specloom::jv_generator
