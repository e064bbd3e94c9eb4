#include "jv_generator/parts.h"
#include "jv_generator/texts.h"

#include <algorithm> // std::max, std::min
#include <optional>  // std::optional
#include <utility>   // std::move

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
    : graph_(&graph), schema_(std::move(schema)), length_(lengthOf(schema_, config)) {}

std::string_view TextPart::reason() const {
    return "no text was found that fits all it says of texts";
}

void TextPart::leaveOut(TextCheck check) {
    std::erase(schema_.checks, check);
}

bool TextPart::isFree() const {
    return schema_.otherThanPatterns.empty() && schema_.checks.empty() && schema_.otherChecks.empty() &&
           schema_.excluded.empty();
}

bool TextPart::generate(Context& context, jv::TreeBuilder& out) {
    if (schema_.minLength > 0)
        context.countBytes(schema_.minLength);
    std::string& text = context.buffer();
    for (std::uint64_t attempt = 0; attempt < attemptsOfText; ++attempt) {
        text.clear();
        const Made made = make(context, attempt, text);
        if (made == Made::Fitting || (made == Made::Something && schema_.admitsText(*graph_, text))) {
            out.addString(text, {});
            return true;
        }
    }
    return context.fail(schema_.place, reason());
}

StringPart::StringPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config)
    : TextPart(graph, std::move(schema), config), made_(isFree() ? Made::Fitting : Made::Something) {}

TextPart::Made StringPart::make(Context& context, std::uint64_t attempt, std::string& text) {
    const std::uint64_t min =
        std::max(length().min, std::min(length().max, attempt < attemptsOfText / 2 ? legibleLength : 0));
    addProse(context.random(), context.random().between(min, length().max), text);
    return made_;
}

FormatPart::FormatPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config,
                       TextMaker maker, std::string_view format)
    : TextPart(graph, std::move(schema), config), maker_(maker) {
    // Of those of its format it makes no others.
    leaveOut(textCheckOf(format));
    const bool hasLength = this->schema().minLength > 0 || this->schema().maxLength != UINT64_MAX;
    made_ = isFree() && !hasLength ? Made::Fitting : Made::Something;
}

TextPart::Made FormatPart::make(Context& context, std::uint64_t attempt, std::string& text) {
    // The lengths of the configuration are for free texts.
    TextLength wanted{schema().minLength, schema().maxLength};
    if (attempt > 0 && wanted.max != UINT64_MAX)
        wanted.min = std::max(wanted.min, wanted.max - std::min(wanted.max, attempt % 16));
    else if (attempt > 0)
        wanted.min += attempt % 16;
    maker_(context.random(), wanted, text);
    return made_;
}

RegexPart::RegexPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config, TextMaker maker)
    : TextPart(graph, std::move(schema), config), maker_(maker) {
    for (const std::string_view pattern : this->schema().patterns)
        strings_.emplace_back(pattern);
    made_ = isFree() && strings_.size() == 1 ? Made::Fitting : Made::Something;
}

TextPart::Made RegexPart::make(Context& context, std::uint64_t attempt, std::string& text) {
    const TextLength open{schema().minLength, schema().maxLength};
    if (maker_ != nullptr && attempt % 2 == 1) {
        maker_(context.random(), open, text);
        return Made::Something;
    }
    // First as the configuration would have it, then as the schema alone allows.
    const bool isWithin = attempt == 0 && !isTooNarrow_;
    const egret::Strings& strings = strings_[attempt / 2 % strings_.size()];
    const egret::Lengths lengths{isWithin ? length().min : open.min, isWithin ? length().max : open.max};
    const std::optional<std::string> found =
        strings.random(lengths, [&](std::uint64_t bound) { return context.random().below(bound); });
    isTooNarrow_ |= isWithin && !found;
    if (!found)
        return Made::Nothing;
    text += *found;
    return made_;
}

std::string_view RegexPart::reason() const {
    return "no text was found that its pattern matches and that fits the rest of it";
}

} // namespace specloom::jv_generator
