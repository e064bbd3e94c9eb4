#include "egret/strings.h"

#include "regex/pattern.h"

namespace specloom::egret {

struct Strings::Impl {
    regex::Pattern pattern;
};

Strings::Strings(std::string_view pattern) : impl_(new Impl{regex::Pattern(pattern)}) {}
Strings::Strings(Strings&&) noexcept = default;
Strings& Strings::operator=(Strings&&) noexcept = default;
Strings::~Strings() = default;

std::vector<std::string> Strings::covering(const Lengths& /*lengths*/) const {
    return {};
}

std::optional<std::string> Strings::random(const Lengths& /*lengths*/, const Draw& /*draw*/) const {
    return {};
}

} // namespace specloom::egret
