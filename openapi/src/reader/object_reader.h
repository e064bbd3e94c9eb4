#pragma once

#include "openapi/reader/reader_context.h"
#include "openapi/shape.h"

#include <algorithm> // std::ranges::count
#include <array>     // std::array, std::to_array
#include <bit>       // std::bit_ceil, std::countr_zero
#include <cstdint>   // std::uint64_t

namespace specloom::openapi {

/// A member of an object that is being read.
struct Member {
    const jv::JV& object;
    std::string_view name;
    const jv::JV& value;

    // The value as a kind. Throw jv::JVError with the text of the typed getters of JV.
    [[nodiscard]] Text text() const;
    [[nodiscard]] bool boolean() const;
    [[nodiscard]] number::Number number() const;
    [[nodiscard]] const jv::JV& asObject() const;
    [[nodiscard]] const jv::JV& asArray() const;
};

/// How one member of an object of class T is read.
template <typename T>
struct MemberReader {
    std::string_view name;
    void (*read)(ReaderContext& context, T& node, const Member& member);
};

enum class Extensions : bool { Ignored, Read };

/// Reads objects of one class, nodes of `type`: notes the source value, takes the extensions, and reads the
/// known members in the order of the table, whatever their order in the source. Unknown members are passed
/// over.
///
/// One pass over the members of the source finds all rows, which is faster than a search for each row: tables
/// have up to 60, objects three or four members.
template <typename T, std::size_t rowCount, NodeType type>
class ObjectReader {
  public:
    /// Compiles only if there is a row for each member that nodes of `type` have by their shape, apart from
    /// those that the node is made of, and for no other.
    // NOLINTNEXTLINE(*-explicit-*): a table is written as a list of rows
    consteval ObjectReader(const MemberReader<T> (&rows)[rowCount]) : rows_(std::to_array(rows)) {
        requireRows();
        slots_.fill(freeSlot);
        for (std::size_t row = 0; row < rowCount; ++row) {
            std::size_t slot = hash(rows_[row].name);
            while (slots_[slot] != freeSlot)
                slot = (slot + 1) % slotCount;
            slots_[slot] = static_cast<std::uint8_t>(row);
            if (findMember(kindOf(type), rows_[row].name)->presence == Presence::Required)
                required_ |= std::uint64_t{1} << row;
        }
    }

    void read(ReaderContext& context, T& node, const jv::JV& object,
              Extensions extensions = Extensions::Read) const {
        node.setSource(&object);
        if (!context.enter(node, object))
            return;
        std::array<const jv::JV*, rowCount> values;
        std::uint64_t present = scan(context, node, object, extensions, values);
        for (present |= required_; present != 0; present &= present - 1) {
            const auto row = static_cast<std::size_t>(std::countr_zero(present));
            const MemberReader<T>& member = rows_[row];
            const jv::JV* value = values[row];
            if (value == nullptr)
                (void)object.getRequired(member.name); // throws
            member.read(context, node, {object, member.name, *value});
        }
        context.leave();
    }

  private:
    static_assert(rowCount <= 64,
                  "a bit for each row: for more rows make the sets of bits in read(), scan() and "
                  "required_ arrays of words, and go over the words");

    static constexpr std::size_t slotCount = std::bit_ceil(rowCount * 4);
    static constexpr std::uint8_t freeSlot = 0xff;

    [[nodiscard]] static constexpr bool isForRow(const MemberShape& member) {
        return member.isRead && member.belongsTo(type) && member.presence != Presence::ToBeginAt;
    }

    consteval void requireRows() const {
        for (const MemberReader<T>& row : rows_) {
            const MemberShape* member = findMember(kindOf(type), row.name);
            if (member == nullptr || !isForRow(*member))
                throw "a row reads what is no member in openapi/shape.h";
        }
        for (const MemberShape& member : shapeOf(kindOf(type)).members)
            if (isForRow(member) && std::ranges::count(rows_, member.name, &MemberReader<T>::name) != 1)
                throw "a member in openapi/shape.h has no row that reads it, or several";
    }

    /// Cheap, and different for names that differ in length or in an outer or middle character.
    [[nodiscard]] static constexpr std::size_t hash(std::string_view name) noexcept {
        if (name.empty())
            return 0;
        const auto at = [&](std::size_t index) {
            return static_cast<std::size_t>(static_cast<unsigned char>(name[index]));
        };
        return (name.size() * 31 + at(0) * 7 + at(name.size() / 2) * 3 + at(name.size() - 1)) % slotCount;
    }

    [[nodiscard]] std::size_t rowOf(std::string_view name) const noexcept {
        for (std::size_t slot = hash(name); slots_[slot] != freeSlot; slot = (slot + 1) % slotCount) {
            if (rows_[slots_[slot]].name == name)
                return slots_[slot];
        }
        return rowCount;
    }

    /// Sets `values` for the rows whose bits it returns, and null for the required ones that are absent.
    std::uint64_t scan(ReaderContext& context, T& node, const jv::JV& object, Extensions extensions,
                       std::array<const jv::JV*, rowCount>& values) const {
        for (std::uint64_t rest = required_; rest != 0; rest &= rest - 1)
            values[static_cast<std::size_t>(std::countr_zero(rest))] = nullptr;
        std::uint64_t present = 0;
        context.source().forEachOrdered(&object, [&](const jv::Member& member) {
            if (member.key.starts_with("x-")) {
                if (extensions == Extensions::Read)
                    context.extensions.push_back(member);
                return;
            }
            const std::size_t row = rowOf(member.key);
            if (row == rowCount)
                return;
            values[row] = member.value;
            present |= std::uint64_t{1} << row;
        });
        if (!context.extensions.empty())
            context.addExtensions(node);
        return present;
    }

    std::array<MemberReader<T>, rowCount> rows_;
    std::array<std::uint8_t, slotCount> slots_{};
    std::uint64_t required_ = 0;
};

// Rows that only hand the value to a setter. T is the class of the table, which may derive from the setter's.

/// A null counts as an absent text: programs that write documents put it where they have none. A text that
/// must be there may not be null; its row is a required one.
template <typename T, auto set>
void readText(ReaderContext&, T& node, const Member& member) {
    if (!member.value.isNull())
        (node.*set)(member.text());
}

template <typename T, auto set>
void readRequiredText(ReaderContext&, T& node, const Member& member) {
    (node.*set)(member.text());
}

template <typename T, auto set>
void readBoolean(ReaderContext&, T& node, const Member& member) {
    (node.*set)(member.boolean());
}

template <typename T, auto set>
void readValue(ReaderContext&, T& node, const Member& member) {
    (node.*set)(Value::borrow(member.value));
}

/// The texts of an array; an element of another kind is reported, with "Expected string value", and left out.
[[nodiscard]] std::vector<Text> readTexts(ReaderContext& context, const Node& node, const jv::JV& array);

} // namespace specloom::openapi
