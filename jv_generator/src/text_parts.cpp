#include "jv_generator/parts.h"
#include "jv_generator/texts.h"

#include <algorithm> // std::max, std::min

namespace specloom::jv_generator {

namespace {

constexpr std::uint64_t attemptsOfText = 100;
constexpr std::uint64_t legibleLength = 3; ///< texts are no shorter where they may be longer

[[nodiscard]] TextLength lengthOf(const MergedSchema& schema, const GeneratorConfig& config) {
    TextLength length{schema.minLength, schema.maxLength};
    if (length.min == 0)
        length.min = std::min(config.minLength(), length.max);
    // A long text says no more than a short one.
    const std::uint64_t width = config.maxLength() - config.minLength();
    const std::uint64_t wanted = length.min > config.maxLength() ? length.min + width : config.maxLength();
    length.max = std::max(length.min, std::min(length.max, wanted));
    return length;
}

} // namespace

TextPart::TextPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config)
    : graph_(&graph), schema_(std::move(schema)), length_(lengthOf(schema_, config)),
      isChecked_(!schema_.patterns.empty() || !schema_.otherThanPatterns.empty() ||
                 !schema_.formats.empty() || !schema_.otherThanFormats.empty() || !schema_.excluded.empty() ||
                 !schema_.encoding.empty()) {}

std::string_view TextPart::reason() const {
    return "no text was found that fits all it says of texts";
}

bool TextPart::generate(Context& context, jv::JV& out) {
    context.countBytes(schema_.minLength);
    std::string text;
    for (std::uint64_t attempt = 0; attempt < attemptsOfText; ++attempt) {
        text.clear();
        if (!make(context, attempt, text))
            continue;
        out.setString(text);
        if (!isChecked_ || schema_.admits(*graph_, out))
            return true;
    }
    return context.fail(schema_.place, reason());
}

bool StringPart::make(Context& context, std::uint64_t attempt, std::string& text) {
    const std::uint64_t min =
        std::max(length().min, std::min(length().max, attempt < attemptsOfText / 2 ? legibleLength : 0));
    text = prose(context.random(), context.random().between(min, length().max));
    return true;
}

bool FormatPart::make(Context& context, std::uint64_t attempt, std::string& text) {
    // The lengths of the configuration are for free texts.
    TextLength wanted{schema().minLength, schema().maxLength};
    if (attempt > 0 && wanted.max != UINT64_MAX)
        wanted.min = std::max(wanted.min, wanted.max - std::min(wanted.max, attempt % 16));
    else if (attempt > 0)
        wanted.min += attempt % 16;
    text = maker_(context.random(), wanted);
    return true;
}

RegexPart::RegexPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config, TextMaker maker)
    : TextPart(graph, std::move(schema), config), maker_(maker) {
    for (const std::string_view pattern : this->schema().patterns)
        strings_.emplace_back(pattern);
}

bool RegexPart::make(Context& context, std::uint64_t attempt, std::string& text) {
    const TextLength open{schema().minLength, schema().maxLength};
    if (maker_ != nullptr && attempt % 2 == 1) {
        text = maker_(context.random(), open);
        return true;
    }
    const egret::Strings& strings = strings_[attempt / 2 % strings_.size()];
    // First as the configuration would have it, then as the schema alone allows.
    const bool isWithin = attempt == 0;
    const egret::Lengths lengths{isWithin ? length().min : open.min, isWithin ? length().max : open.max};
    std::optional<std::string> found =
        strings.random(lengths, [&](std::uint64_t bound) { return context.random().below(bound); });
    if (!found)
        return false;
    text = std::move(*found);
    return true;
}

std::string_view RegexPart::reason() const {
    return "no text was found that its pattern matches and that fits the rest of it";
}

} // namespace specloom::jv_generator
