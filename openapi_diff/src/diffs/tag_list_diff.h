#pragma once

#include "openapi/tag.h"
#include "openapi_diff/diffs/node_diff.h"

#include <memory> // std::unique_ptr
#include <vector> // std::vector

namespace specloom::openapi_diff {

/// The tags of the document. Those of one name belong together.
class TagListDiff final : public NodeDiff {
  public:
    using List = std::vector<std::unique_ptr<openapi::Tag>>;
    explicit TagListDiff(ConfigKey key) noexcept : key_(key) {}

    void diff(const List* source, const List* destination, DiffContext& context) const;

  private:
    ConfigKey key_;
};

} // namespace specloom::openapi_diff
