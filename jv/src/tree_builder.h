#pragma once

#include "jv/jv_document.h"

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv {

/// Builds the tree of a document from the events of a reader. Values and their blocks go to the document's
/// slabs; a container is indexed as it grows, so that a finished document needs no pass of its own for that.
///
/// Keys and values come separately, as readers see them. A key that never gets its value is recorded in the
/// key order all the same; a value that comes while no key is pending goes under the empty key.
class TreeBuilder {
  public:
    explicit TreeBuilder(std::unique_ptr<JVDocument> document);

    [[nodiscard]] bool hasOpenContainer() const noexcept { return !frames_.empty(); }
    [[nodiscard]] std::size_t depth() const noexcept { return frames_.size(); }
    /// Whether the open container is an object; there must be one.
    [[nodiscard]] bool inObject() const noexcept { return frames_.back().container->isObject(); }
    /// Whether the open object waits for the value of its last key.
    [[nodiscard]] bool keyPending() const noexcept { return frames_.back().keyPending; }

    /// Records a key of the open object.
    void addKey(std::string_view key) {
        lastKey_ = keys_.internAfter(lastKey_, key);
        items_.push_back({lastKey_, nullptr});
        frames_.back().keyPending = true;
    }
    /// The same of a key of KeyPool::instance().
    void addKey(Key* key) {
        lastKey_ = key;
        items_.push_back({key, nullptr});
        frames_.back().keyPending = true;
    }
    /// Says that the last key counts as none: the next value does not belong to it.
    void dropPendingKey() noexcept { frames_.back().keyPending = false; }

    void addNull(Pos pos) { add(newValue(pos)); }
    void addBoolean(bool value, Pos pos);
    void addNumber(const number::Number& value, Pos pos);
    void addString(std::string_view value, Pos pos);
    /// A string with JV::isPlainScalar().
    void addPlainString(std::string_view value, Pos pos);
    /// A deep copy without positions, members in byte-wise order of their keys.
    void addCopy(const JV& value);
    void startArray(Pos pos) { open(Kind::Array, pos); }
    void startObject(Pos pos) { open(Kind::Object, pos); }
    /// Closes the open container; there must be one.
    void end();

    /// What was completed last in the open container, or the root; null when nothing was.
    [[nodiscard]] JV* last() noexcept;

    /// A place between two events.
    struct Checkpoint {
        std::size_t containers; ///< that are open
        std::size_t items;      ///< of all of them
        bool keyPending;
    };
    [[nodiscard]] Checkpoint checkpoint() const noexcept {
        return {frames_.size(), items_.size(), !frames_.empty() && frames_.back().keyPending};
    }
    /// Takes back what was added since then, if none of the containers that were open is closed. The next
    /// root takes the place of one that was complete. Memory is given back with the document only.
    void rollBack(const Checkpoint& place);

    /// Takes back everything. The memory of the values serves for further ones.
    void restart() noexcept {
        frames_.clear();
        items_.clear();
        unlisted_.clear();
        document_->restart();
    }

    [[nodiscard]] const JVDocument& document() const noexcept { return *document_; }
    /// The document; its root is missing if no value was complete.
    [[nodiscard]] std::unique_ptr<JVDocument> takeDocument() noexcept { return std::move(document_); }

  private:
    struct Frame {
        JV* container;
        std::size_t base; ///< of its children in items_
        bool keyPending;  ///< the last item is a key without a value so far
        bool orderTold;   ///< the items in their order are the key order
    };

    [[nodiscard]] JV* newValue(Pos pos) {
        JV* value = document_->newSlabValue();
        value->pos_ = pos;
        return value;
    }
    [[nodiscard]] JV* newString(std::string_view value, Pos pos);
    void add(JV* value);
    void addUnderEmptyKey(JV* value);
    void open(Kind kind, Pos pos);
    void closeArray(const Frame& frame);
    void closeObject(const Frame& frame);
    [[nodiscard]] bool isPlainObject(const Frame& frame);
    void settleMembers(const Frame& frame);

    std::unique_ptr<JVDocument> document_;
    KeyPool& keys_ = KeyPool::instance();
    Key* lastKey_ = nullptr;
    std::vector<Frame> frames_;
    std::vector<JV::Entry> items_; ///< children of the open containers, the innermost last
    struct Unlisted {
        const JV* container;
        JV* value;
    };
    std::vector<Unlisted> unlisted_; ///< values under the empty key that the key order does not name
};

} // namespace specloom::jv
