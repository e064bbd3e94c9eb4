// URI templates: the first line of the input is a template, the rest the value of its variables "a" (text),
// "b" (list) and "c" (associative array).

#include "foundation/uri_template.h"
#include "fuzz/check.h"

#include <algorithm> // std::min
#include <optional>  // std::optional

namespace {

using specloom::UriTemplate;
using specloom::UriTemplateError;
using specloom::UriTemplateFault;
using specloom::fuzz::require;

std::optional<UriTemplate> parse(std::string_view text) {
    try {
        return UriTemplate(std::string(text));
    } catch (const UriTemplateError& error) {
        require(error.offset() <= text.size(), "a fault lies in its template");
        return std::nullopt;
    }
}

std::optional<std::string> expand(const UriTemplate& parsed,
                                  const specloom::UriTemplateVariables& variables) {
    try {
        return parsed.expand(variables);
    } catch (const UriTemplateError& error) {
        require(error.fault() == UriTemplateFault::PrefixOfComposite, "nothing else goes wrong this late");
        require(parsed.text().at(error.offset()) == ':', "the fault is the prefix");
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = specloom::fuzz::textOf(data, size);
    const std::size_t lineEnd = std::min(input.find('\n'), input.size());
    const std::string_view text = input.substr(0, lineEnd);
    const std::string value(input.substr(std::min(lineEnd + 1, input.size())));

    const auto parsed = parse(text);
    require(parsed.has_value() == specloom::isValidUriTemplate(text), "both entries agree");
    if (!parsed)
        return 0;
    const auto result = expand(*parsed, {{"a", value},
                                         {"b", specloom::UriTemplateList{value, "", value}},
                                         {"c", specloom::UriTemplatePairs{{value, value}, {"x", ""}}}});
    if (result) {
        require(result->find_first_of("{} \"<>\\^`|") == std::string::npos, "a result is a URI reference");
        const auto again = parse(*result);
        require(again && expand(*again, {}) == result, "a result expands to itself");
    }
    return 0;
}
