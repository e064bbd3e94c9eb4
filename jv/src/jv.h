#pragma once

#include "jv/jv_error.h"
#include "jv/key_pool.h"
#include "jv/pos.h"
#include "number/number.h"

#include <concepts>    // std::integral
#include <cstdint>     // std::int64_t, std::uint32_t
#include <iterator>    // std::forward_iterator_tag
#include <memory>      // std::unique_ptr
#include <span>        // std::span
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::jv {

class JVPointer;
class Members;

/// The kinds of value. The codes take part in JV::hash().
enum class Kind : std::uint8_t { Null = 0, Boolean = 1, Number = 2, String = 3, Array = 4, Object = 5 };

/// "null", "boolean", "number", "string", "array" or "object". Any other code is an unreachable path.
[[nodiscard]] const char* typeName(Kind kind);

/// One value of a document: null, boolean, number, string, array or object.
///
/// A value owns its children and never moves, so that pointers to it stay good until it or an ancestor is
/// destroyed or replaced. Values of a document that was read live in slabs of that document; values made in
/// code live on the heap. Both behave alike. Nothing here recurses over the depth of a tree.
class JV {
  public:
    /// Null.
    JV() noexcept = default;
    template <std::same_as<bool> B>
    explicit JV(B value) noexcept {
        setBoolean(value);
    }
    template <std::integral I>
    requires(!std::same_as<I, bool>) explicit JV(I value) noexcept { setNumber(toNumber(value)); }
    explicit JV(double value) noexcept { setNumber(number::Number(value)); }
    explicit JV(const number::Number& value) { setNumber(value); }
    explicit JV(std::string_view value) { setString(value); }
    explicit JV(const char* value) { setString(value); }
    JV(const JV&) = delete;
    JV& operator=(const JV&) = delete;
    ~JV() { dropContent(); }

    [[nodiscard]] static std::unique_ptr<JV> newArray();
    [[nodiscard]] static std::unique_ptr<JV> newObject();

    [[nodiscard]] Kind kind() const noexcept { return kind_; }
    [[nodiscard]] bool isNull() const noexcept { return kind_ == Kind::Null; }
    [[nodiscard]] bool isBoolean() const noexcept { return kind_ == Kind::Boolean; }
    [[nodiscard]] bool isNumber() const noexcept { return kind_ == Kind::Number; }
    [[nodiscard]] bool isString() const noexcept { return kind_ == Kind::String; }
    [[nodiscard]] bool isArray() const noexcept { return kind_ == Kind::Array; }
    [[nodiscard]] bool isObject() const noexcept { return kind_ == Kind::Object; }

    [[nodiscard]] Pos pos() const noexcept { return pos_; }
    /// Stores the position unless the value has a known one already: a container keeps that of its opening
    /// bracket although it is reported again when closed.
    void setPos(Pos pos) noexcept {
        if (!pos_.isKnown())
            pos_ = pos;
    }

    /// The JSON pointer (RFC 6901, section 3) that the value had when its document was last indexed; empty
    /// for the root and for a value that never was. Composed when asked for.
    [[nodiscard]] std::string pointer() const;

    /// The nearest object around this value with a known position, by the last indexing; null when there is
    /// none.
    [[nodiscard]] const JV* enclosingObject() const noexcept;

    // The content. Each throws std::bad_variant_access on a value of another kind.
    [[nodiscard]] bool boolean() const;
    [[nodiscard]] number::Number number() const;
    /// UTF-8 bytes, good until the value changes.
    [[nodiscard]] std::string_view text() const;
    /// Whether this is a string that stood in YAML without quotes. Other readers may take it for something
    /// else
    /// ("~", 2001-12-14, an empty value), and so it is written without quotes again.
    [[nodiscard]] bool isPlainScalar() const noexcept { return is(plainScalar); }
    [[nodiscard]] std::span<const JV* const> elements() const;
    [[nodiscard]] std::span<JV* const> elements();
    /// The members of an object in byte-wise order of their keys.
    [[nodiscard]] Members members() const;

    // Setters. Children of the former value are destroyed. makeArray() and makeObject() leave a value of that
    // kind alone, with its children. setString() throws std::length_error for 4 GiB and more.
    void setNull() noexcept;
    void setBoolean(bool value) noexcept;
    void setInteger(std::int64_t value) noexcept;
    void setDouble(double value) noexcept;
    void setNumber(const number::Number& value);
    void setString(std::string_view value);
    void makeArray() noexcept;
    void makeObject() noexcept;

    // Arrays; std::bad_variant_access on anything else. Each returns the new last element.
    JV* append(std::unique_ptr<JV> child);
    JV* appendNull();
    JV* appendBoolean(bool value);
    JV* appendNumber(const number::Number& value);
    JV* appendString(std::string_view value);
    JV* appendArray();
    JV* appendObject();

    // Objects; std::bad_variant_access on anything else. Each returns the value now stored under `key`. A
    // value that stood there before is no longer reached from here but stays alive as long as this object,
    // because pointers to it may still be in use; remove() it first to be rid of it.
    JV* set(std::string_view key, std::unique_ptr<JV> child);
    JV* setNull(std::string_view key);
    JV* setBoolean(std::string_view key, bool value);
    JV* setInteger(std::string_view key, std::int64_t value);
    JV* setNumber(std::string_view key, const number::Number& value);
    JV* setString(std::string_view key, std::string_view value);
    JV* setArray(std::string_view key);
    JV* setObject(std::string_view key);
    /// Destroys the value under `key`; nothing happens when there is none.
    void remove(std::string_view key);

    /// Number without a fractional part.
    [[nodiscard]] bool isInteger() const;
    /// Elements of an array, keys of an object; 0 for every other kind.
    [[nodiscard]] std::size_t size() const noexcept;
    /// False on a value that is no object.
    [[nodiscard]] bool has(std::string_view key) const;
    /// The value under `key`, or null when there is none. std::bad_variant_access when this is no object.
    [[nodiscard]] const JV* get(std::string_view key) const;
    [[nodiscard]] JV* get(std::string_view key);
    /// Destroys all children of an array or object and leaves it empty. std::bad_variant_access on others.
    void clear();

    /// 64-bit hash of the content; keys of objects in byte-wise order, positions play no part.
    [[nodiscard]] std::uint64_t hash() const;
    /// Deep equality: numbers by value, keys in any order.
    [[nodiscard]] bool equals(const JV& other) const;
    /// Like equals(), but two numbers at the top level may differ by less than 2.220446049250313e-16. A big
    /// number at the top level is an unreachable path.
    [[nodiscard]] bool almostEquals(const JV& other) const;

    // Range checks, false on a value that is no number.
    [[nodiscard]] bool fitsFloat() const; ///< within the finite range of a 32-bit float
    [[nodiscard]] bool fitsInt32() const; ///< an integer within signed 32 bits
    [[nodiscard]] bool fitsInt64() const; ///< an integer within signed 64 bits

    // Typed getters of an object's members. They throw JVError with this object as its value:
    //   "Required property '{}' is missing."          when getRequired...() finds no such key
    //   "An object value is expected for '{}'." etc.  when the value is of another kind
    // The others return null when there is no such key.
    [[nodiscard]] const JV* getRequired(std::string_view name) const;
    [[nodiscard]] const JV* getRequiredObject(std::string_view name) const;
    [[nodiscard]] const JV* getRequiredBoolean(std::string_view name) const;
    [[nodiscard]] const JV* getRequiredString(std::string_view name) const;
    [[nodiscard]] const JV* getArray(std::string_view name) const;
    [[nodiscard]] const JV* getBoolean(std::string_view name) const;
    [[nodiscard]] const JV* getInteger(std::string_view name) const;
    [[nodiscard]] const JV* getNumeric(std::string_view name) const;
    [[nodiscard]] const JV* getObject(std::string_view name) const;
    [[nodiscard]] const JV* getString(std::string_view name) const;

    /// The value at `tokens` below this one, or null. A token for an array is read as an unsigned decimal
    /// number and throws std::invalid_argument "invalid stoul argument" when it does not start with a digit.
    [[nodiscard]] const JV* resolve(const JVPointer& tokens) const;

  private:
    friend class JVDocument;
    friend class Members;
    friend class SortedProperties;
    friend class TreeBuilder;
    friend class TreeCloner;

    /// A member of an object. A null value is a gap: its key is known to the source order, but has no value.
    struct Entry {
        const Key* key;
        JV* value;
    };
    struct EditHeader;

    enum Flag : std::uint16_t {
        indexed = 1,    ///< reached by the last indexing, under parent_ and slot_
        inSlab = 2,     ///< memory belongs to a document's slab
        ownsBlock = 4,  ///< the payload's pointer is ours to free; only then may children live on the heap
        inlineText = 8, ///< the text lies in the payload itself
        sourceOrdered = 16, ///< the first entries stand in source order
        explicitOrder = 32, ///< the document has a key order for this object in its side table
        plainScalar = 64,   ///< isPlainScalar()
    };

    static constexpr std::size_t narrowLimit = 256; ///< entries whose slots fit one byte

    /// What is known of the byte-wise order of an object's entries.
    enum class Order : std::uint8_t { Unknown, Natural, Permuted };

    /// Empty braces make all of it zero, because they initialise the first member: an empty container has no
    /// block.
    union Payload {
        char shortText[16];
        bool boolean;
        std::int64_t signedInteger;
        std::uint64_t unsignedInteger;
        double real;
        number::Number* big;
        struct {
            char* data;
            std::uint32_t length;
            std::uint32_t capacity;
        } text;
        struct {
            JV** items;
            std::uint32_t count;
            std::uint32_t capacity;
        } array;
        struct {
            Entry* entries;
            std::uint32_t count; ///< entries in use, gaps included
            std::uint32_t capacity;
        } object;
    };

    template <std::integral I>
    static number::Number toNumber(I value) noexcept {
        if constexpr (std::signed_integral<I>)
            return number::Number(std::int64_t{value});
        else
            return number::Number(std::uint64_t{value});
    }

    [[nodiscard]] bool is(Flag flag) const noexcept { return (flags_ & flag) != 0; }
    void raise(unsigned flags) noexcept { flags_ = static_cast<std::uint16_t>(flags_ | flags); }
    void lower(unsigned flags) noexcept { flags_ = static_cast<std::uint16_t>(flags_ & ~flags); }
    void require(Kind kind) const;

    void dropContent() noexcept;
    static void detachChildren(JV& value, JV*& pending) noexcept;
    static void linkDetached(JV* child, JV*& pending) noexcept;
    void become(Kind kind) noexcept;
    void storeMachineNumber(const number::Number& value) noexcept;

    // Objects (jv_object.cpp).
    [[nodiscard]] static std::size_t permutationBytes(std::size_t capacity) noexcept;
    [[nodiscard]] EditHeader& header() const noexcept;
    [[nodiscard]] std::uint32_t listedCount() const noexcept;
    [[nodiscard]] std::uint32_t findSlot(std::string_view key) const;
    [[nodiscard]] std::uint32_t searchPermutation(std::string_view key) const;
    void sortEntries() const;
    [[nodiscard]] std::uint32_t sortedSlot(std::uint32_t rank) const noexcept;
    void growEntries(std::size_t capacity);
    void addEntry(const Key* key, JV* value);
    void displace(std::uint32_t slot);
    void permuteEntries(std::span<const std::uint32_t> slots);
    void vacate(std::uint32_t slot);
    static void destroy(JV* child) noexcept;
    [[nodiscard]] JV* indexedChild(std::uint32_t slot) const noexcept;
    static void freeEntries(JV& object, JV*& pending) noexcept;

    Pos pos_;
    JV* parent_ = nullptr;   ///< at the last indexing; while a tree is destroyed, the link to the next value
    std::uint32_t slot_ = 0; ///< place in parent_ at the last indexing
    Kind kind_ = Kind::Null;
    mutable std::uint8_t detail_ = 0; ///< NumberKind, length of a short text, or Order
    std::uint16_t flags_ = 0;
    Payload payload_{};
};

static_assert(sizeof(JV) == 40, "a million values must stay cheap");

/// A key of an object with its value.
struct Member {
    std::string_view key;
    const JV* value;
};

/// The members of an object in byte-wise order of their keys; good until the object changes.
class Members {
  public:
    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Member;
        using difference_type = std::ptrdiff_t;
        using pointer = const Member*;
        using reference = Member;

        Iterator() noexcept = default;
        Member operator*() const noexcept;
        Iterator& operator++() noexcept {
            ++rank_;
            return *this;
        }
        Iterator operator++(int) noexcept {
            Iterator old = *this;
            ++rank_;
            return old;
        }
        friend bool operator==(const Iterator& a, const Iterator& b) noexcept { return a.rank_ == b.rank_; }

      private:
        friend class Members;
        Iterator(const JV* object, std::uint32_t rank) noexcept : object_(object), rank_(rank) {}

        const JV* object_ = nullptr;
        std::uint32_t rank_ = 0;
    };

    [[nodiscard]] Iterator begin() const noexcept { return {object_, 0}; }
    [[nodiscard]] Iterator end() const noexcept { return {object_, static_cast<std::uint32_t>(size())}; }
    [[nodiscard]] std::size_t size() const noexcept { return object_->size(); }
    [[nodiscard]] Member operator[](std::size_t rank) const noexcept {
        return *Iterator(object_, static_cast<std::uint32_t>(rank));
    }

  private:
    friend class JV;
    explicit Members(const JV* object) noexcept : object_(object) {}

    const JV* object_;
};

// Here, because walks over all members of a document spend their time in them.

inline std::uint32_t JV::sortedSlot(std::uint32_t rank) const noexcept {
    if (static_cast<Order>(detail_) == Order::Natural)
        return rank;
    const auto& object = payload_.object;
    const void* permutation = object.entries + object.capacity;
    return object.capacity <= narrowLimit ? static_cast<const std::uint8_t*>(permutation)[rank]
                                          : static_cast<const std::uint32_t*>(permutation)[rank];
}

inline Member Members::Iterator::operator*() const noexcept {
    const JV::Entry& entry = object_->payload_.object.entries[object_->sortedSlot(rank_)];
    return {entry.key->text(), entry.value};
}

} // namespace specloom::jv
