#include "openapi/reader/object_reader.h"

namespace specloom::openapi {

// The typed getters of JV know the texts of failures, so a value of a wrong kind is asked for once more.

Text Member::text() const {
    if (!value.isString())
        (void)object.getString(name);
    return Text::borrow(value.text());
}

bool Member::boolean() const {
    if (!value.isBoolean())
        (void)object.getBoolean(name);
    return value.boolean();
}

number::Number Member::number() const {
    if (!value.isNumber())
        (void)object.getNumeric(name);
    return value.number();
}

const jv::JV& Member::asObject() const {
    if (!value.isObject())
        (void)object.getObject(name);
    return value;
}

const jv::JV& Member::asArray() const {
    if (!value.isArray())
        (void)object.getArray(name);
    return value;
}

std::vector<Text> readTexts(ReaderContext& context, const Node& node, const jv::JV& array) {
    std::vector<Text> texts;
    texts.reserve(array.size());
    for (const jv::JV* element : array.elements()) {
        if (element->isString())
            texts.push_back(Text::borrow(element->text()));
        else
            context.report(node, element, "Expected string value");
    }
    return texts;
}

} // namespace specloom::openapi
