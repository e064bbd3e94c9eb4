#pragma once

#include "jv/jv_document.h"

#include <ostream>     // std::ostream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::test_support {

/// Why an OpenAPI document that was read into a tree and written back is not what it was. All but the first
/// are meant to be.
struct WriteBackClass {
    static constexpr std::string_view defect = "defect";
    /// The tree has no place for it.
    static constexpr std::string_view unknownMember = "unknown member";
    /// An operation's tag that the document does not declare.
    static constexpr std::string_view undeclaredTag = "undeclared tag";
    /// A member beside `$ref` that a reference does not keep.
    static constexpr std::string_view referenceSibling = "sibling of a reference";
    /// The text of a `$ref` is made anew from its target.
    static constexpr std::string_view canonicalReference = "canonical reference text";
    /// Entries of `$defs` are schemas in any case; a `$ref` in them is lost.
    static constexpr std::string_view referenceInDefinitions = "reference in definitions";
    /// A null in place of a text.
    static constexpr std::string_view nullLeftOut = "null left out";
    /// An empty list or map.
    static constexpr std::string_view emptyLeftOut = "empty list or map left out";
    /// One that OpenAPI demands and the document lacked.
    static constexpr std::string_view mandatoryMemberAdded = "mandatory member added";
    /// Of an operation, which is not deprecated when nothing is said.
    static constexpr std::string_view falseDeprecated = "false deprecated of an operation";
    /// The two exclude each other; `example` is taken.
    static constexpr std::string_view examplesBesideExample = "examples beside example";
    /// The same; `schema` is taken.
    static constexpr std::string_view contentBesideSchema = "content beside schema";
    /// The same in a link; `operationRef` is taken.
    static constexpr std::string_view operationIdBesideRef = "operationId beside operationRef";
    /// A schema keyword that is no part of OpenAPI 3.0.
    static constexpr std::string_view form30DropsKeyword = "3.0 form drops keyword";
    static constexpr std::string_view nullableAsType = "nullable as a type";
    /// A list of types, which comes back in a fixed order, or as a text if it has one.
    static constexpr std::string_view typesAsSet = "types as a set";
    /// Repeated names, and what is no name.
    static constexpr std::string_view requiredAsSet = "required as a set";
    /// No array: the flag of older drafts.
    static constexpr std::string_view requiredOfOtherKind = "required of another kind";
    /// An `enum` of one value.
    static constexpr std::string_view constAsEnum = "const as enum";
    /// No array.
    static constexpr std::string_view enumOfOtherKind = "enum of another kind";
    /// An empty schema, or one whose `not` is empty.
    static constexpr std::string_view booleanSchema = "boolean schema as object";
    /// `$defs` in 3.1, `definitions` elsewhere.
    static constexpr std::string_view definitionsRenamed = "definitions renamed";
};

struct WriteBackDifference {
    std::string pointer;   ///< JSON pointer (RFC 6901) in the source, also of what is not there
    std::string_view kind; ///< one of WriteBackClass
    std::string source;    ///< JSON, shortened; "nothing" for a value that is not there
    std::string written;
};

/// One line without its end.
std::ostream& operator<<(std::ostream& out, const WriteBackDifference& difference);

/// All differences between a document and what was written of it with its key orders. The order of keys
/// counts as well, everywhere: keys of the source stand in their order, others behind them.
[[nodiscard]] std::vector<WriteBackDifference> compareWriteBack(const jv::JVDocument& source,
                                                                const jv::JVDocument& written);

} // namespace specloom::test_support
