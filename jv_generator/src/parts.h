#pragma once

#include "egret/strings.h"
#include "jv_generator/decimal.h"
#include "jv_generator/formats.h"
#include "jv_generator/gen_base.h"
#include "jv_generator/merged_schema.h"

#include <cstdint>     // std::uint8_t, std::uint64_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

// The parts whose values hold no others. What a part is made of outlives it.
namespace specloom::jv_generator {

class TruePart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
};

class FalsePart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
};

class BooleanPart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
};

class NullPart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
};

/// Of a schema that says nothing: the fallback.
class TruthyPart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
};

/// One of some values.
class EnumPart final : public GenBase {
  public:
    explicit EnumPart(std::vector<const jv::JV*> values) : values_(std::move(values)) {}
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;

  private:
    std::vector<const jv::JV*> values_;
};

/// The numbers of a range that are multiples of a step.
class NumberPart : public GenBase {
  public:
    /// With `kinds` of integers only, of others only, or of both.
    NumberPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config);
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
    /// Whether there is none.
    [[nodiscard]] bool isEmpty() const noexcept { return !hasOpenEnd() && least_ > most_; }

  private:
    [[nodiscard]] bool hasOpenEnd() const noexcept { return isOpenBelow_ || isOpenAbove_; }
    void setStep();
    void setRange(const GeneratorConfig& config);
    [[nodiscard]] bool hasFormat(std::string_view name) const;
    void keepToFormat();
    [[nodiscard]] bool isFine(const number::Number& value) const;
    [[nodiscard]] bool needsLook(const number::Number& value) const;
    [[nodiscard]] Integer draw(Context& context) const;

    SchemaGraph* graph_;
    MergedSchema schema_;
    bool isPlain_;      ///< nothing but limits, multiples and kinds is asked for
    int scale_ = 0;     ///< all is counted in ten to the minus so many
    Integer step_ = 1;  ///< between two values
    Integer least_ = 0; ///< in steps
    Integer most_ = 0;
    Integer width_ = 0; ///< of the range of the configuration, in steps
    bool isOpenBelow_ = false;
    bool isOpenAbove_ = false;
    bool isSimple_ = false; ///< all integers of 64 bits between the two ends fit
};

class IntegerPart final : public NumberPart {
  public:
    using NumberPart::NumberPart;
};

/// Texts that are made and looked at until one fits.
class TextPart : public GenBase {
  public:
    TextPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config);
    [[nodiscard]] bool generate(Context& context, jv::TreeBuilder& out) override;
    [[nodiscard]] std::uint64_t leastBytes() const override { return schema_.minLength; }

  protected:
    enum class Made : std::uint8_t {
        Nothing,
        Something, ///< that may fit
        Fitting
    };
    /// Appends a text. `attempt` counts from 0.
    [[nodiscard]] virtual Made make(Context& context, std::uint64_t attempt, std::string& text) = 0;
    [[nodiscard]] virtual std::string_view reason() const;
    /// For constructors: a check of texts that is not needed.
    void leaveOut(TextCheck check);
    [[nodiscard]] const MergedSchema& schema() const noexcept { return schema_; }
    /// The lengths that the schema allows and, where it leaves them open, the configuration wants.
    [[nodiscard]] const TextLength& length() const noexcept { return length_; }
    /// Whether nothing is asked of texts but their length and patterns.
    [[nodiscard]] bool isFree() const;

  private:
    SchemaGraph* graph_;
    MergedSchema schema_;
    TextLength length_;
};

/// Letters.
class StringPart final : public TextPart {
  public:
    StringPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config);

  protected:
    [[nodiscard]] Made make(Context& context, std::uint64_t attempt, std::string& text) override;

  private:
    Made made_; ///< what a text of the right length is
};

/// Texts of formats.
class FormatPart final : public TextPart {
  public:
    /// The maker is that of `format`, or of an encoding.
    FormatPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config, TextMaker maker,
               std::string_view format);

  protected:
    [[nodiscard]] Made make(Context& context, std::uint64_t attempt, std::string& text) override;

  private:
    TextMaker maker_;
    Made made_;
};

/// Texts that patterns match.
class RegexPart final : public TextPart {
  public:
    RegexPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config, TextMaker maker);

  protected:
    [[nodiscard]] Made make(Context& context, std::uint64_t attempt, std::string& text) override;
    [[nodiscard]] std::string_view reason() const override;

  private:
    std::vector<egret::Strings> strings_;
    TextMaker maker_;          ///< of the format; null when there is none
    Made made_;                ///< what a text of the first pattern is
    bool isTooNarrow_ = false; ///< no such text has a length that the configuration wants
};

} // namespace specloom::jv_generator
