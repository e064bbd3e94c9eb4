#include "jv_schema/pattern_site.h"

#include "foundation/message.h"
#include "jv_schema/messages.h"

#include <fmt/core.h>

namespace specloom::jv::schema {

regex::Pattern compilePattern(const Site& site, std::string_view source) {
    try {
        return regex::Pattern(source);
    } catch (const regex::SyntaxError& error) {
        site.fault(formatMessage(message::invalidPattern, quoted(source), error.what()));
    }
}

bool matches(const regex::Pattern& matcher, std::string_view source, std::string_view text,
             const Keyword& keyword, const Evaluation& evaluation) {
    const regex::Pattern::Outcome outcome = matcher.search(text);
    if (outcome == regex::Pattern::Outcome::TooCostly)
        evaluation.refuse(keyword, fmt::format(message::costlyPattern, quoted(source)));
    return outcome == regex::Pattern::Outcome::Match;
}

} // namespace specloom::jv::schema
