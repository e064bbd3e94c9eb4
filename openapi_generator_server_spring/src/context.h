#pragma once

#include "code_morph_java/project.h"
#include "foundation/message.h"
#include "openapi/openapi.h"
#include "openapi_generator/issue.h"
#include "openapi_generator/plugin_context.h"
#include "openapi_generator_server_spring/class_naming.h"
#include "openapi_generator_server_spring/record_cycles.h"
#include "openapi_generator_server_spring/schema_type_info.h"
#include "templating/forms.h"
#include "templating/template_set.h"

#include <functional>    // std::function
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::openapi_generator::server_spring {

/// The most components of a record and arguments of a method: a method has 255 slots (The Java Virtual
/// Machine Specification, section 4.3.3), one of which is taken by the object.
inline constexpr std::size_t mostArguments = 254;

/// What the plugin and its parts share.
struct Context : PluginContextOf<code_morph::java::Project> {
    explicit Context(FileSystem& fileSystem);

    /// Appends an issue at the place of the node.
    void addIssue(IssueSeverity severity, const Message& message, const openapi::Node& node);
    /// Whether there is an issue of that severity or worse.
    [[nodiscard]] bool hasIssue(IssueSeverity least) const noexcept;
    [[nodiscard]] bool hasErrors() const noexcept { return hasIssue(IssueSeverity::Error); }
    /// The identifier of an operation's method: toMemberName() of the prefix and the operation's name; empty
    /// for an operation that has none. Throws what actionName() throws.
    [[nodiscard]] std::string methodName(std::string_view prefix, const openapi::OperationRef& ref) const;
    /// What Java makes of a schema; Object for one that nothing led to.
    [[nodiscard]] const SchemaTypeInfo& typeOf(const openapi::Schema& schema) const;
    /// Adds an Error for a text that an annotation holds and cannot, or that Spring would take for an
    /// expression, and so run.
    void checkAnnotationText(std::string_view text, const openapi::Node& node);

    Configuration configuration;
    templating::TemplateSet templates; ///< of the folder templates/
    templating::Forms forms{templates};
    std::vector<Issue> issues;
    std::function<jv::Pos(const openapi::Node&)> nodePos = [](const openapi::Node&) { return jv::Pos(); };
    std::vector<NameSource> nameSources;
    std::unordered_map<const openapi::Schema*, SchemaTypeInfo> schemaTypes;
    RecordCycles recordCycles;
};

} // namespace specloom::openapi_generator::server_spring
