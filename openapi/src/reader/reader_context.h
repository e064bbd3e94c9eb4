#pragma once

#include "foundation/message.h"
#include "openapi/read_result.h"
#include "openapi/schema_format.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi {

/// A structural fault that does not end the read.
struct ReadError {
    const Node* node;    ///< the nearest node around it
    const jv::JV* value; ///< at fault; may be null
    Message message;
};

/// The state of one read.
class ReaderContext {
  public:
    explicit ReaderContext(ReadResult& result);

    [[nodiscard]] const jv::JVDocument& source() const noexcept { return result_.source(); }
    [[nodiscard]] OpenAPI& root() noexcept { return result_.root(); }
    [[nodiscard]] const SchemaFormatRegistry& formats() const noexcept { return result_.formats(); }

    /// Whether the document's version starts with "3.0"; known once "openapi" was read.
    bool isOpenAPI30 = false;
    /// Whether `nullable` may stand in documents other than 3.0.
    bool allowNullable = true;

    void report(const Node& node, const jv::JV* value, Message message);
    /// Reports `message` and answers false when `value` is no object.
    bool requireObject(const Node& node, const jv::JV& value, MessageFormat<> message);

    /// Counts a level of nesting. Reports and answers false, with nothing counted, when there are too many.
    [[nodiscard]] bool enter(const Node& node, const jv::JV& value);
    void leave() noexcept { --depth_; }

    /// The extensions of the object that is being read, in source order; emptied by addExtensions().
    std::vector<jv::Member> extensions;
    /// Gives them to their node in order of their names, as it keeps them.
    void addExtensions(Node& node);

    // ---- references --------------------------------------------------------------------------------------

    /// The `$ref` member of an object; null for anything else.
    [[nodiscard]] static const jv::JV* referenceIn(const jv::JV& value);
    /// The component that a `$ref` in `object` names, or null after noting it as unresolved. Whatever stands
    /// at the head of the text in the length of "#/components/", the section and "/" is taken for that.
    [[nodiscard]] Node* resolveNow(ComponentSection section, const jv::JV& object, const jv::JV& ref);
    /// The schema that a `$ref` in `object` names, or the stand-in for one that may still come, or null after
    /// noting it as unresolved.
    [[nodiscard]] Node* resolveSchema(const jv::JV& object, const jv::JV& ref);
    /// To be called with each new reference to what resolveSchema() gave.
    void noteSchemaReference(Reference& reference, const jv::JV& object, const jv::JV& ref);
    /// Notes a reference that leads nowhere.
    void noteUnresolved(const jv::JV& object, const jv::JV& ref);
    /// Gives the waiting references their schemas, and reports all that lead nowhere.
    void resolvePending();

    /// Throws the collected faults, if there are any, as one std::runtime_error.
    void throwErrors() const;

  private:
    struct Pending {
        std::string_view text;
        Reference* reference;
        const jv::JV* object;
    };
    struct Unresolved {
        std::string text;
        const jv::JV* object;
    };

    [[nodiscard]] Node* findSchema(std::string_view text);
    void reportUnresolved();
    [[nodiscard]] jv::Pos positionOf(const ReadError& error) const;

    ReadResult& result_;
    std::vector<ReadError> errors_;
    Schema placeholder_; ///< stands in for schemas that may still come
    std::vector<Pending> pending_;
    std::vector<Unresolved> unresolved_;
    int depth_ = 0;
};

} // namespace specloom::openapi
