#include "regex/pattern.h"

#include "regex/matcher.h"
#include "regex/shortcut.h"

#include <atomic>   // std::atomic_flag
#include <optional> // std::optional

namespace specloom::regex {

struct Pattern::Program {
    struct Machine {
        explicit Machine(const SyntaxTree& tree) : set(compile(tree)), matcher(set) {}

        [[nodiscard]] Pattern::Outcome search(std::string_view text) const {
            // Two searches at once are rare: the second one works with a memory of its own.
            if (busy.test_and_set(std::memory_order_acquire))
                return Matcher(set).search(text);
            struct Release {
                std::atomic_flag& flag;
                ~Release() { flag.clear(std::memory_order_release); }
            };
            const Release release{busy};
            return matcher.search(text);
        }

        AutomatonSet set;
        /// Of the one search that holds `busy`.
        mutable Matcher matcher;
        mutable std::atomic_flag busy;
    };

    explicit Program(const SyntaxTree& tree) : shortcut(Shortcut::of(tree)) {
        if (!shortcut)
            machine.emplace(tree);
    }

    std::optional<Shortcut> shortcut;
    std::optional<Machine> machine;
};

Pattern::Pattern(std::string_view source)
    : program_(std::make_unique<const Program>(parse(source))),
      first_(program_->shortcut ? program_->shortcut->firstByte() : '\0') {}

Pattern::Pattern(Pattern&&) noexcept = default;
Pattern& Pattern::operator=(Pattern&&) noexcept = default;
Pattern::~Pattern() = default;

Pattern::Outcome Pattern::searchProgram(std::string_view text) const {
    if (!program_->shortcut)
        return program_->machine->search(text);
    return program_->shortcut->matches(text) ? Outcome::Match : Outcome::NoMatch;
}

} // namespace specloom::regex
