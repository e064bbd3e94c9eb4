#pragma once

#include "jv/jv_document.h"

#include <cstdint>     // std::uint8_t
#include <ostream>     // std::ostream
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::test_support {

/// Why an OpenAPI document that was read into a tree and written back is not what it was. All but the first
/// are meant to be.
enum class WriteBackClass : std::uint8_t {
    Defect,
    UnknownMember,          ///< the tree has no place for it
    UndeclaredTag,          ///< an operation's tag that the document does not declare
    ReferenceSibling,       ///< a member beside `$ref` that a reference does not keep
    CanonicalReference,     ///< the text of a `$ref` is made anew from its target
    ReferenceInDefinitions, ///< entries of `$defs` are schemas in any case; a `$ref` in them is lost
    NullLeftOut,            ///< a null in place of a text
    EmptyLeftOut,           ///< an empty list or map
    MandatoryMemberAdded,   ///< one that OpenAPI demands and the document lacked
    FalseDeprecated,        ///< of an operation, which is not deprecated when nothing is said
    ExamplesBesideExample,  ///< the two exclude each other; `example` is taken
    ContentBesideSchema,    ///< the same; `schema` is taken
    OperationIdBesideRef,   ///< the same in a link; `operationRef` is taken
    Form30DropsKeyword,     ///< a schema keyword that is no part of OpenAPI 3.0
    NullableAsType,
    TypesAsSet,          ///< a list of types, which comes back in a fixed order, or as a text if it has one
    RequiredAsSet,       ///< repeated names, and what is no name
    RequiredOfOtherKind, ///< no array: the flag of older drafts
    ConstAsEnum,         ///< an `enum` of one value
    EnumOfOtherKind,     ///< no array
    BooleanSchema,       ///< an empty schema, or one whose `not` is empty
    DefinitionsRenamed,  ///< `$defs` in 3.1, `definitions` elsewhere
};

/// "defect", "unknown member" and so on.
[[nodiscard]] std::string_view nameOf(WriteBackClass difference);

struct WriteBackDifference {
    std::string pointer; ///< JSON pointer (RFC 6901) in the source, also of what is not there
    WriteBackClass kind;
    std::string source; ///< JSON, shortened; "nothing" for a value that is not there
    std::string written;
};

/// One line without its end.
std::ostream& operator<<(std::ostream& out, const WriteBackDifference& difference);

/// All differences between a document and what was written of it with its key orders. The order of keys
/// counts as well, everywhere: keys of the source stand in their order, others behind them.
[[nodiscard]] std::vector<WriteBackDifference> compareWriteBack(const jv::JVDocument& source,
                                                                const jv::JVDocument& written);

} // namespace specloom::test_support
