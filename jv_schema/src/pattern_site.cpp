#include "jv_schema/pattern_site.h"

#include "jv_schema/messages.h"

#include <fmt/core.h>

namespace specloom::jv::schema {

regex::TextMatcher compilePattern(const Site& site, std::string_view source) {
    try {
        return regex::TextMatcher(source);
    } catch (const regex::PatternError& error) {
        site.fault(fmt::format(message::invalidPattern, quoted(source), error.what()));
    }
}

bool matches(const regex::TextMatcher& matcher, std::string_view source, std::string_view text,
             const Keyword& keyword, const Evaluation& evaluation) {
    const regex::TextMatcher::Outcome outcome = matcher.search(text);
    if (outcome == regex::TextMatcher::Outcome::TooCostly)
        evaluation.refuse(keyword, fmt::format(message::costlyPattern, quoted(source)));
    return outcome == regex::TextMatcher::Outcome::Match;
}

} // namespace specloom::jv::schema
