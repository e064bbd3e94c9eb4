#include "code_morph_java/spring/annotations.h"

#include "code_morph_java/spring/names.h"
#include "code_morph_java/string_literal.h"

#include <array>   // std::to_array
#include <utility> // std::move

#include <fmt/core.h>

namespace specloom::code_morph::java {
namespace {

constexpr auto mappings = std::to_array<Annotation>({
    {"@GetMapping", "org.springframework.web.bind.annotation.GetMapping"},
    {"@PutMapping", "org.springframework.web.bind.annotation.PutMapping"},
    {"@PostMapping", "org.springframework.web.bind.annotation.PostMapping"},
    {"@DeleteMapping", "org.springframework.web.bind.annotation.DeleteMapping"},
    {"@OptionsMapping", "org.springframework.web.bind.annotation.OptionsMapping"},
    {"@HeadMapping", "org.springframework.web.bind.annotation.HeadMapping"},
    {"@PatchMapping", "org.springframework.web.bind.annotation.PatchMapping"},
    {"@TraceMapping", "org.springframework.web.bind.annotation.TraceMapping"},
});

constexpr auto places = std::to_array<Annotation>({
    {"@PathVariable", "org.springframework.web.bind.annotation.PathVariable"},
    {"@RequestParam", "org.springframework.web.bind.annotation.RequestParam"},
    {"@RequestHeader", "org.springframework.web.bind.annotation.RequestHeader"},
    {"@CookieValue", "org.springframework.web.bind.annotation.CookieValue"},
    {"@RequestBody", "org.springframework.web.bind.annotation.RequestBody"},
});

std::string parameterArguments(std::string_view name, bool isNamed, bool required) {
    std::string arguments;
    if (isNamed)
        arguments = (required ? "" : "name=") + toStringLiteral(name) + (required ? "" : ", ");
    return required ? arguments : arguments += "required=false";
}

} // namespace

Annotation mappingAnnotation(RequestMethod method) {
    return mappings.at(static_cast<std::size_t>(method));
}

AnnotationRef parameterAnnotation(std::string_view name, ParameterPlace place, bool required,
                                  std::string identifier) {
    const Annotation& annotation = places.at(static_cast<std::size_t>(place));
    AnnotationRef result = {annotation.import, std::string(annotation.text), std::move(identifier)};
    const bool isNamed = result.name != name && place != ParameterPlace::Body;
    if (isNamed || !required)
        result.text += fmt::format("({})", parameterArguments(name, isNamed, required));
    return result;
}

AnnotationRef parameterAnnotation(std::string_view name, ParameterPlace place, bool required) {
    return parameterAnnotation(name, place, required, toIdentifier(name));
}

AnnotationRef propertyAnnotation(std::string_view name, bool required, std::string identifier) {
    AnnotationRef result = {{}, {}, std::move(identifier)};
    const bool isNamed = result.name != name;
    if (!isNamed && !required)
        return result;
    result.import = "com.fasterxml.jackson.annotation.JsonProperty";
    result.text = fmt::format("@JsonProperty({}{}{})", isNamed ? "value=" + toStringLiteral(name) : "",
                              isNamed && required ? ", " : "", required ? "required=true" : "");
    return result;
}

AnnotationRef propertyAnnotation(std::string_view name, bool required) {
    return propertyAnnotation(name, required, toIdentifier(name));
}

std::string sizeAnnotation(std::optional<std::int64_t> minimum, std::optional<std::int64_t> maximum) {
    if (!minimum && !maximum)
        return "";
    const std::string least = minimum && *minimum != 0 ? fmt::format("min = {}", *minimum) : "";
    const std::string most = maximum ? fmt::format("max = {}", *maximum) : "";
    const bool isBoth = minimum && *minimum > 0 && maximum;
    return fmt::format("{}({}{}{})", annotations::size.text, least, isBoth ? ", " : "", most);
}

std::string patternAnnotation(std::string_view pattern) {
    return fmt::format("{}(regexp = {})", annotations::pattern.text, toStringLiteral(pattern));
}

} // namespace specloom::code_morph::java
