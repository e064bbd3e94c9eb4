#include "openapi/parameter.h"

#include "foundation/unreachable.h"

#include <algorithm> // std::find
#include <array>     // std::array

namespace specloom::openapi {

namespace {

constexpr std::array<std::string_view, 4> parameterLocations{"path", "query", "header", "cookie"};

} // namespace

std::string_view parameterLocationName(ParameterLocation location) {
    return parameterLocations.at(static_cast<std::size_t>(location));
}

std::optional<ParameterLocation> parameterLocationFromName(std::string_view name) {
    const auto found = std::find(parameterLocations.begin(), parameterLocations.end(), name);
    if (found == parameterLocations.end())
        return std::nullopt;
    return static_cast<ParameterLocation>(found - parameterLocations.begin());
}

ParameterLocation Parameter::location() const {
    switch (type()) {
    case NodeType::PathParameter:
        return ParameterLocation::Path;
    case NodeType::QueryParameter:
        return ParameterLocation::Query;
    case NodeType::HeaderParameter:
        return ParameterLocation::Header;
    case NodeType::CookieParameter:
        return ParameterLocation::Cookie;
    default:
        SPECLOOM_UNREACHABLE("Unknown parameter location");
    }
}

bool Parameter::allowsStyle(ParameterLocation location, ParameterStyle style) {
    using enum ParameterStyle;
    switch (location) {
    case ParameterLocation::Path:
        return style == Matrix || style == Label || style == Simple;
    case ParameterLocation::Query:
        return style == Form || style == SpaceDelimited || style == PipeDelimited || style == DeepObject;
    case ParameterLocation::Header:
        return style == Simple;
    case ParameterLocation::Cookie:
        return style == Form;
    }
    SPECLOOM_UNREACHABLE("Unknown parameter location");
}

} // namespace specloom::openapi
