#include "jv/yaml_reader.h"

#include "foundation/message.h"
#include "jv/tree_builder.h"

#include <cstring>   // std::strlen
#include <istream>   // std::istream
#include <new>       // std::bad_alloc
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

#include <yaml.h>

namespace specloom::jv {

namespace {

constexpr const char* parseFailed = "Failed to parse YAML";
constexpr const char* manyTags = "YAML has more than {} %TAG directives";
constexpr const char* longTag = "YAML has a %TAG directive with more than {} bytes";

/// Owns a libyaml parser and the event that it delivered last.
class EventSource {
  public:
    explicit EventSource(std::istream& stream) : EventSource() {
        stream_ = &stream;
        yaml_parser_set_input(&parser_, &EventSource::readFrom, this);
    }
    explicit EventSource(std::string_view text) : EventSource() {
        text_ = text;
        yaml_parser_set_input(&parser_, &EventSource::readFrom, this);
    }
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;
    ~EventSource() {
        yaml_event_delete(&event_);
        yaml_parser_delete(&parser_);
    }

    const yaml_event_t& next() {
        yaml_event_delete(&event_);
        const bool isRead = yaml_parser_parse(&parser_, &event_) != 0;
        requireFewTags();
        if (!isRead) {
            if (parser_.error == YAML_MEMORY_ERROR)
                throw std::bad_alloc();
            throw std::runtime_error(parseFailed);
        }
        return event_;
    }

    /// Bytes read so far.
    [[nodiscard]] std::size_t offset() const noexcept { return parser_.offset; }

  private:
    EventSource() {
        if (yaml_parser_initialize(&parser_) == 0)
            throw std::bad_alloc();
    }

    /// All directives of a document are read in one step, on the way to its start.
    void requireFewTags() const {
        if (tagDirectives() > mostTagDirectives)
            throw std::runtime_error(formatMessage(manyTags, mostTagDirectives));
        if (event_.type != YAML_DOCUMENT_START_EVENT)
            return;
        const auto& tags = event_.data.document_start.tag_directives;
        for (const yaml_tag_directive_t* tag = tags.start; tag != tags.end; ++tag)
            if (std::strlen(reinterpret_cast<const char*>(tag->prefix)) > longestTagPrefix)
                throw std::runtime_error(formatMessage(longTag, longestTagPrefix));
    }
    /// With the two that libyaml adds at the end, which are no document's, and until then without.
    [[nodiscard]] std::size_t tagDirectives() const noexcept {
        constexpr std::size_t added = 2;
        const auto count =
            static_cast<std::size_t>(parser_.tag_directives.top - parser_.tag_directives.start);
        return count < added ? 0 : count - added;
    }

    static int readFrom(void* data, unsigned char* buffer, std::size_t size, std::size_t* sizeRead) {
        auto& source = *static_cast<EventSource*>(data);
        // In the midst of the directives: those that are too many are not all waited for.
        if (source.tagDirectives() > mostTagDirectives)
            return 0;
        if (source.stream_ == nullptr) {
            *sizeRead = source.text_.copy(reinterpret_cast<char*>(buffer), size);
            source.text_.remove_prefix(*sizeRead);
            return 1;
        }
        std::istream& stream = *source.stream_;
        stream.read(reinterpret_cast<char*>(buffer), static_cast<std::streamsize>(size));
        *sizeRead = static_cast<std::size_t>(stream.gcount());
        return stream.bad() || (stream.fail() && !stream.eof()) ? 0 : 1;
    }

    std::istream* stream_ = nullptr; ///< null for a text
    std::string_view text_;          ///< what is left of it
    yaml_parser_t parser_{};
    yaml_event_t event_{};
};

/// Turns the events of a stream into the document that it ends with.
class StreamReader {
  public:
    std::unique_ptr<JVDocument> read(EventSource& source) {
        while (accept(source.next())) {
        }
        if (result_ == nullptr)
            throw std::runtime_error(parseFailed);
        result_->setSourceSize(source.offset());
        return std::move(result_);
    }

  private:
    /// False at the end of the stream.
    bool accept(const yaml_event_t& event) {
        switch (event.type) {
        case YAML_DOCUMENT_START_EVENT:
            builder_.emplace(std::make_unique<JVDocument>());
            break;
        case YAML_DOCUMENT_END_EVENT:
            result_ = builder_->takeDocument();
            if (result_->root() == nullptr)
                throw std::runtime_error(parseFailed); // an alias in place of the whole document
            break;
        case YAML_SCALAR_EVENT:
            addScalar(event);
            break;
        case YAML_SEQUENCE_START_EVENT:
            requireDepth();
            builder_->startArray(startOf(event));
            break;
        case YAML_MAPPING_START_EVENT:
            requireDepth();
            builder_->startObject(startOf(event));
            break;
        case YAML_SEQUENCE_END_EVENT:
        case YAML_MAPPING_END_EVENT:
            builder_->end();
            break;
        case YAML_STREAM_END_EVENT:
            return false;
        case YAML_ALIAS_EVENT:
        case YAML_STREAM_START_EVENT:
        case YAML_NO_EVENT:
            break;
        }
        return true;
    }

    void requireDepth() const {
        if (builder_->depth() >= deepestYaml)
            throw std::runtime_error(parseFailed);
    }

    [[nodiscard]] static Pos startOf(const yaml_event_t& event) noexcept {
        return {static_cast<std::int32_t>(event.start_mark.line),
                static_cast<std::int32_t>(event.start_mark.column)};
    }

    void addScalar(const yaml_event_t& event) {
        const auto& scalar = event.data.scalar;
        const std::string_view text(reinterpret_cast<const char*>(scalar.value), scalar.length);
        if (!builder_->hasOpenContainer())
            throw std::runtime_error(parseFailed);
        if (builder_->inObject() && !builder_->keyPending()) {
            builder_->addKey(text);
            if (text.empty())
                builder_->dropPendingKey();
        } else if (scalar.quoted_implicit != 0) {
            builder_->addString(text, Pos{});
        } else {
            addByText(text, isPlain(scalar));
        }
    }

    /// Without quotes and without a tag, which for other readers would decide the kind.
    [[nodiscard]] static bool isPlain(const decltype(yaml_event_t::data.scalar)& scalar) noexcept {
        return scalar.style == YAML_PLAIN_SCALAR_STYLE && scalar.tag == nullptr;
    }

    void addByText(std::string_view text, bool plain) {
        if (text == "null")
            builder_->addNull(Pos{});
        else if (text == "true" || text == "false")
            builder_->addBoolean(text == "true", Pos{});
        else if (const std::optional<number::Number> number = number::Number::tryParse(text))
            builder_->addNumber(*number, Pos{});
        else if (plain)
            builder_->addPlainString(text, Pos{});
        else
            builder_->addString(text, Pos{});
    }

    std::optional<TreeBuilder> builder_; ///< of the document that is open
    std::unique_ptr<JVDocument> result_;
};

} // namespace

std::unique_ptr<JVDocument> readYAML(std::istream& stream) {
    EventSource source(stream);
    return StreamReader().read(source);
}

std::unique_ptr<JVDocument> parseYAML(std::string_view text) {
    EventSource source(text);
    return StreamReader().read(source);
}

} // namespace specloom::jv
