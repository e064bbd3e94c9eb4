#pragma once

#include "jv/jv.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::int32_t, std::uint32_t
#include <memory>        // std::unique_ptr
#include <new>           // placement new
#include <optional>      // std::optional
#include <span>          // std::span
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <utility>       // std::move
#include <vector>        // std::vector

namespace specloom::jv {

/// Where a value stands. What it refers to lives as long as the document.
struct Location {
    std::string_view file;     ///< its path in UTF-8; empty for a document that came from no file
    Pos pos{};                 ///< JV::pos(); unknown for no value
    const JV* value = nullptr; ///< null for what was made in code

    /// The JSON pointer (RFC 6901) of the value. Throws std::out_of_range "Node was not read from the
    /// document" when there is none.
    [[nodiscard]] std::string pointer() const;
};

/// What a reader met in a text and the values do not show. A text with any of it holds more than its values.
struct ReadingLosses {
    std::size_t aliases = 0;         ///< of YAML: each stood in the place of a value and yielded none
    std::int32_t firstAliasLine = 0; ///< of the text, counted from 1
    bool repeatedKeys = false;       ///< some object had a key twice, of which the last value counts

    friend bool operator==(const ReadingLosses&, const ReadingLosses&) = default;
};

/// Owns one tree of values, finds them by JSON pointer and remembers in which order the keys of each object
/// stood in the source.
class JVDocument {
  public:
    JVDocument();
    ~JVDocument();
    JVDocument(const JVDocument&) = delete;
    JVDocument& operator=(const JVDocument&) = delete;

    /// Null until a root was set.
    [[nodiscard]] JV* root() noexcept { return root_; }
    [[nodiscard]] const JV* root() const noexcept { return root_; }
    /// Destroys the former root. Without `reindex` no value is found by its pointer until the next reindex().
    void setRoot(std::unique_ptr<JV> root, bool reindex = true);
    /// Replaces the root by a fresh empty value of that kind (false, 0 and "" for the scalars) and indexes
    /// it.
    JV* makeRoot(Kind kind);

    /// Gives every value of the tree its pointer. Structural changes need it before lookup() sees them.
    void reindex();
    /// The value that had this JSON pointer (RFC 6901, section 3) when the document was last indexed, or
    /// null.
    [[nodiscard]] JV* lookup(std::string_view pointer);
    [[nodiscard]] const JV* lookup(std::string_view pointer) const;

    /// JV::setPos().
    static void setPos(JV* value, std::int32_t line, std::int32_t column) { value->setPos({line, column}); }

    /// Puts a value of this document elsewhere, whatever position it had.
    void movePos(const JV& value, Pos pos) noexcept { const_cast<JV&>(value).pos_ = pos; }

    // The recorded order of an object's keys. It may name keys that the object has not, and a key twice.
    void appendKey(JV* object, std::string_view key);
    void setKeys(JV* object, std::span<const std::string_view> keys);
    void forget(JV* object);
    /// The recorded keys; none for an object that was built in code.
    [[nodiscard]] std::vector<std::string_view> keysOf(const JV* object) const;

    /// The members in the order in which they are written by default: as recorded, those that were not
    /// recorded byte-wise behind them.
    [[nodiscard]] std::vector<Member> orderedMembers(const JV* object) const;

    /// Calls `visit(member)` for each of orderedMembers(), without a list of its own where the entries
    /// already stand in that order.
    template <typename Visit>
    void forEachOrdered(const JV* object, Visit visit) const {
        if (!isAsRead(*object)) {
            for (const Member& member : orderedMembers(object))
                visit(member);
            return;
        }
        const auto& entries = object->payload_.object;
        for (std::uint32_t slot = 0; slot < entries.count; ++slot)
            visit(Member{entries.entries[slot].key->text(), entries.entries[slot].value});
    }

    /// Where a value of this document, or null, stands. All that tells of places asks here: a document may
    /// come to stand in several files.
    [[nodiscard]] Location locationOf(const JV* value) const noexcept {
        return {.file = sourcePath_ ? std::string_view(*sourcePath_) : std::string_view(),
                .pos = value == nullptr ? Pos{} : value->pos(),
                .value = value};
    }
    /// The same of the value or, where that has no position, of JV::enclosingObject().
    [[nodiscard]] Location nearestLocationOf(const JV* value) const noexcept;
    /// The path of the input in UTF-8, where it came from a file.
    [[nodiscard]] const std::optional<std::string>& sourcePath() const noexcept { return sourcePath_; }
    void setSourcePath(std::string path) { sourcePath_ = std::move(path); }

    /// A deep copy on its own, without positions, pointers and recorded key orders.
    [[nodiscard]] static std::unique_ptr<JV> clone(const JV& source);
    /// The content of `target` becomes a deep copy of that of `source`; `target` keeps its position and
    /// pointer.
    static void assign(const JV& source, JV& target);

    /// Nothing for a document that was built in code.
    [[nodiscard]] const ReadingLosses& losses() const noexcept { return losses_; }
    void setLosses(const ReadingLosses& losses) noexcept { losses_ = losses; }

    /// Bytes of the text that the document was read from; 0 for one that was built in code.
    [[nodiscard]] std::size_t sourceSize() const noexcept { return sourceSize_; }
    /// Also lets what is read from now on come in larger pieces of memory, if so many bytes are to be read.
    void setSourceSize(std::size_t bytes) noexcept {
        sourceSize_ = bytes;
        slabSizes_.expect(bytes);
        arena_.expect(bytes);
    }

  private:
    friend class TreeBuilder;

    using KeyOrder = std::vector<const Key*>;

    /// Whether the entries of an object, all of them, stand in the recorded order.
    [[nodiscard]] static bool isAsRead(const JV& object) noexcept {
        return object.is(JV::sourceOrdered) && !object.is(JV::ownsBlock);
    }

    /// A new value in a slab; it belongs to the document until the document ends.
    [[nodiscard]] JV* newSlabValue() {
        if (nextInSlab_ == endOfSlab_)
            addSlab();
        JV* value = new (nextInSlab_++) JV;
        value->flags_ = JV::inSlab;
        return value;
    }
    void addSlab();
    void dropSlabValues() noexcept;
    /// Drops the tree, and keeps the memory of values for further ones.
    void restart() noexcept;
    void replaceRoot(JV* root) noexcept;
    [[nodiscard]] bool reorderInPlace(JV* object, std::span<const std::string_view> keys);
    [[nodiscard]] KeyOrder& explicitOrderOf(JV* object);
    [[nodiscard]] static std::uint32_t slotOfToken(const JV& parent, std::string_view token);
    [[nodiscard]] static const JV* childAt(const JV& parent, std::uint32_t slot);

    struct Slab {
        Chunk memory;
        std::size_t bytes;
        JV* end; ///< of its values; for the last one in use nextInSlab_ tells
    };

    JV* root_ = nullptr;
    std::vector<Slab> slabs_;
    std::size_t usedSlabs_ = 0; ///< the first ones
    ChunkSizes slabSizes_;
    JV* nextInSlab_ = nullptr;
    JV* endOfSlab_ = nullptr;
    Arena arena_;                                    ///< blocks of containers and texts of values in slabs
    std::unordered_map<const JV*, KeyOrder> orders_; ///< where the order of the entries does not say it all
    std::size_t sourceSize_ = 0;
    ReadingLosses losses_;
    std::optional<std::string> sourcePath_;
};

} // namespace specloom::jv
