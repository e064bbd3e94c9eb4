#pragma once

#include "foundation/message.h"
#include "jv/jv.h"
#include "jv_schema/draft.h"
#include "jv_schema/schema_registry.h"

#include <cstddef>     // std::size_t
#include <memory>      // std::shared_ptr
#include <optional>    // std::optional
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::pair
#include <vector>      // std::vector

namespace specloom::jv::schema {

struct Program;

/// A schema that cannot be compiled. The text ends with the place, " at " and location().
class CompileError : public std::runtime_error {
  public:
    CompileError(const Message& message, std::string location)
        : std::runtime_error(formatMessage("{} at {}", message.composed(), location)),
          location_(std::move(location)) {}
    /// The URI of the schema, if it has one, and a JSON pointer as its fragment.
    [[nodiscard]] const std::string& location() const noexcept { return location_; }

  private:
    std::string location_;
};

/// What is wrong with an instance.
struct ValidationError {
    std::string instancePointer; ///< JSON pointer (RFC 6901) of the value at fault
    /// Of the keyword that it breaks: the URI of the schema, if it has one, and a JSON pointer as its
    /// fragment.
    std::string schemaLocation;
    std::string keyword;
    std::string message; ///< in lower case, without a full stop; what it quotes of a document is clipped
    /// Of `oneOf`: the first two alternatives that match, counted from 0.
    std::optional<std::pair<std::size_t, std::size_t>> matching = std::nullopt;

    friend bool operator==(const ValidationError&, const ValidationError&) = default;
};

struct CompileOptions {
    Draft defaultDraft = Draft::D2020;        ///< of a schema without `$schema`
    std::string baseUri;                      ///< against which the references of the schema are resolved
    const SchemaRegistry* registry = nullptr; ///< where other schemas are found; not needed afterwards
    bool assertFormats = false;               ///< `format` checks instead of only telling
};

/// So many schemas may be applied within one another, to a value or to what it holds. Bounds the stack.
inline constexpr std::size_t deepestEvaluation = 1500;
/// So many times may schemas be applied in all. Schemas that reach others by many ways (thirty levels of two
/// references to the next one are 2^30 ways) are decided nevertheless, because what a schema said of a value
/// is remembered in long evaluations; unless they ask for unevaluated properties or refer dynamically, since
/// then the way matters.
inline constexpr std::size_t longestEvaluation = 50'000'000;
/// So many errors are collected, then the search ends.
inline constexpr std::size_t mostErrors = 10'000;
/// Or until their instance pointers have so many bytes: keys may be long, and each error below them repeats
/// them.
inline constexpr std::size_t mostErrorBytes = std::size_t{16} << 20;

/// A JSON Schema, compiled once and evaluated often; copies share what was compiled. Drafts 4, 6, 7, 2019-09
/// and 2020-12, as `$schema` says. Nothing is ever fetched.
class Schema {
  public:
    /// Throws CompileError. The schema and what it needs of the registry are copied or shared: neither has to
    /// outlive the result.
    [[nodiscard]] static Schema compile(const JV& schema, const CompileOptions& options = {});

    /// Whether an instance satisfies the schema. An instance that cannot be decided within the limits above,
    /// or within that of a pattern, is not valid.
    [[nodiscard]] bool isValid(const JV& instance) const;

    /// What is wrong with an instance, in the order of the schema's keywords and the instance's keys; empty
    /// when it is valid. Of the branches of `anyOf` and `oneOf` the one that came closest speaks. When a
    /// limit was reached this is the only error, with one of the texts
    ///   "schema is nested more than 1500 levels deep"
    ///   "schema refers to itself without end"
    ///   "schema takes more than 50000000 steps"
    ///   "pattern '...' takes too many steps"
    [[nodiscard]] std::vector<ValidationError> validate(const JV& instance) const;

  private:
    explicit Schema(std::shared_ptr<const Program> program) : program_(std::move(program)) {}

    std::shared_ptr<const Program> program_;
};

} // namespace specloom::jv::schema
