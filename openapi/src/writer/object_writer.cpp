#include "openapi/writer/object_writer.h"

namespace specloom::openapi {

namespace {

/// A text, written as its source was: what stood in YAML without quotes may be something else than a text for
/// other readers, and comes back without quotes.
[[nodiscard]] std::unique_ptr<jv::JV> textValue(std::string_view text, const jv::JV* source) {
    if (source != nullptr && source->isPlainScalar() && source->text() == text)
        return jv::JVDocument::clone(*source);
    return std::make_unique<jv::JV>(text);
}

[[nodiscard]] const jv::JV* memberOf(const jv::JV* object, std::string_view key) {
    return object != nullptr && object->isObject() ? object->get(key) : nullptr;
}

/// Gives the objects in `copy` the key orders that `source` knows of the value it was copied from.
void copyKeyOrders(const jv::JVDocument& source, const jv::JV& value, jv::JVDocument& output, jv::JV& copy) {
    struct Pair {
        const jv::JV* value;
        jv::JV* copy;
    };
    std::vector<Pair> open{{&value, &copy}};
    while (!open.empty()) {
        const Pair pair = open.back();
        open.pop_back();
        if (pair.value->isArray()) {
            const auto copies = pair.copy->elements();
            for (std::size_t i = 0; i < copies.size(); ++i)
                open.push_back({pair.value->elements()[i], copies[i]});
        } else if (pair.value->isObject()) {
            for (const jv::Member member : pair.value->members())
                open.push_back({member.value, pair.copy->get(member.key)});
            if (const auto keys = source.keysOf(pair.value); !keys.empty())
                output.setKeys(pair.copy, keys);
        }
    }
}

} // namespace

void ObjectWriter::text(std::string_view key, std::optional<std::string_view> text) {
    if (text)
        add(key, textValue(*text, sourceOf(key)));
}

void ObjectWriter::flag(std::string_view key, std::optional<bool> value) {
    if (value)
        add(key, std::make_unique<jv::JV>(*value));
}

void ObjectWriter::number(std::string_view key, const std::optional<number::Number>& value) {
    if (value)
        add(key, std::make_unique<jv::JV>(*value));
}

void ObjectWriter::count(std::string_view key, std::optional<std::uint64_t> value) {
    if (value)
        add(key, std::make_unique<jv::JV>(*value));
}

void ObjectWriter::value(std::string_view key, const jv::JV* value) {
    if (value != nullptr)
        add(key, copyOf(*value));
}

void ObjectWriter::map(std::string_view key, const NameMap<Text>& entries) {
    const jv::JV* source = sourceOf(key);
    fill(key, entries,
         [&](const auto& entry) { return textValue(entry.value.view(), memberOf(source, entry.name())); });
}

void ObjectWriter::map(std::string_view key, const NameMap<Value>& entries) {
    fill(key, entries, [this](const auto& entry) { return copyOf(*entry.value); });
}

void ObjectWriter::list(std::string_view key, const std::vector<Text>& texts) {
    array(key, texts, [](const Text& text) { return std::make_unique<jv::JV>(text.view()); });
}

void ObjectWriter::list(std::string_view key, const std::vector<Value>& values) {
    array(key, values, [this](const Value& value) { return copyOf(*value); });
}

void ObjectWriter::add(std::string_view key, std::unique_ptr<jv::JV> value) {
    if (value != nullptr)
        object_.add(key, std::move(value));
}

bool ObjectWriter::keepsEmpty(std::string_view key) const {
    return node_.source() == nullptr || sourceOf(key) != nullptr;
}

std::vector<std::string_view> ObjectWriter::keyOrderOf(std::string_view key) const {
    return context_.keyOrderOfField ? context_.keyOrderOfField(node_, key) : std::vector<std::string_view>();
}

std::unique_ptr<jv::JV> ObjectWriter::copyOf(const jv::JV& value) const {
    std::unique_ptr<jv::JV> copy = jv::JVDocument::clone(value);
    if (context_.valueSource != nullptr)
        copyKeyOrders(*context_.valueSource, value, context_.output, *copy);
    return copy;
}

std::unique_ptr<jv::JV> ObjectWriter::finish() {
    for (const auto& extension : node_.extensions())
        add(extension.name(), copyOf(*extension.value));
    return object_.finish(context_.output, context_.keyOrderOfNode ? context_.keyOrderOfNode(node_)
                                                                   : std::vector<std::string_view>());
}

const jv::JV* ObjectWriter::sourceOf(std::string_view key) const {
    return memberOf(node_.source(), key);
}

} // namespace specloom::openapi
