#include "openapi/security_requirement.h"

#include <algorithm> // std::find_if

namespace specloom::openapi {

namespace {
constexpr std::size_t searchedSchemes = 16; // more than these get a table
}

const SecurityRequirement::Scheme* SecurityRequirement::findScheme(std::string_view name) const {
    if (!places_.empty()) {
        const auto place = places_.find(name);
        return place == places_.end() ? nullptr : &schemes_[place->second];
    }
    const auto found = std::find_if(schemes_.begin(), schemes_.end(),
                                    [&](const Scheme& scheme) { return scheme.name() == name; });
    return found == schemes_.end() ? nullptr : &*found;
}

void SecurityRequirement::setScheme(Text name, std::vector<Text> scopes) {
    if (const Scheme* present = findScheme(name.view()); present != nullptr) {
        const_cast<Scheme*>(present)->scopes = std::move(scopes);
        return;
    }
    schemes_.push_back({std::move(name), std::move(scopes)});
    if (schemes_.size() <= searchedSchemes)
        return;
    // The texts stay where they are when the schemes move.
    for (std::size_t i = places_.size(); i < schemes_.size(); ++i)
        places_.emplace(schemes_[i].name(), i);
}

} // namespace specloom::openapi
