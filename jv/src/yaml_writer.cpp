#include "jv/yaml_writer.h"

#include "foundation/message.h"
#include "jv/yaml_quoting.h"
#include "jv/yaml_reader.h"

#include <cerrno>    // errno, ENOMEM
#include <limits>    // std::numeric_limits
#include <new>       // std::bad_alloc
#include <stdexcept> // std::runtime_error
#include <vector>    // std::vector

#include <yaml.h>

namespace specloom::jv {

namespace {

/// Output may grow beyond what it holds by this factor, and by what any document may have. Indentation alone
/// does that: 9,000 levels of 20 bytes each would be indented by 160 million spaces.
constexpr std::size_t mostGrowth = 32;
constexpr std::size_t freeGrowth = std::size_t{16} << 20; // bytes
constexpr const char* tooLarge = "YAML output is too large for its content: values are nested too deeply";

/// Owns a libyaml emitter and hands events to it; the messages of all steps stand here.
class Emitter {
  public:
    Emitter(std::string& output, std::int64_t indent) : output_(output), flow_(indent <= 0) {
        errno = 0; // see emit()
        if (yaml_emitter_initialize(&emitter_) == 0)
            throw std::bad_alloc();
        yaml_emitter_set_indent(&emitter_, 2);
        if (indent > 0)
            yaml_emitter_set_indent(&emitter_, static_cast<int>(indent));
        yaml_emitter_set_output(&emitter_, &Emitter::append, this);
        yaml_emitter_set_unicode(&emitter_, 1);
        yaml_emitter_set_width(&emitter_, -1);
    }
    Emitter(const Emitter&) = delete;
    Emitter& operator=(const Emitter&) = delete;
    ~Emitter() { yaml_emitter_delete(&emitter_); }

    [[nodiscard]] bool inFlowStyle() const noexcept { return flow_; }

    void startDocument() {
        emit(yaml_stream_start_event_initialize(&event_, YAML_UTF8_ENCODING), "stream start");
        emit(yaml_document_start_event_initialize(&event_, nullptr, nullptr, nullptr, 1), "stream start");
    }
    void endDocument() {
        emit(yaml_document_end_event_initialize(&event_, 1), "document end");
        emit(yaml_stream_end_event_initialize(&event_), "stream end");
    }
    void startArray() {
        const auto style = flow_ ? YAML_FLOW_SEQUENCE_STYLE : YAML_BLOCK_SEQUENCE_STYLE;
        emit(yaml_sequence_start_event_initialize(&event_, nullptr, nullptr, 1, style), "sequence start");
    }
    void endArray() { emit(yaml_sequence_end_event_initialize(&event_), "sequence end"); }
    void startObject() {
        const auto style = flow_ ? YAML_FLOW_MAPPING_STYLE : YAML_BLOCK_MAPPING_STYLE;
        emit(yaml_mapping_start_event_initialize(&event_, nullptr, nullptr, 1, style), "mapping start");
    }
    void endObject() { emit(yaml_mapping_end_event_initialize(&event_), "mapping end"); }

    void string(std::string_view text, yaml_scalar_style_t style) {
        constexpr const char* name = "string scalar";
        if (hasForbiddenCodePoint(text))
            emit(0, name);
        scalar(text, style, name);
    }
    void number(const number::Number& value) {
        constexpr const char* name = "number scalar";
        // Its text would come back as a string.
        if (!isFinite(value))
            emit(0, name);
        numberText_.clear();
        value.appendTo(numberText_);
        scalar(numberText_, YAML_PLAIN_SCALAR_STYLE, name);
    }

    /// No event carries a tag: with both implicit flags set libyaml writes the same bytes with one, only
    /// slower.
    void scalar(std::string_view text, yaml_scalar_style_t style, const char* name) {
        if (text.size() > std::numeric_limits<int>::max())
            emit(0, name); // libyaml counts in int
        content_ += text.size();
        const auto* bytes = reinterpret_cast<const yaml_char_t*>(text.empty() ? "" : text.data());
        emit(yaml_scalar_event_initialize(&event_, nullptr, nullptr, bytes, static_cast<int>(text.size()), 1,
                                          1, style),
             name);
    }

  private:
    void emit(int initialized, const char* name) {
        // libyaml does not tell why it made no event, but malloc() does.
        if (initialized == 0 && errno == ENOMEM)
            throw std::bad_alloc();
        if (initialized == 0)
            throw std::runtime_error(formatMessage("Failed to initialize {} event", name));
        content_ += bytesOfEvent;
        if (yaml_emitter_emit(&emitter_, &event_) == 0) {
            if (emitter_.error == YAML_MEMORY_ERROR)
                throw std::bad_alloc();
            if (isTooLarge())
                throw std::runtime_error(tooLarge);
            throw std::runtime_error(formatMessage("Failed to emit {} event", name));
        }
    }

    [[nodiscard]] bool isTooLarge() const noexcept {
        return output_.size() > freeGrowth && (output_.size() - freeGrowth) / mostGrowth > content_;
    }

    [[nodiscard]] static bool isFinite(const number::Number& value) {
        if (value.kind() == number::NumberKind::Big)
            return !value.bigValue().isInfinite() && !value.bigValue().isNaN();
        return !value.isInfinite() && !value.isNaN();
    }

    static int append(void* data, unsigned char* buffer, std::size_t size) {
        auto& emitter = *static_cast<Emitter*>(data);
        emitter.output_.append(reinterpret_cast<const char*>(buffer), size);
        return emitter.isTooLarge() ? 0 : 1;
    }

    static constexpr std::size_t bytesOfEvent = 4; ///< punctuation, quotes, a line feed

    std::string& output_;
    std::size_t content_ = 0; ///< bytes without indentation
    bool flow_;
    yaml_emitter_t emitter_{};
    yaml_event_t event_{};
    std::string numberText_;
};

/// Walks a tree with a stack of its own and feeds the emitter.
class TreeEmitter {
  public:
    TreeEmitter(Emitter& emitter, const JVDocument& document, const PropertySorter& sorter)
        : emitter_(emitter), document_(document), sorter_(sorter) {}

    void emit(const JV& root) {
        begin(root);
        while (!open_.empty()) {
            Frame& frame = open_.back();
            if (frame.next == items_.size()) {
                end();
                continue;
            }
            const Member member = items_[frame.next++];
            if (frame.container->isObject())
                emitter_.string(member.key, YAML_ANY_SCALAR_STYLE);
            begin(*member.value); // `frame` may be gone from here on
        }
    }

  private:
    /// The children of an open container are the last items; those of inner ones stand behind them and are
    /// gone when the turn of the outer one comes again.
    struct Frame {
        const JV* container;
        std::size_t base;
        std::size_t next;
    };

    void begin(const JV& value) {
        switch (value.kind()) {
        case Kind::Null:
            emitter_.scalar("null", YAML_PLAIN_SCALAR_STYLE, "null scalar");
            break;
        case Kind::Boolean:
            emitter_.scalar(value.boolean() ? "true" : "false", YAML_PLAIN_SCALAR_STYLE, "boolean scalar");
            break;
        case Kind::Number:
            emitter_.number(value.number());
            break;
        case Kind::String:
            emitter_.string(value.text(), styleOf(value));
            break;
        case Kind::Array:
            push(value);
            for (const JV* element : value.elements())
                items_.push_back({{}, element});
            emitter_.startArray();
            break;
        case Kind::Object:
            push(value);
            pushMembers(value);
            emitter_.startObject();
            break;
        }
    }

    [[nodiscard]] yaml_scalar_style_t styleOf(const JV& string) const {
        const std::string_view text = string.text();
        // Where it stood plain in the source, it stays what others took it for; but a time in flow style,
        // which libyaml quotes in any case, and what was left empty: that is "" for every reader then.
        const bool canBePlain = !text.empty() && (!emitter_.inFlowStyle() || text.find(':') == text.npos);
        return needsDoubleQuotes(text) && !(string.isPlainScalar() && canBePlain)
                   ? YAML_DOUBLE_QUOTED_SCALAR_STYLE
                   : YAML_ANY_SCALAR_STYLE;
    }

    void push(const JV& container) {
        if (open_.size() == deepestYaml)
            throw std::runtime_error("MaxDepthExceeded");
        open_.push_back({&container, items_.size(), items_.size()});
    }

    void pushMembers(const JV& object) {
        const auto push = [&](const Member& member) { items_.push_back(member); };
        if (sorter_) {
            for (const Member& member : sorter_(&object))
                push(member);
        } else {
            document_.forEachOrdered(&object, push);
        }
    }

    void end() {
        if (open_.back().container->isArray())
            emitter_.endArray();
        else
            emitter_.endObject();
        items_.resize(open_.back().base);
        open_.pop_back();
    }

    Emitter& emitter_;
    const JVDocument& document_;
    const PropertySorter& sorter_;
    std::vector<Frame> open_;
    std::vector<Member> items_;
};

} // namespace

void YAMLWriter::write(const JVDocument& document) {
    output_.reserve(document.sourceSize() + document.sourceSize() / 2 + 64);
    Emitter emitter(output_, indent_);
    emitter.startDocument();
    const JV nothing;
    TreeEmitter(emitter, document, sorter_).emit(document.root() != nullptr ? *document.root() : nothing);
    emitter.endDocument();
}

} // namespace specloom::jv
