#pragma once

#include <cstdint>     // std::int64_t, std::uint8_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

// The annotations that classes of a Spring server carry.
namespace specloom::code_morph::java {

/// An annotation without arguments, and the qualified name of its class.
struct Annotation {
    std::string_view text;
    std::string_view import;
};

namespace annotations {

inline constexpr Annotation assertFalse = {"@AssertFalse", "jakarta.validation.constraints.AssertFalse"};
inline constexpr Annotation assertTrue = {"@AssertTrue", "jakarta.validation.constraints.AssertTrue"};
inline constexpr Annotation max = {"@Max", "jakarta.validation.constraints.Max"};
inline constexpr Annotation min = {"@Min", "jakarta.validation.constraints.Min"};
inline constexpr Annotation notNull = {"@NotNull", "jakarta.validation.constraints.NotNull"};
inline constexpr Annotation pattern = {"@Pattern", "jakarta.validation.constraints.Pattern"};
inline constexpr Annotation size = {"@Size", "jakarta.validation.constraints.Size"};
inline constexpr Annotation afterAll = {"@AfterAll", "org.junit.jupiter.api.AfterAll"};
inline constexpr Annotation afterEach = {"@AfterEach", "org.junit.jupiter.api.AfterEach"};
inline constexpr Annotation beforeAll = {"@BeforeAll", "org.junit.jupiter.api.BeforeAll"};
inline constexpr Annotation beforeEach = {"@BeforeEach", "org.junit.jupiter.api.BeforeEach"};
inline constexpr Annotation disabled = {"@Disabled", "org.junit.jupiter.api.Disabled"};
inline constexpr Annotation test = {"@Test", "org.junit.jupiter.api.Test"};

} // namespace annotations

/// An annotation of an element that has a name.
struct AnnotationRef {
    std::string_view import; ///< the qualified name of the class; empty when there is no annotation
    std::string text;        ///< as it stands in the code
    std::string name;        ///< the Java identifier of the element
};

enum class RequestMethod : std::uint8_t { Get, Put, Post, Delete, Options, Head, Patch, Trace };

/// "@GetMapping" and so on. Spring has no class for OPTIONS, HEAD and TRACE.
[[nodiscard]] Annotation mappingAnnotation(RequestMethod method);

enum class ParameterPlace : std::uint8_t { Path, Query, Header, Cookie, Body };

/// The annotation of an argument that takes its value from `place`: "@RequestParam", and
/// "@RequestParam("x-id")" where the identifier is not the name itself. What need not be there has also
/// "required=false".
[[nodiscard]] AnnotationRef parameterAnnotation(std::string_view name, ParameterPlace place, bool required,
                                                std::string identifier);
/// The same with toIdentifier() of the name.
[[nodiscard]] AnnotationRef parameterAnnotation(std::string_view name, ParameterPlace place, bool required);

/// The annotation of a component of a record that stands for a property of JSON: none, or "@JsonProperty"
/// with the name where the identifier is another, and with "required=true".
[[nodiscard]] AnnotationRef propertyAnnotation(std::string_view name, bool required, std::string identifier);
/// The same with toIdentifier() of the name.
[[nodiscard]] AnnotationRef propertyAnnotation(std::string_view name, bool required);

/// "@Size(min = 1, max = 2)", without the bounds that are absent and without a minimum of 0; empty when both
/// are absent.
[[nodiscard]] std::string sizeAnnotation(std::optional<std::int64_t> minimum,
                                         std::optional<std::int64_t> maximum);

/// "@Pattern(regexp = "...")".
[[nodiscard]] std::string patternAnnotation(std::string_view pattern);

} // namespace specloom::code_morph::java
