#pragma once

#include "jv/jv_document.h"

#include <memory>      // std::unique_ptr
#include <span>        // std::span
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi {

/// Those of `keys` that `first` names, in the order of `first`, then the others as they stand.
[[nodiscard]] std::vector<std::string_view> inKeyOrder(const std::vector<std::string_view>& keys,
                                                       std::span<const std::string_view> first);

/// An object under construction that knows the order in which its keys were added.
class KeyedObject {
  public:
    /// The text of the key must live until finish().
    void add(std::string_view key, std::unique_ptr<jv::JV> value);
    [[nodiscard]] bool empty() const noexcept { return keys_.empty(); }

    /// The object, with the keys in the order of inKeyOrder(), which `output` keeps.
    [[nodiscard]] std::unique_ptr<jv::JV> finish(jv::JVDocument& output,
                                                 std::span<const std::string_view> first);

  private:
    std::unique_ptr<jv::JV> value_ = jv::JV::newObject();
    std::vector<std::string_view> keys_;
};

} // namespace specloom::openapi
