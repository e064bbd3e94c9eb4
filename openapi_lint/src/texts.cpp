#include "openapi_lint/texts.h"

#include "foundation/message.h"
#include "foundation/strings.h"
#include "openapi_lint/rule_configuration_error.h"

#include <array>   // std::array
#include <utility> // std::pair

namespace specloom::openapi_lint {
namespace {

constexpr std::array<std::string_view, 3> placeholders = {"TODO", "FIXME", "TBD"};

constexpr std::array<std::pair<std::string_view, NamingConvention>, 6> conventions = {{
    {"camel", NamingConvention::Camel},
    {"const", NamingConvention::Const},
    {"kebab", NamingConvention::Kebab},
    {"pascal", NamingConvention::Pascal},
    {"header", NamingConvention::Header},
    {"snake", NamingConvention::Snake},
}};

} // namespace

bool isMeaningfulText(std::optional<std::string_view> text, const number::Number& minimumLength) {
    if (!text || text->empty() || minimumLength.compare(text->size()) > 0)
        return false;
    if (findFirstNotOf(*text, " \t\n\v\f\r") < 0)
        return false;
    for (const std::string_view placeholder : placeholders)
        if (text->size() == placeholder.size() && compareIgnoreCase(*text, placeholder) == 0)
            return false;
    return true;
}

NamingConvention parseNamingConvention(std::string_view text, std::string_view ruleId) {
    for (const auto& [name, convention] : conventions)
        if (name == text)
            return convention;
    throw RuleConfigurationError(ruleId, formatMessage("Unknown naming convention: {}", text));
}

std::string withoutTemplateNames(std::string_view path) {
    std::string result;
    while (true) {
        const std::size_t open = path.find('{');
        const std::size_t close = open == std::string_view::npos ? open : path.find('}', open);
        if (close == std::string_view::npos)
            return result.append(path);
        result.append(path.substr(0, open)).append("{}");
        path.remove_prefix(close + 1);
    }
}

std::string withoutRepeatedSlashes(std::string_view path) {
    std::string result;
    for (const char c : path)
        if (c != '/' || result.empty() || result.back() != '/')
            result += c;
    return result;
}

std::string_view withoutTrailingSlash(std::string_view path) {
    if (path.ends_with('/'))
        path.remove_suffix(1);
    return path;
}

} // namespace specloom::openapi_lint
