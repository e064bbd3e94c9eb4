#include "jv/yaml_reader.h"

#include "jv/tree_builder.h"
#include "jv/yaml_event_source.h"

#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

namespace specloom::jv {

namespace {

constexpr const char* parseFailed = "Failed to parse YAML";

/// Turns the events of a stream into the document that it ends with.
class StreamReader {
  public:
    std::unique_ptr<JVDocument> read(YamlEventSource& source) {
        while (accept(source.next())) {
        }
        if (result_ == nullptr)
            throw std::runtime_error(parseFailed);
        result_->setSourceSize(source.offset());
        losses_.repeatedKeys = result_->losses().repeatedKeys;
        result_->setLosses(losses_);
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
            if (losses_.aliases++ == 0)
                losses_.firstAliasLine = startOf(event).line + 1;
            break;
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
    ReadingLosses losses_; ///< of the whole stream
};

} // namespace

std::unique_ptr<JVDocument> readYAML(std::istream& stream) {
    YamlEventSource source(stream);
    return StreamReader().read(source);
}

std::unique_ptr<JVDocument> parseYAML(std::string_view text) {
    YamlEventSource source(text);
    return StreamReader().read(source);
}

} // namespace specloom::jv
