#include "openapi/security_requirement.h"

#include <algorithm> // std::find_if

namespace specloom::openapi {

const SecurityRequirement::Scheme* SecurityRequirement::findScheme(std::string_view name) const {
    const auto found = std::find_if(schemes_.begin(), schemes_.end(),
                                    [&](const Scheme& scheme) { return scheme.name() == name; });
    return found == schemes_.end() ? nullptr : &*found;
}

void SecurityRequirement::setScheme(Text name, std::vector<Text> scopes) {
    if (const Scheme* present = findScheme(name.view()); present != nullptr)
        const_cast<Scheme*>(present)->scopes = std::move(scopes);
    else
        schemes_.push_back({std::move(name), std::move(scopes)});
}

} // namespace specloom::openapi
