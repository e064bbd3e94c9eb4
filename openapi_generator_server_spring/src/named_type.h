#pragma once

#include "openapi_generator/unique_names.h"
#include "openapi_generator_server_spring/object_schema.h"
#include "openapi_generator_server_spring/parts.h"

#include <cstddef>     // std::size_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::server_spring {

/// A record for a schema of objects.
class NamedType final : public Part {
  public:
    NamedType(Context& context, code_morph::java::SourceFile& file, const openapi::Schema& schema,
              const std::string& qualifiedName);
    void collectData() override;

  protected:
    void fill(templating::Texts& texts) const override;

  private:
    /// `names` are those of the components before.
    void addField(const ObjectProperty& property, UniqueNames& names);
    /// The type of a property that several members of `allOf` may have, of which Object says nothing: Object
    /// where the others do not agree.
    [[nodiscard]] const SchemaTypeInfo& typeOf(const ObjectProperty& property) const;
    /// What the component is called after: the key, or what the document says in its place.
    [[nodiscard]] std::string_view nameOf(const ObjectProperty& property) const;
    [[nodiscard]] std::optional<std::string_view> chosenName(const ObjectProperty& property) const;
    void addIssue(IssueSeverity severity, const Message& message, const openapi::Node& node) const {
        context().addIssue(severity, message, node);
    }

    const openapi::Schema* schema_;
    std::size_t record_;
    std::string fields_; ///< each with its annotations, its type and its name
    std::vector<const SchemaTypeInfo*> types_;
};

} // namespace specloom::openapi_generator::server_spring
