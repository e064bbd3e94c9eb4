#include "regex/pattern.h"

#include "regex/literal.h"
#include "regex/matcher.h"

#include <atomic>   // std::atomic_flag
#include <optional> // std::optional

namespace specloom::regex {

struct Pattern::Program {
    explicit Program(const PatternSyntax& syntax)
        : literal(literalOf(syntax.root)), set(compilePattern(syntax)), matcher(set) {}

    std::optional<PatternLiteral> literal;
    AutomatonSet set;
    /// Of the one search that holds `busy`.
    mutable Matcher matcher;
    mutable std::atomic_flag busy;
};

Pattern::Pattern(std::string_view source) : program_(std::make_unique<const Program>(parsePattern(source))) {}

Pattern::Pattern(Pattern&&) noexcept = default;
Pattern& Pattern::operator=(Pattern&&) noexcept = default;
Pattern::~Pattern() = default;

Pattern::Outcome Pattern::search(std::string_view text) const {
    if (program_->literal)
        return program_->literal->matches(text) ? Outcome::Match : Outcome::NoMatch;
    // Two searches at once are rare: the second one works with a memory of its own.
    if (program_->busy.test_and_set(std::memory_order_acquire))
        return Matcher(program_->set).search(text);
    struct Release {
        std::atomic_flag& flag;
        ~Release() { flag.clear(std::memory_order_release); }
    };
    const Release release{program_->busy};
    return program_->matcher.search(text);
}

} // namespace specloom::regex
