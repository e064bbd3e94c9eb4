#include "jv_schema/pattern_site.h"

#include "foundation/message.h"
#include "jv_schema/messages.h"

#include <fmt/core.h>

namespace specloom::jv::schema {

TextMatcher compilePattern(const Site& site, std::string_view source) {
    try {
        return TextMatcher(source);
    } catch (const PatternError& error) {
        site.fault(formatMessage(message::invalidPattern, quoted(source), error.what()));
    }
}

bool matches(const TextMatcher& matcher, std::string_view source, std::string_view text,
             const Keyword& keyword, const Evaluation& evaluation) {
    const TextMatcher::Outcome outcome = matcher.search(text);
    if (outcome == TextMatcher::Outcome::TooCostly)
        evaluation.refuse(keyword, fmt::format(message::costlyPattern, quoted(source)));
    return outcome == TextMatcher::Outcome::Match;
}

} // namespace specloom::jv::schema
