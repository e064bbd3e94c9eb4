#pragma once

#include "jv/jv.h"

#include <string_view> // std::string_view

namespace specloom::jv::schema {

/// The name of a property, interned as the keys of objects are, so that equal names have equal addresses.
/// Good as long as an object with a member is alive.
class PropertyName {
  public:
    explicit PropertyName(std::string_view name) : name_(KeyPool::instance().intern(name)->text()) {}

    [[nodiscard]] std::string_view text() const noexcept { return name_; }

    [[nodiscard]] bool isIn(const JV& object) const {
        constexpr std::size_t fewMembers = 8;
        if (object.size() > fewMembers)
            return object.get(name_) != nullptr;
        for (const Member member : object.members()) {
            if (member.key.data() == name_.data())
                return true;
        }
        return false;
    }

  private:
    std::string_view name_;
};

} // namespace specloom::jv::schema
