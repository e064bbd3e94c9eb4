#pragma once

#include "openapi/server.h"
#include "openapi_diff/diffs/node_diff.h"

#include <memory> // std::unique_ptr
#include <vector> // std::vector

namespace specloom::openapi_diff {

/// The servers of the document, a path item or an operation. Those of one URL belong together.
class ServerListDiff final : public NodeDiff {
  public:
    using List = std::vector<std::unique_ptr<openapi::Server>>;
    explicit ServerListDiff(ConfigKey key) noexcept : key_(key) {}

    void diff(const List* source, const List* destination, DiffContext& context) const;

  private:
    ConfigKey key_;
};

} // namespace specloom::openapi_diff
