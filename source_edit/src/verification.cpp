#include "source_edit/verification.h"

#include "jv/equal_values.h"
#include "jv/json_reader.h"
#include "number/exact_numbers.h"
#include "source_edit/edited_values.h"

#include <exception> // std::exception
#include <memory>    // std::unique_ptr
#include <new>       // std::bad_alloc
#include <utility>   // std::pair
#include <vector>    // std::vector

namespace specloom::source_edit {
namespace {

/// Compares a JSON text with what is intended as it is read, without making a document of it.
class IntendedJson final : public jv::Handler {
  public:
    IntendedJson(const Edits& edits, const PositionSink& moved)
        : Handler(true), edits_(edits), moved_(moved), items_{{{}, edits.source().root()}}, frames_{{0, 1}} {}

    [[nodiscard]] bool isComplete() const { return frames_.size() == 1 && frames_.back().next == 1; }

    bool onString(std::string_view text, jv::Pos pos) override {
        const jv::JV* value = take(jv::Kind::String, pos);
        return value != nullptr && value->text() == text;
    }
    bool onInteger(std::int64_t number, jv::Pos pos) override {
        return isNumber(number::Number(number), pos);
    }
    bool onDouble(double number, jv::Pos pos) override { return isNumber(number::Number(number), pos); }
    bool onNumber(std::string_view text, jv::Pos pos) override {
        return isNumber(number::Number::fromText(text), pos);
    }
    bool onBoolean(bool boolean, jv::Pos pos) override {
        const jv::JV* value = take(jv::Kind::Boolean, pos);
        return value != nullptr && value->boolean() == boolean;
    }
    bool onNull(jv::Pos pos) override { return take(jv::Kind::Null, pos) != nullptr; }
    bool onKey(std::string_view text, jv::Pos) override {
        const Frame& frame = frames_.back();
        return frame.next < frame.end && items_[frame.next].key == text;
    }
    bool onStartObject(jv::Pos pos) override { return open(take(jv::Kind::Object, pos)); }
    bool onStartArray(jv::Pos pos) override { return open(take(jv::Kind::Array, pos)); }
    bool onEndObject(jv::Pos) override { return close(); }
    bool onEndArray(jv::Pos) override { return close(); }

  private:
    /// Of an open container, whose children are items up to those of the inner ones.
    struct Frame {
        std::size_t next;
        std::size_t end;
    };

    /// The value that is intended next, if it is of that kind.
    const jv::JV* take(jv::Kind kind, jv::Pos pos) {
        Frame& frame = frames_.back();
        if (frame.next == frame.end)
            return nullptr;
        const jv::JV* value = items_[frame.next++].value;
        if (value->kind() != kind)
            return nullptr;
        if (moved_)
            moved_(*value, pos);
        return value;
    }

    bool isNumber(const number::Number& number, jv::Pos pos) {
        const jv::JV* value = take(jv::Kind::Number, pos);
        return value != nullptr && number::compareExactly(value->number(), number) == 0;
    }

    bool open(const jv::JV* container) {
        if (container == nullptr)
            return false;
        const std::size_t begin = items_.size();
        forEachEditedChild(edits_, *container, [&](std::string_view key, const jv::JV& child) {
            items_.push_back({key, &child});
        });
        frames_.push_back({begin, items_.size()});
        return true;
    }

    bool close() {
        const Frame frame = frames_.back();
        if (frame.next != frame.end)
            return false;
        frames_.pop_back();
        items_.resize(frames_.back().end);
        return true;
    }

    const Edits& edits_;
    const PositionSink& moved_;
    std::vector<jv::Member> items_;
    std::vector<Frame> frames_;
};

[[nodiscard]] bool isJsonAsIntended(std::string_view text, const Edits& edits, const PositionSink& moved) {
    IntendedJson handler(edits, moved);
    jv::JSONReader reader(handler);
    using Status = jv::JSONReader::Status;
    return reader.parse(text) == Status::Good && reader.finish() == Status::Good && handler.isComplete();
}

[[nodiscard]] std::vector<jv::Member> childrenOf(const jv::JVDocument& document, const jv::JV& container) {
    std::vector<jv::Member> children;
    if (container.isObject())
        document.forEachOrdered(&container, [&](const jv::Member& member) { children.push_back(member); });
    else
        for (const jv::JV* element : container.elements())
            children.push_back({{}, element});
    return children;
}

} // namespace

bool isAsIntended(const Edits& edits, const jv::JVDocument& result, const PositionSink& moved) {
    std::vector<std::pair<const jv::JV*, const jv::JV*>> open{{edits.source().root(), result.root()}};
    while (!open.empty()) {
        const jv::JV* intended = open.back().first;
        const jv::JV* value = open.back().second;
        open.pop_back();
        if (intended->kind() != value->kind())
            return false;
        if (moved)
            moved(*intended, value->pos());
        if (!isContainer(*intended)) {
            if (!jv::equalValues(*intended, *value))
                return false;
            continue;
        }
        const std::vector<jv::Member> actual = childrenOf(result, *value);
        std::size_t place = 0;
        bool isEqual = true;
        forEachEditedChild(edits, *intended, [&](std::string_view key, const jv::JV& child) {
            isEqual = isEqual && place < actual.size() && actual[place].key == key;
            if (isEqual)
                open.emplace_back(&child, actual[place++].value);
        });
        if (!isEqual || place != actual.size())
            return false;
    }
    return true;
}

bool readsAsIntended(std::string_view text, jv::DocumentFormat format, const Edits& edits,
                     const PositionSink& moved) {
    if (format == jv::DocumentFormat::Json)
        return isJsonAsIntended(text, edits, moved);
    try {
        jv::LoadOptions options;
        options.format = format;
        const std::unique_ptr<jv::JVDocument> document = jv::parseDocument(text, options);
        // Nothing is told of a text that will not do: another attempt at it goes by the former positions.
        return isAsIntended(edits, *document, {}) && (!moved || isAsIntended(edits, *document, moved));
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return false; // no document
    }
}

} // namespace specloom::source_edit
