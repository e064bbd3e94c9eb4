#pragma once

#include "jv/jv.h"

#include <map>         // std::map
#include <memory>      // std::shared_ptr
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv::schema {

/// Schemas by their URI, for the references of others. The meta-schemas of all drafts are known without being
/// added.
class SchemaRegistry {
  public:
    /// Adds a copy of `schema` under a URI, of which the fragment does not count, and under the absolute URI
    /// that its root gives itself by `$id` or `id`. A schema added later takes the place of an earlier one.
    void add(std::string_view uri, const JV& schema);

    /// The schema with a URI without fragment, or null.
    [[nodiscard]] std::shared_ptr<const JV> find(std::string_view uri) const;

  private:
    std::map<std::string, std::shared_ptr<const JV>, std::less<>> schemas_;
};

} // namespace specloom::jv::schema
