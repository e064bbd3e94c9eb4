#pragma once

#include "mutations/classifications.h"
#include "mutations/grammar.h"

#include <string> // std::string
#include <vector> // std::vector

namespace specloom::openapi_diff::mutations {

enum class Kind {
    MemberAdded,
    MemberRemoved,
    MemberChanged,
    ItemAdded,
    ItemRemoved,
    ItemMoved,
    EntryAdded,
    EntryRemoved,
    EntryRenamed,
    ReferenceRedirected, ///< to another component
    ReferenceReplaced,   ///< by a copy of its target
    ObjectReplaced,      ///< by a reference to a component
    ExtensionAdded,
    ExtensionChanged,
    ExtensionRemoved,
    Unseen, ///< of something that is no part of the description, such as an unknown member
};

[[nodiscard]] const char* textOf(Kind kind);

/// One edit of a document.
struct Mutation {
    Kind kind;
    std::string at;     ///< JSON pointer of the object or list that is edited
    std::string member; ///< its member, or the index in a list
    std::string key;    ///< in the configuration, of what changes
    Json value{}; ///< that comes to stand there; for a moved item the new index, for an entry the new name

    [[nodiscard]] std::string text() const;
    void apply(Json& document) const;
};

/// Edits of all objects of a document.
[[nodiscard]] std::vector<Mutation> mutationsOf(const Json& document);

} // namespace specloom::openapi_diff::mutations
