#pragma once

#include "foundation/message.h"
#include "jv/jv.h"
#include "jv/tree_builder.h"
#include "jv_generator/generator_config.h"
#include "openapi/node.h"

#include <cstdint>   // std::uint64_t
#include <memory>    // std::unique_ptr
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

namespace specloom::jv_generator {

/// So many containers may be around one another in a value: documents cannot be written with more.
inline constexpr std::uint32_t deepestValue = 120;
/// So many values, and bytes of texts, a generator makes in all.
inline constexpr std::uint64_t mostGenerated = 100'000'000;
/// So many times a value is made anew until it fits.
inline constexpr int mostAttempts = 64;

/// A pattern that is part of what a schema asks for.
struct UsedPattern {
    std::string pattern;
    const jv::JV* schema; ///< of the document, with that pattern
};

/// No value fits a schema: it contradicts itself, or asks for itself without end.
class NoValueError : public std::runtime_error {
  public:
    explicit NoValueError(const Message& message) : std::runtime_error(message.composed()) {}
};

/// Makes values that fit a schema of an OpenAPI document. The same schema and configuration give the same
/// values, on every platform.
///
///     Generator generator;
///     generator.setSchema(schema);
///     const std::unique_ptr<jv::JV> value = generator.generate();
///
/// For many schemas of one document, which share what is read and learnt of it:
///
///     generator.setSchemas(schemas);
///     generator.choose(*schemas[7]);
///     const std::unique_ptr<jv::JV> value = generator.generate();
class Generator {
  public:
    Generator();
    /// As setSchema().
    explicit Generator(const openapi::Node& schema);
    ~Generator();

    /// For changes before setSchema().
    [[nodiscard]] GeneratorConfig& config() noexcept;

    /// Takes a schema, or a reference to one, that was read from a document, which outlives the generator.
    /// Does nothing for the one that is set already. Throws std::runtime_error, with the JSON pointer of the
    /// schema and, where that is another one, of the schema that says why,
    ///   "No value fits the schema at {}: {}"        as NoValueError
    ///   "No value fits the schema at {}: {} ({})"   as NoValueError
    ///   "The schema at {} cannot be used: {}"
    ///   "Every value of the schema at {} is nested more than 120 levels deep"
    ///   "Every value of the schema at {} has more than 100000000 values and bytes"
    void setSchema(const openapi::Node& schema);

    /// Takes several schemas of one document, or references to one, in place of any before. Throws
    /// std::runtime_error "The schema at {} cannot be used: {}" for one of them, or for one that they refer
    /// to.
    void setSchemas(const std::vector<const openapi::Node*>& schemas);
    /// The next values are of this schema, which is one of setSchemas(), from its first one on; of schemas
    /// that were chosen before they depend where alternatives of `oneOf` had to be told apart. Throws what
    /// setSchema() does of a schema without values.
    void choose(const openapi::Node& schema);

    /// The next value. Needs a schema. Throws std::runtime_error
    ///   "No value was found for the schema at {} in {} attempts: {}"
    ///   "The values of the schema at {} have more than 100000000 values and bytes"
    [[nodiscard]] std::unique_ptr<jv::JV> generate();
    /// The same, but adds the value to a tree, where one may stand. The tree is of no use when this throws.
    void generate(jv::TreeBuilder& out);

    /// Throws as generate() when so many values are sure to be too large together. Needs a schema.
    void requireRoomFor(std::uint64_t values) const;

    /// The patterns of the schemas that values were made for, each schema once, in the order of their first
    /// use.
    [[nodiscard]] const std::vector<UsedPattern>& usedPatterns() const noexcept;

  private:
    class Impl;

    std::unique_ptr<Impl> impl_;
};

} // namespace specloom::jv_generator
