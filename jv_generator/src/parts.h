#pragma once

#include "egret/strings.h"
#include "jv_generator/decimal.h"
#include "jv_generator/formats.h"
#include "jv_generator/gen_base.h"
#include "jv_generator/merged_schema.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

// The parts whose values hold no others. What a part is made of outlives it.
namespace specloom::jv_generator {

class TruePart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
};

class FalsePart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
};

class BooleanPart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
};

class NullPart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
};

/// Of a schema that says nothing: the fallback.
class TruthyPart final : public GenBase {
  public:
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
};

/// One of some values.
class EnumPart final : public GenBase {
  public:
    explicit EnumPart(std::vector<const jv::JV*> values) : values_(std::move(values)) {}
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;

  private:
    std::vector<const jv::JV*> values_;
};

/// The numbers of a range that are multiples of a step.
class NumberPart : public GenBase {
  public:
    /// With `kinds` of integers only, of others only, or of both.
    NumberPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config);
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
    /// Whether there is none.
    [[nodiscard]] bool isEmpty() const noexcept { return !hasOpenEnd() && least_ > most_; }

  private:
    [[nodiscard]] bool hasOpenEnd() const noexcept { return isOpenBelow_ || isOpenAbove_; }
    void setStep();
    void setRange(const GeneratorConfig& config);
    [[nodiscard]] bool hasFormat(std::string_view name) const;
    void keepToFormat();
    [[nodiscard]] bool isFine(const number::Number& value) const;
    [[nodiscard]] Integer draw(Context& context) const;

    SchemaGraph* graph_;
    MergedSchema schema_;
    int scale_ = 0;     ///< all is counted in ten to the minus so many
    Integer step_ = 1;  ///< between two values
    Integer least_ = 0; ///< in steps
    Integer most_ = 0;
    Integer width_ = 0; ///< of the range of the configuration, in steps
    bool isOpenBelow_ = false;
    bool isOpenAbove_ = false;
};

class IntegerPart final : public NumberPart {
  public:
    using NumberPart::NumberPart;
};

/// Texts that are made and looked at until one fits.
class TextPart : public GenBase {
  public:
    TextPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config);
    [[nodiscard]] bool generate(Context& context, jv::JV& out) override;
    [[nodiscard]] std::uint64_t leastBytes() const override { return schema_.minLength; }

  protected:
    /// A text that may fit; empty when there is none. `attempt` counts from 0.
    [[nodiscard]] virtual bool make(Context& context, std::uint64_t attempt, std::string& text) = 0;
    [[nodiscard]] virtual std::string_view reason() const;
    [[nodiscard]] const MergedSchema& schema() const noexcept { return schema_; }
    /// The lengths that the schema allows and, where it leaves them open, the configuration wants.
    [[nodiscard]] const TextLength& length() const noexcept { return length_; }

  private:
    SchemaGraph* graph_;
    MergedSchema schema_;
    TextLength length_;
    bool isChecked_; ///< whether there is anything that a text of that length could break
};

/// Letters.
class StringPart final : public TextPart {
  public:
    using TextPart::TextPart;

  protected:
    [[nodiscard]] bool make(Context& context, std::uint64_t attempt, std::string& text) override;
};

/// Texts of formats.
class FormatPart : public TextPart {
  public:
    FormatPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config, TextMaker maker)
        : TextPart(graph, std::move(schema), config), maker_(maker) {}

  protected:
    [[nodiscard]] bool make(Context& context, std::uint64_t attempt, std::string& text) override;

  private:
    TextMaker maker_;
};

/// Texts that patterns match.
class RegexPart final : public TextPart {
  public:
    RegexPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config, TextMaker maker);

  protected:
    [[nodiscard]] bool make(Context& context, std::uint64_t attempt, std::string& text) override;
    [[nodiscard]] std::string_view reason() const override;

  private:
    std::vector<egret::Strings> strings_;
    TextMaker maker_; ///< of the format; null when there is none
};

} // namespace specloom::jv_generator
