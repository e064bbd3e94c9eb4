#pragma once

#include "jv/tree_builder.h"
#include "jv_generator/generator_config.h"
#include "jv_generator/random_engine.h"

#include <cstdint>     // std::uint8_t, std::uint32_t, std::uint64_t
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv_generator {

struct Demand;

/// How much of what a schema leaves open is made.
enum class Fullness : std::uint8_t {
    Required, ///< nothing
    Scalars,  ///< what holds no other values
    Full
};

/// What parts work with.
class Context {
  public:
    virtual ~Context() = default;

    [[nodiscard]] virtual const GeneratorConfig& config() const = 0;
    [[nodiscard]] virtual RandomEngine& random() = 0;
    /// Adds a value to `out` that a demand asks for. False when none was found; `out` is as before then.
    [[nodiscard]] virtual bool generate(Demand& demand, jv::TreeBuilder& out) = 0;
    /// Adds the integer 42 to `out`.
    virtual void generateFallback(jv::TreeBuilder& out) = 0;

    /// A text to work with; nobody counts on what it holds.
    [[nodiscard]] virtual std::string& buffer() noexcept = 0;
    /// A tree beside that of the value, with nothing but its root.
    [[nodiscard]] virtual jv::TreeBuilder& scratch() = 0;

    /// Whether there are values that a demand asks for, as far as can be told beforehand.
    [[nodiscard]] virtual bool isPossible(Demand& demand) = 0;
    /// Containers around the value that is being made.
    [[nodiscard]] virtual std::uint32_t depth() const noexcept = 0;
    [[nodiscard]] virtual Fullness fullness() const noexcept = 0;
    /// How many times the ranges of numbers that a schema leaves open are to be doubled, since too few
    /// different values came of them.
    [[nodiscard]] virtual std::uint32_t spread() const noexcept = 0;
    virtual void setSpread(std::uint32_t doublings) noexcept = 0;
    /// Counts bytes of a text before they are made. Throws as Generator::generate() does for too many.
    virtual void countBytes(std::uint64_t bytes) = 0;
    /// Says why a part found no value; always false. The first reason of an attempt counts.
    bool fail(const jv::JV* schema, std::string_view reason) {
        noteFailure(schema, reason);
        return false;
    }

  protected:
    virtual void noteFailure(const jv::JV* schema, std::string_view reason) = 0;
};

/// What a value of a part cannot do without.
struct Need {
    Demand* demand;
    std::uint64_t count;
};

/// A part of a generator: makes the values that one demand asks for.
class GenBase {
  public:
    virtual ~GenBase() = default;
    /// Adds a value to `out`. False when none was found; what was added is the caller's to take back then.
    [[nodiscard]] virtual bool generate(Context& context, jv::TreeBuilder& out) = 0;
    [[nodiscard]] virtual std::span<const Need> needs() const { return {}; }
    /// Bytes that a value has besides those of its needs.
    [[nodiscard]] virtual std::uint64_t leastBytes() const { return 0; }
    [[nodiscard]] virtual bool isContainer() const { return false; }
};

} // namespace specloom::jv_generator
