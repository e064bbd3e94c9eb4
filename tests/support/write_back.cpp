#include "test_support/write_back.h"

#include "jv/jv_pointer.h"
#include "test_support/openapi_structure.h"

#include <algorithm> // std::find, std::remove_if
#include <array>     // std::array
#include <optional>  // std::optional
#include <set>       // std::set
#include <utility>   // std::pair

namespace specloom::test_support {

namespace {

using jv::JV;
using K = ObjectKind;
using W = WriteBackClass;

// ---- short texts

constexpr std::size_t longestText = 80;

void appendShort(std::string& out, const JV& value) {
    if (out.size() > longestText)
        return;
    switch (value.kind()) {
    case jv::Kind::Null:
        out += "null";
        break;
    case jv::Kind::Boolean:
        out += value.boolean() ? "true" : "false";
        break;
    case jv::Kind::Number:
        out += value.number().toString();
        break;
    case jv::Kind::String:
        out += '"';
        for (const char c : value.text().substr(0, longestText)) {
            if (c == '\n')
                out += "\\n";
            else
                (c == '"' || c == '\\' ? out += '\\' : out) += c;
        }
        out += '"';
        break;
    case jv::Kind::Array:
        out += '[';
        for (const JV* element : value.elements()) {
            out += out.ends_with('[') ? "" : ",";
            appendShort(out, *element);
        }
        out += ']';
        break;
    case jv::Kind::Object:
        out += '{';
        for (const jv::Member member : value.members()) {
            (out += out.ends_with('{') ? "\"" : ",\"").append(member.key) += "\":";
            appendShort(out, *member.value);
        }
        out += '}';
        break;
    }
}

[[nodiscard]] std::string shortText(const JV* value) {
    if (value == nullptr)
        return "nothing";
    std::string text;
    appendShort(text, *value);
    if (text.size() > longestText)
        text.replace(longestText, std::string::npos, "...");
    return text;
}

[[nodiscard]] std::vector<std::string_view> keysOf(const jv::JVDocument& document, const JV& object) {
    std::vector<std::string_view> keys;
    for (const jv::Member& member : document.orderedMembers(&object))
        keys.push_back(member.key);
    return keys;
}

[[nodiscard]] std::string joined(const std::vector<std::string_view>& keys) {
    std::string text;
    for (const std::string_view key : keys)
        (text += text.empty() ? "keys " : ", ") += key;
    return text;
}

[[nodiscard]] const JV* memberOf(const JV& object, std::string_view key) {
    return object.isObject() ? object.get(key) : nullptr;
}

[[nodiscard]] bool isPlain(K kind) {
    return kind == K::Any || kind == K::Text;
}

[[nodiscard]] const JV& emptyLike(const JV& container) {
    static const std::unique_ptr<JV> array = JV::newArray();
    static const std::unique_ptr<JV> object = JV::newObject();
    return container.isArray() ? *array : *object;
}

// ---- the comparison

class Comparison {
  public:
    Comparison(const jv::JVDocument& source, const jv::JVDocument& written)
        : source_(source), written_(written) {
        const JV* version = memberOf(*source.root(), "openapi");
        const std::string_view text =
            version != nullptr && version->isString() ? version->text() : std::string_view();
        isVersion30_ = text.starts_with("3.0");
        isVersion31_ = text.starts_with("3.1");
        if (const JV* tags = memberOf(*source.root(), "tags"); tags != nullptr && tags->isArray())
            for (const JV* tag : tags->elements())
                if (const JV* name = memberOf(*tag, "name"); name != nullptr && name->isString())
                    declaredTags_.emplace(name->text());
    }

    [[nodiscard]] std::vector<WriteBackDifference> run() {
        object(K::OpenAPI, *source_.root(), *written_.root());
        return std::move(differences_);
    }

  private:
    /// Pairs of values that stand in for one another in the present object: keys that have been dealt with.
    using Keys = std::set<std::string_view>;

    void report(std::string_view kind, std::string pointer, const JV* source, const JV* written) {
        differences_.push_back({std::move(pointer), kind, shortText(source), shortText(written)});
    }
    void report(std::string_view kind, const JV& source, const JV* written) {
        report(kind, source.pointer(), &source, written);
    }

    // Places.

    void any(const JV& source, const JV& written) {
        if (source.equals(written))
            sameOrder(source, written);
        else
            report(W::defect, source, &written);
    }

    /// A member that is there on both sides.
    void member(const MemberInfo& info, const JV& source, const JV& written) {
        const bool isList = info.shape == Shape::List;
        if (isPlain(info.kind) || info.shape == Shape::One)
            place(info.kind, source, written, true);
        else if (!(isList ? source.isArray() && written.isArray() : source.isObject() && written.isObject()))
            report(W::defect, source, &written);
        else if (isList)
            elements(info.kind, source, written);
        else
            entries(info.kind, source, written, !info.key.starts_with("$def") && info.key != "definitions");
    }

    void elements(K kind, const JV& source, const JV& written) {
        for (std::size_t i = 0; i < std::max(source.size(), written.size()); ++i) {
            if (i >= written.size())
                report(W::defect, *source.elements()[i], nullptr);
            else if (i >= source.size())
                report(W::defect, source.pointer(), nullptr, written.elements()[i]);
            else
                place(kind, *source.elements()[i], *written.elements()[i], true);
        }
    }

    void entries(K kind, const JV& source, const JV& written, bool mayRefer) {
        for (const jv::Member entry : source.members()) {
            if (const JV* other = written.get(entry.key); other != nullptr)
                place(kind, *entry.value, *other, mayRefer);
            else
                report(W::defect, *entry.value, nullptr);
        }
        for (const jv::Member entry : written.members())
            if (!source.has(entry.key))
                report(W::defect, pointerOf(source, entry.key), nullptr, entry.value);
        order(source, written);
    }

    void place(K kind, const JV& source, const JV& written, bool mayRefer) {
        const bool refers = memberOf(source, "$ref") != nullptr && !sectionOf(kind).empty();
        if (isPlain(kind))
            any(source, written);
        else if (refers && mayRefer)
            reference(kind, source, written);
        else if (kind == K::Schema && source.isBoolean())
            booleanSchema(source, written);
        else if (source.isObject() && written.isObject())
            object(kindOf(kind, source), source, written);
        else
            report(W::defect, source, &written);
    }

    void booleanSchema(const JV& source, const JV& written) {
        const JV* schema = source.boolean() ? &written : memberOf(written, "not");
        const bool isObject = schema != nullptr && schema->isObject() && schema->size() == 0 &&
                              written.size() == (source.boolean() ? 0U : 1U);
        report(isObject ? W::booleanSchema : W::defect, source, &written);
    }

    void reference(K kind, const JV& source, const JV& written) {
        const JV* before = source.get("$ref");
        const JV* after = memberOf(written, "$ref");
        if (after == nullptr || !after->isString() || !before->isString())
            return report(W::defect, *before, after);
        if (before->text() != after->text())
            report(after->text() == canonicalReference(kind, before->text()) ? W::canonicalReference
                                                                             : W::defect,
                   *before, after);
        const auto keeps = [&](std::string_view key) {
            return kind != K::Schema && (key == "summary" || key == "description" || key.starts_with("x-"));
        };
        for (const jv::Member sibling : source.members()) {
            const JV* other = written.get(sibling.key);
            if (sibling.key == "$ref")
                continue;
            if (keeps(sibling.key) && other != nullptr)
                any(*sibling.value, *other);
            else
                report(keeps(sibling.key) || other != nullptr ? W::defect : W::referenceSibling,
                       *sibling.value, other);
        }
        additions(K::Any, source, written, {});
        order(source, written);
    }

    /// What the writer makes of a reference: the tail of the text names the component, and a component that
    /// is a reference itself stands for its target.
    [[nodiscard]] std::string canonicalReference(K kind, std::string_view text) const {
        const std::string prefix = "#/components/" + std::string(sectionOf(kind)) + "/";
        const JV* components = memberOf(*source_.root(), "components");
        const JV* section = components == nullptr ? nullptr : memberOf(*components, sectionOf(kind));
        for (int steps = 0; section != nullptr && steps < 1000; ++steps) {
            if (text.size() < prefix.size())
                break;
            const std::string_view name = text.substr(prefix.size());
            const JV* component = section->get(name);
            const JV* next = component == nullptr ? nullptr : memberOf(*component, "$ref");
            if (next == nullptr || !next->isString())
                return prefix + std::string(name);
            text = next->text();
        }
        return {};
    }

    // Objects.

    void object(K kind, const JV& source, const JV& written) {
        Keys done;
        if (kind == K::Schema)
            schema(source, written, done);
        else if (kind == K::Operation)
            operation(source, written, done);
        for (const jv::Member entry : source.members()) {
            if (done.contains(entry.key))
                continue;
            const JV* other = written.get(entry.key);
            const MemberInfo* info = findMember(kind, entry.key);
            if (info == nullptr && !entry.key.starts_with("x-"))
                unknown(kind, entry.key, *entry.value, other);
            else if (info != nullptr && info->family == Family::Only31 && isVersion30_)
                report(other == nullptr ? W::form30DropsKeyword : W::defect, *entry.value, other);
            else if (other == nullptr)
                absent(kind, info, source, *entry.value);
            else if (info == nullptr)
                any(*entry.value, *other);
            else
                member(*info, *entry.value, *other);
        }
        additions(kind, source, written, done);
        order(source, written);
    }

    void unknown(K kind, std::string_view key, const JV& source, const JV* written) {
        if (written != nullptr)
            report(W::defect, source, written);
        else if (kind == K::Schema && key == "$ref")
            report(W::referenceInDefinitions, source, nullptr);
        else
            report(W::unknownMember, source, nullptr);
    }

    /// A known member of the source that was not written.
    void absent(K kind, const MemberInfo* info, const JV& object, const JV& source) {
        if (info == nullptr)
            return report(W::defect, source, nullptr);
        const std::string_view key = info->key;
        if (key == "examples" && kind != K::Schema && object.has("example"))
            return report(W::examplesBesideExample, source, nullptr);
        if (key == "content" && object.has("schema"))
            return report(W::contentBesideSchema, source, nullptr);
        if (kind == K::Link && key == "operationId" && object.has("operationRef"))
            return report(W::operationIdBesideRef, source, nullptr);
        if (info->kind == K::Text && source.isNull())
            return report(W::nullLeftOut, source, nullptr);
        const bool isContainer = source.isArray() || source.isObject();
        if (info->whenEmpty == WhenEmpty::Kept || !isContainer)
            return report(W::defect, source, nullptr);
        if (source.size() == 0)
            return report(W::emptyLeftOut, source, nullptr);
        if (isPlain(info->kind))
            return report(W::defect, source, nullptr);
        member(*info, source, emptyLike(source)); // tells what became of all that it held
    }

    /// Members that the source does not have.
    void additions(K kind, const JV& source, const JV& written, const Keys& done) {
        for (const jv::Member entry : written.members()) {
            if (source.has(entry.key) || done.contains(entry.key))
                continue;
            const bool isEmptyObject = entry.value->isObject() && entry.value->size() == 0;
            const bool isMandatory = (kind == K::OpenAPI && entry.key == "paths" && isEmptyObject) ||
                                     (kind == K::OAuthFlow && entry.key == "scopes" && isEmptyObject) ||
                                     (kind == K::OAuth2Scheme && entry.key == "flows" && isEmptyObject) ||
                                     (kind == K::PathParameter && entry.key == "required" &&
                                      entry.value->isBoolean() && entry.value->boolean());
            report(isMandatory ? W::mandatoryMemberAdded : W::defect, pointerOf(source, entry.key), nullptr,
                   entry.value);
        }
    }

    void operation(const JV& source, const JV& written, Keys& done) {
        if (const JV* deprecated = source.get("deprecated");
            deprecated != nullptr && deprecated->isBoolean() && !deprecated->boolean()) {
            const JV* other = written.get("deprecated");
            report(other == nullptr ? W::falseDeprecated : W::defect, *deprecated, other);
            done.insert("deprecated");
        }
        const JV* tags = source.get("tags");
        const JV* other = written.get("tags");
        if (tags == nullptr || tags->size() == 0 || !tags->isArray())
            return;
        done.insert("tags");
        std::vector<const JV*> declared;
        for (const JV* tag : tags->elements()) {
            if (tag->isString() && declaredTags_.contains(tag->text()))
                declared.push_back(tag);
            else
                report(W::undeclaredTag, *tag, nullptr);
        }
        const JV& remaining = other == nullptr ? emptyLike(*tags) : *other;
        if (!sameElements(declared, remaining))
            report(W::defect, *tags, other);
    }

    [[nodiscard]] static bool sameElements(const std::vector<const JV*>& expected, const JV& actual) {
        if (!actual.isArray() || actual.size() != expected.size())
            return false;
        for (std::size_t i = 0; i < expected.size(); ++i)
            if (!actual.elements()[i]->equals(*expected[i]))
                return false;
        return true;
    }

    void schema(const JV& source, const JV& written, Keys& done) {
        types(source, written, done);
        constant(source, written, done);
        requiredNames(source, written, done);
        definitions(source, written, done);
    }

    void types(const JV& source, const JV& written, Keys& done) {
        constexpr std::array<std::string_view, 7> inOrder{"null",   "boolean", "object", "array",
                                                          "number", "string",  "integer"};
        const JV* type = source.get("type");
        const JV* nullable = source.get("nullable");
        if (type == nullptr && nullable == nullptr)
            return;
        Keys types;
        if (type != nullptr && type->isString())
            types.insert(type->text());
        for (const JV* element :
             type != nullptr && type->isArray() ? type->elements() : std::span<const JV* const>())
            types.insert(element->text());
        if (nullable != nullptr && nullable->boolean())
            types.insert("null");

        const std::unique_ptr<JV> list = JV::newArray();
        for (const std::string_view name : inOrder)
            if (types.contains(name))
                list->appendString(name);
        const JV* expected = list->size() == 0   ? nullptr
                             : list->size() == 1 ? list->elements()[0]
                                                 : list.get();
        const JV* actual = written.get("type");
        done.insert({"type", "nullable"});
        const bool asExpected =
            expected == nullptr || actual == nullptr ? expected == actual : actual->equals(*expected);
        if (!asExpected)
            report(W::defect, pointerOf(source, "type"), type, actual);
        else if (nullable != nullptr)
            report(W::nullableAsType, *nullable, actual);
        else if (type->size() == 0 && type->isArray())
            report(W::emptyLeftOut, *type, actual);
        else if (expected == nullptr) // all that it held is no type
            report(W::defect, *type, actual);
        else if (!type->equals(*expected))
            report(W::typesAsSet, *type, actual);
        if (const JV* kept = written.get("nullable"); kept != nullptr)
            report(W::defect, pointerOf(source, "nullable"), nullable, kept);
    }

    void constant(const JV& source, const JV& written, Keys& done) {
        if (const JV* constant = source.get("const"); constant != nullptr) {
            const JV* list = written.get("enum");
            report(list != nullptr && sameElements({constant}, *list) && !written.has("const")
                       ? W::constAsEnum
                       : W::defect,
                   *constant, list);
            if (list != nullptr && list->isArray() && list->size() == 1)
                sameOrder(*constant, *list->elements()[0]);
            done.insert({"const", "enum"});
        } else if (const JV* list = source.get("enum"); list != nullptr && !list->isArray()) {
            report(written.has("enum") ? W::defect : W::enumOfOtherKind, *list, written.get("enum"));
            done.insert("enum");
        }
    }

    void requiredNames(const JV& source, const JV& written, Keys& done) {
        const JV* required = source.get("required");
        const JV* other = written.get("required");
        if (required != nullptr && !required->isArray()) {
            report(other == nullptr ? W::requiredOfOtherKind : W::defect, *required, other);
            done.insert("required");
            return;
        }
        if (required == nullptr || required->size() == 0 || (other != nullptr && other->equals(*required)))
            return;
        done.insert("required");
        Keys seen;
        std::vector<const JV*> expected;
        for (const JV* name : required->elements())
            if (name->isString() && seen.insert(name->text()).second)
                expected.push_back(name);
        const JV& names = other == nullptr ? emptyLike(*required) : *other;
        const bool asExpected = expected.size() != required->size() && sameElements(expected, names);
        report(asExpected ? W::requiredAsSet : W::defect, *required, other);
    }

    void definitions(const JV& source, const JV& written, Keys& done) {
        if (isVersion30_)
            return;
        const std::string_view otherName = isVersion31_ ? "definitions" : "$defs";
        const std::string_view name = isVersion31_ ? "$defs" : "definitions";
        const JV* renamed = source.get(otherName);
        const JV* other = written.get(name);
        if (renamed == nullptr || other == nullptr || source.has(name))
            return;
        report(W::definitionsRenamed, *renamed, other);
        member(*findMember(K::Schema, name), *renamed, *other);
        done.insert({name, otherName});
    }

    // Key orders.

    /// The keys that both have stand in one order, and those that only the written object has behind them.
    void order(const JV& source, const JV& written) {
        const auto before = keysOf(source_, source);
        const auto after = keysOf(written_, written);
        std::vector<std::string_view> expected;
        for (const std::string_view key : before)
            if (written.has(key))
                expected.push_back(key);
        for (const std::string_view key : after)
            if (!source.has(key))
                expected.push_back(key);
        if (&written != &emptyLike(written) && expected != after)
            differences_.push_back({source.pointer(), W::defect, joined(before), joined(after)});
    }

    /// The same for all objects in two values that are equal.
    void sameOrder(const JV& source, const JV& written) {
        std::vector<std::pair<const JV*, const JV*>> open{{&source, &written}};
        while (!open.empty()) {
            const auto [before, after] = open.back();
            open.pop_back();
            if (before->isArray()) {
                for (std::size_t i = 0; i < before->size(); ++i)
                    open.emplace_back(before->elements()[i], after->elements()[i]);
            } else if (before->isObject()) {
                for (const jv::Member entry : before->members())
                    open.emplace_back(entry.value, after->get(entry.key));
                order(*before, *after);
            }
        }
    }

    [[nodiscard]] static std::string pointerOf(const JV& object, std::string_view key) {
        std::string pointer;
        jv::childPointer(pointer, object.pointer(), key);
        return pointer;
    }

    const jv::JVDocument& source_;
    const jv::JVDocument& written_;
    bool isVersion30_ = false;
    bool isVersion31_ = false;
    std::set<std::string_view> declaredTags_;
    std::vector<WriteBackDifference> differences_;
};

} // namespace

std::ostream& operator<<(std::ostream& out, const WriteBackDifference& difference) {
    return out << difference.pointer << ": " << difference.kind << ": " << difference.source << " -> "
               << difference.written;
}

std::vector<WriteBackDifference> compareWriteBack(const jv::JVDocument& source,
                                                  const jv::JVDocument& written) {
    return Comparison(source, written).run();
}

} // namespace specloom::test_support
