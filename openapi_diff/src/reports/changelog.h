#pragma once

#include "openapi/openapi.h"
#include "openapi_diff/report.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint8_t, std::uint32_t
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::openapi_diff {

/// What a changelog tells of one change.
struct ChangelogEntry {
    ChangeKind kind = ChangeKind::Modified;
    ChangeLevel level = ChangeLevel::None; ///< Change::weight
    std::string_view file{};               ///< Change::file
    jv::Pos pos{};
};

/// The entries of a list by what happened.
template <typename T>
struct ByAction {
    std::vector<T> added;
    std::vector<T> removed;
    std::vector<T> modified;
};

/// Fields of the document's info object, as bits of a set.
enum class MetadataField : std::uint8_t {
    Title = 1,
    Summary = 2,
    Description = 4,
    TermsOfService = 8,
    Contact = 16,
    License = 32,
};

/// Three counters of eight bits in one word, each of which goes from 255 back to 0.
class SecurityCounters {
  public:
    /// ElementAdded, ElementRemoved or ElementModified.
    void count(ChangeKind kind) noexcept;
    [[nodiscard]] std::uint8_t get(ChangeKind kind) const noexcept;

  private:
    std::uint32_t counters_ = 0;
};

/// Of operations that were added, removed or deprecated.
struct OperationChange : ChangelogEntry {
    std::string path;          ///< or the name of a webhook, or the reference to a shared path item
    std::string_view method{}; ///< in lower case
};

struct ParameterChange : ChangelogEntry {
    std::string_view name;
    std::string_view location;
    bool isRequired = false;
};

/// Of a response, whose name is its code, or of a request body, which has none.
struct NamedChange : ChangelogEntry {
    std::string_view name;
};

struct ModifiedOperation : OperationChange {
    bool summaryChanged = false;
    bool descriptionChanged = false;
    bool operationIdChanged = false;
    ChangelogEntry metadata; ///< of those three together
    ByAction<ParameterChange> parameters;
    ByAction<NamedChange> requestBody;
    ByAction<NamedChange> responses;
    SecurityCounters security;
    bool securityChanged = false; ///< the counters may be at 0 again
    ChangelogEntry securityChange;
};

/// What users of an API need to know of a new version: its operations, servers and metadata. An addition or
/// removal is taken as a whole (Change::weight), so that the highest level is one that a pipeline can stand
/// on; changes that are none of these leave it as it is.
///
/// The operations of callbacks belong to the operation that calls back and get no entries. Those of webhooks
/// have the webhook's name for a path. Those of path items under `components` are reported under their
/// reference
/// ("#/components/pathItems/NAME") when they change; when such an item comes or goes, it is reported at the
/// paths that refer to it.
class ChangelogReport final : public Report {
  public:
    static constexpr std::string_view name = "changelog";

    /// Ends in an unreachable path on a sequence of changes that no comparison gives.
    void add(const Change& change) override;

    [[nodiscard]] bool hasMetadataField(MetadataField field) const noexcept {
        return (metadataFields_ & static_cast<unsigned>(field)) != 0;
    }
    /// Its level is the highest among metadata changes; None when there was no change.
    [[nodiscard]] const ChangelogEntry& metadata() const noexcept { return metadata_; }
    [[nodiscard]] const ByAction<std::string>& servers() const noexcept { return servers_; }
    [[nodiscard]] const std::vector<OperationChange>& added() const noexcept { return added_; }
    [[nodiscard]] const std::vector<OperationChange>& removed() const noexcept { return removed_; }
    [[nodiscard]] const std::vector<OperationChange>& deprecated() const noexcept { return deprecated_; }
    [[nodiscard]] const std::vector<ModifiedOperation>& modified() const noexcept { return modified_; }

  private:
    bool take(const Change& change);
    bool takeMetadata(const Change& change, unsigned field);
    bool takeServer(const Change& change);
    bool takePath(const Change& change);
    void takeReferencedOperations(const Change& change);
    bool takeOperation(const Change& change);
    bool takeDeprecation(const Change& change);
    bool takeOperationMetadata(const Change& change, bool ModifiedOperation::*flag);
    bool takeParameter(const Change& change);
    bool takeRequestBody(const Change& change);
    bool takeResponse(const Change& change);
    bool takeSecurity(const Change& change);

    [[nodiscard]] ModifiedOperation* operationOf(const Change& change);
    [[nodiscard]] static OperationChange operationChange(const Change& change, std::string_view method);

    unsigned metadataFields_ = 0;
    ChangelogEntry metadata_;
    ByAction<std::string> servers_;
    std::vector<OperationChange> added_;
    std::vector<OperationChange> removed_;
    std::vector<OperationChange> deprecated_;
    std::vector<ModifiedOperation> modified_;
    std::unordered_map<const EnclosingEntry*, std::size_t> modifiedOperations_; ///< places in modified_
};

} // namespace specloom::openapi_diff
