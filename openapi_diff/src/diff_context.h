#pragma once

#include "number/number.h"
#include "openapi/read_result.h"
#include "openapi/schema.h"
#include "openapi_diff/comparison.h"
#include "openapi_diff/configuration.h"
#include "openapi_diff/diff_scope.h"
#include "openapi_diff/report.h"

#include <concepts>    // std::invocable
#include <cstdint>     // std::int64_t, std::uint64_t
#include <deque>       // std::deque
#include <functional>  // std::invoke
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_diff {

class ComponentComparisons;

/// One comparison of two documents: a stack of scopes, in which changes gather until their scope is closed.
/// What reaches the report is decided then:
///
/// - A node that is there on both sides, or on one only, and has no change below it gives none.
/// - Else the change of the node itself (mark()) comes first. A level "nested" becomes that of the worst
/// below
///   it; "none" silences the node and all below it.
/// - A field of strings or values has no nodes of its own: an item of it is reported by one change, whatever
/// was
///   recorded in its scope.
class DiffContext {
  public:
    /// Closes its scope.
    class [[nodiscard]] Scope {
      public:
        explicit Scope(DiffContext& context) noexcept : context_(context) {}
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope() { context_.close(); }

      private:
        DiffContext& context_;
    };

    /// All must outlive the context.
    DiffContext(const Configuration& configuration, const openapi::ReadResult& source,
                const openapi::ReadResult& destination, Report& report);
    DiffContext(const DiffContext&) = delete;
    DiffContext& operator=(const DiffContext&) = delete;
    ~DiffContext();

    [[nodiscard]] const openapi::ReadResult& source() const noexcept { return source_; }
    [[nodiscard]] const openapi::ReadResult& destination() const noexcept { return destination_; }
    /// Of what references lead to.
    [[nodiscard]] ComponentComparisons& comparisons() noexcept { return *comparisons_; }

    // A scope for two nodes, of which one may be null: a field, an entry of a map, an element of a list. The
    // name must outlive the report.
    Scope enter(const openapi::Node* source, const openapi::Node* destination, ConfigKey key);
    Scope enterKey(const openapi::Node* source, const openapi::Node* destination, ConfigKey key,
                   std::string_view name);
    Scope enterIndex(const openapi::Node* source, const openapi::Node* destination, ConfigKey key,
                     std::int64_t index);

    /// The change of the nodes themselves: modified, removed or added, and nothing when both are null. The
    /// first thing in a scope.
    void mark(const openapi::Node* source, const openapi::Node* destination);

    // Values of fields. Only a value that is there is added or removed: a text, number or value that is set,
    // and a flag that is true unless it is an optional one. Flags are the condition of their classification,
    // the new value where there are two.
    template <typename T>
    void added(ConfigKey key, const openapi::Node& node, const T& value) {
        if (isThere(value))
            addProperty(ChangeKind::PropertyAdded, key, node, conditionOf(value));
    }
    template <typename T>
    void removed(ConfigKey key, const openapi::Node& node, const T& value) {
        if (isThere(value))
            addProperty(ChangeKind::PropertyRemoved, key, node, conditionOf(value));
    }
    /// An optional value that is there on one side only was added or removed; all else that differs was
    /// modified.
    template <typename T>
    void compare(ConfigKey key, const openapi::Node& source, const openapi::Node& destination, const T& a,
                 const T& b) {
        if constexpr (!isAlwaysThere<T>) {
            if (!isThere(a))
                return added(key, destination, b);
            if (!isThere(b))
                return removed(key, source, a);
        }
        if (!areEqual(a, b))
            addProperty(ChangeKind::PropertyModified, key, destination, conditionOf(b));
    }
    /// What `get` (a getter of N, or a function of one) tells of two nodes, of which one may be null.
    template <typename N, typename Get>
    void field(ConfigKey key, const N* source, const N* destination, Get get) {
        if (source == nullptr)
            added(key, *destination, std::invoke(get, *destination));
        else if (destination == nullptr)
            removed(key, *source, std::invoke(get, *source));
        else
            compare(key, *source, *destination, std::invoke(get, *source), std::invoke(get, *destination));
    }

    // Extensions, on the node that has them (the destination's where there are two).
    void extensionAdded(const openapi::Node& node, std::string_view name);
    void extensionRemoved(const openapi::Node& node, std::string_view name);
    void extensionModified(const openapi::Node& node, std::string_view name);

    /// What `compareNodes`, which begins with mark(), finds below two nodes, in a scope of its own. Nothing
    /// of it reaches the scope that is open.
    template <std::invocable Compare>
    [[nodiscard]] Comparison collect(const openapi::Node& source, const openapi::Node& destination,
                                     Compare compareNodes) {
        openCollecting(source, destination);
        compareNodes();
        return takeCollected();
    }
    /// Lets what a comparison found count in the open scope, behind its mark(). When `listed`, its changes
    /// come to stand there in the report too; else they are listed elsewhere, and those of the level None add
    /// nothing. Neither does a comparison without changes. The comparison must stay until the scopes are
    /// closed.
    void include(const Comparison& comparison, bool listed);

  private:
    template <typename T>
    static constexpr bool isAlwaysThere =
        std::same_as<T, bool> || std::same_as<T, std::string_view> || std::same_as<T, number::Number>;

    template <typename T>
    static bool isThere(const std::optional<T>& value) noexcept {
        return value.has_value();
    }
    template <typename T>
    static bool isThere(const T* value) noexcept {
        return value != nullptr;
    }
    static bool isThere(const openapi::ExclusiveLimit& limit) noexcept { return limit.index() != 0; }
    static bool isThere(const openapi::SchemaExamples& examples) noexcept {
        return examples.entries != nullptr;
    }
    static bool isThere(bool value) noexcept { return value; }
    static bool isThere(std::string_view) noexcept { return true; }
    static bool isThere(const number::Number&) noexcept { return true; }

    template <typename T>
    static std::optional<bool> conditionOf(const T& value) noexcept {
        if constexpr (std::same_as<T, bool> || std::same_as<T, std::optional<bool>>)
            return value;
        else
            return std::nullopt;
    }

    template <typename T>
    static bool areEqual(const std::optional<T>& a, const std::optional<T>& b) {
        return areEqual(*a, *b);
    }
    /// Entries of a registry are the same or different.
    template <typename T>
    static bool areEqual(const T* a, const T* b) noexcept {
        return a == b;
    }
    static bool areEqual(const jv::JV* a, const jv::JV* b) { return a->equals(*b); }
    static bool areEqual(const openapi::ExclusiveLimit& a, const openapi::ExclusiveLimit& b);
    static bool areEqual(const openapi::SchemaExamples& a, const openapi::SchemaExamples& b);
    static bool areEqual(const number::Number& a, const number::Number& b) { return a.compare(b) == 0; }
    static bool areEqual(std::uint64_t a, std::uint64_t b) noexcept { return a == b; }
    static bool areEqual(bool a, bool b) noexcept { return a == b; }
    static bool areEqual(std::string_view a, std::string_view b) noexcept { return a == b; }

    void open(DiffScope scope);
    void noteEnclosing(DiffScope& scope);
    void close();
    void closeMarked(const DiffScope& scope);
    void summarise(const DiffScope& scope);
    void drop(const DiffScope& scope);
    void forward(const DiffScope& scope);

    void addProperty(ChangeKind kind, ConfigKey key, const openapi::Node& node,
                     std::optional<bool> condition);
    void addExtension(ChangeKind kind, const openapi::Node& node, std::string_view name);
    void append(Change change);
    void place(Change& change, const openapi::Node& node, DocumentSide side) const;
    void report(const Change& change);

    void openCollecting(const openapi::Node& source, const openapi::Node& destination);
    Comparison takeCollected();

    const Configuration& configuration_;
    const openapi::ReadResult& source_;
    const openapi::ReadResult& destination_;
    Report& report_;
    std::vector<DiffScope> scopes_;
    std::vector<Change> changes_; ///< of all open scopes
    std::deque<EnclosingEntry> enclosing_;
    std::unique_ptr<ComponentComparisons> comparisons_;
};

} // namespace specloom::openapi_diff
