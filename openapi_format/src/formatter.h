#pragma once

#include "jv/deser.h"
#include "jv/jv_document.h"
#include "openapi_format/configuration.h"
#include "openapi_format/order_plan.h"

#include <string> // std::string
#include <vector> // std::vector

namespace specloom::openapi_format {

/// Puts the keys of OpenAPI documents (3.0 and 3.1) into the order of a configuration.
///
/// The kind of an object is decided by the way that leads to it from the root, an OpenAPI object, by the
/// table in structure.cpp. So a property of the name "xml" is a schema like its siblings, and what no way
/// leads to (values of examples, defaults, enumerations, extensions and the like) is never touched, whatever
/// the configuration says.
///
/// An object takes the order of its kind, and the configuration's default order when its kind has none there
/// or when it is one of the structure's maps, such as "properties". A fixed order puts the keys that it names
/// first; all others keep their source order behind them. Formatting what was formatted changes nothing.
class Formatter {
  public:
    explicit Formatter(Configuration configuration = Configuration::recommended());

    [[nodiscard]] const Configuration& configuration() const noexcept { return configuration_; }

    /// Changes the recorded key order of the document's objects, and nothing else of it. Returns the root,
    /// which is null when the document has none.
    const jv::JV* run(jv::JVDocument& document) const;

    /// The text of the document after run(), with the configured indent. `format` is taken as it is: whether
    /// that of the configuration counts is the caller's decision. Throws what the writer of the format
    /// throws.
    [[nodiscard]] std::string text(jv::JVDocument& document, jv::DocumentFormat format) const;

  private:
    Configuration configuration_;
    std::vector<KindPlan> plans_;
};

} // namespace specloom::openapi_format
