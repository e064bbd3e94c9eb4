#pragma once

#include "jv/jv_document.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint32_t
#include <memory>        // std::shared_ptr, std::unique_ptr
#include <span>          // std::span
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <utility>       // std::pair
#include <vector>        // std::vector

namespace specloom::source_edit {

/// A child of an edited container as it is to be.
struct EditedChild {
    static constexpr std::uint32_t isNew = ~std::uint32_t{0};

    std::uint32_t from = isNew;          ///< its place among the children that were read
    std::string key;                     ///< of a member
    const jv::JV* value = nullptr;       ///< what stands there
    std::shared_ptr<const jv::JV> owned; ///< keeps a value that was not read
};

/// All children of one container that was read, as they are to be.
struct EditedContainer {
    const jv::JV* container = nullptr;
    std::vector<jv::Member> before; ///< the children that were read, in their order; without keys in arrays
    std::vector<EditedChild> children;

    /// Whether that is not what was read.
    [[nodiscard]] bool isChanged() const;
    /// Whether every child stays in its place: at most keys and values are others.
    [[nodiscard]] bool keepsPlaces() const;
};

/// What is to become of the values of a document that was read: the changes of repairs, gathered container by
/// container and independent of the text. Later changes see what earlier ones made of a container. All that
/// is not named stays as it is.
///
/// Containers and elements are named by the values themselves, which must be values of the document.
class Edits {
  public:
    /// The document must outlive this object and stay as it is.
    explicit Edits(const jv::JVDocument& source) : source_(&source) {}

    /// Puts `value` under `key`, in the place of what is there, or behind the other members.
    void setMember(const jv::JV& object, std::string_view key, std::unique_ptr<jv::JV> value);
    /// Takes the member out; nothing happens when there is none.
    void removeMember(const jv::JV& object, std::string_view key);
    /// Old and new keys of members, which stay in their places. All get their new keys at once; the new ones
    /// must be other than those that stay.
    using Renaming = std::pair<std::string, std::string>;
    void renameMembers(const jv::JV& object, std::span<const Renaming> renamings);
    /// The members stand in this order, those that are not named behind the others.
    void orderMembers(const jv::JV& object, std::span<const std::string_view> keys);
    /// The array holds these of the elements that were read, in this order, and no other.
    void arrangeElements(const jv::JV& array, std::span<const jv::JV* const> elements);
    /// Puts `value` in front of the element in that place, counted from 0; behind all of them beyond.
    void insertElement(const jv::JV& array, std::size_t place, std::unique_ptr<jv::JV> value);

    /// Whether all stays as it was read.
    [[nodiscard]] bool empty() const;
    /// The containers that change; none twice, in no particular order.
    [[nodiscard]] std::vector<const EditedContainer*> changed() const;
    /// Null for a container that was not named.
    [[nodiscard]] const EditedContainer* find(const jv::JV& container) const;
    [[nodiscard]] const jv::JVDocument& source() const noexcept { return *source_; }

  private:
    [[nodiscard]] EditedContainer& edited(const jv::JV& container);

    const jv::JVDocument* source_;
    std::unordered_map<const jv::JV*, EditedContainer> containers_;
};

} // namespace specloom::source_edit
