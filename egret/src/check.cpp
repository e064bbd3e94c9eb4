#include "egret/check.h"

#include "regex/pattern.h"

namespace specloom::egret {

std::vector<Warning> check(std::string_view pattern, const PatternUse& /*use*/) {
    (void)regex::Pattern(pattern);
    return {};
}

} // namespace specloom::egret
