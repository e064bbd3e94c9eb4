#include "templating/data.h"

#include <string>  // std::string
#include <utility> // std::pair
#include <vector>  // std::vector

#include <nlohmann/json.hpp>

namespace specloom::templating {
namespace {

nlohmann::json numberOf(const jv::JV& value) {
    const number::Number number = value.number();
    return value.isInteger() && value.fitsInt64() ? nlohmann::json(number.toLong())
                                                  : nlohmann::json(number.toDouble());
}

/// An array or object without what stands in it.
nlohmann::json shallowDataOf(const jv::JV& value) {
    switch (value.kind()) {
    case jv::Kind::Null:
        return nullptr;
    case jv::Kind::Boolean:
        return value.boolean();
    case jv::Kind::Number:
        return numberOf(value);
    case jv::Kind::String:
        return std::string(value.text());
    case jv::Kind::Array:
        return nlohmann::json::array();
    case jv::Kind::Object:
        break;
    }
    return nlohmann::json::object();
}

} // namespace

nlohmann::json toData(const jv::JV& value) {
    nlohmann::json result = shallowDataOf(value);
    // What an array is pushed to moves, so each array is filled before what stands in it.
    std::vector<std::pair<const jv::JV*, nlohmann::json*>> open = {{&value, &result}};
    while (!open.empty()) {
        const auto [source, target] = open.back();
        open.pop_back();
        if (source->isArray()) {
            for (const jv::JV* element : source->elements())
                target->push_back(shallowDataOf(*element));
            for (std::size_t index = 0; const jv::JV* element : source->elements())
                open.emplace_back(element, &(*target)[index++]);
        } else if (source->isObject()) {
            for (const jv::Member& member : source->members())
                open.emplace_back(member.value,
                                  &((*target)[std::string(member.key)] = shallowDataOf(*member.value)));
        }
    }
    return result;
}

} // namespace specloom::templating
