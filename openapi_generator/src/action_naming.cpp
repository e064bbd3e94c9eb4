#include "openapi_generator/action_naming.h"

#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "openapi_generator/codegen_extensions.h"
#include "openapi_generator/config_error.h"

#include <algorithm> // std::find
#include <stdexcept> // std::runtime_error

#include <fmt/core.h>

namespace specloom::openapi_generator {
namespace {

void addNameSource(const jv::JV& value, std::vector<NameSource>& list) {
    if (!value.isString())
        throw ConfigError("Name sources must be a string or an array thereof", &value);
    const NameSource source = parseNameSource(value.text());
    if (std::find(list.begin(), list.end(), source) != list.end())
        throw std::runtime_error("Element already exists");
    list.push_back(source);
}

std::optional<std::string> actionNameBy(NameSource source, const openapi::OperationRef& ref) {
    switch (source) {
    case NameSource::Id:
        return std::optional<std::string>(ref.operation->operationId());
    case NameSource::Extension:
        return std::optional<std::string>(actionNameOf(*ref.operation));
    case NameSource::Url:
        return fmt::format("{}_{}", openapi::operationKey(ref.method), ref.path);
    }
    SPECLOOM_UNREACHABLE("no source of a name");
}

} // namespace

NameSource parseNameSource(std::string_view text) {
    if (text == "id")
        return NameSource::Id;
    if (text == "extension")
        return NameSource::Extension;
    if (text == "url")
        return NameSource::Url;
    throw std::runtime_error(formatMessage("Invalid name source: '{}'", text));
}

void readNameSources(const jv::JV& value, std::vector<NameSource>& list) {
    if (!value.isArray()) {
        addNameSource(value, list);
        return;
    }
    for (const jv::JV* element : value.elements())
        addNameSource(*element, list);
}

std::optional<std::string> actionName(const std::vector<NameSource>& sources,
                                      const openapi::OperationRef& ref) {
    for (const NameSource source : sources)
        if (std::optional<std::string> name = actionNameBy(source, ref))
            return name;
    return std::nullopt;
}

} // namespace specloom::openapi_generator
