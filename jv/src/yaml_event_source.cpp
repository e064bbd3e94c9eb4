#include "jv/yaml_event_source.h"

#include "foundation/message.h"

#include <cstring>   // std::strlen
#include <istream>   // std::istream
#include <new>       // std::bad_alloc
#include <stdexcept> // std::runtime_error

namespace specloom::jv {

namespace {

constexpr const char* notYaml = "Failed to parse YAML";
constexpr const char* manyTags = "YAML has more than {} %TAG directives";
constexpr const char* longTag = "YAML has a %TAG directive with more than {} bytes";

} // namespace

YamlEventSource::YamlEventSource() {
    if (yaml_parser_initialize(&parser_) == 0)
        throw std::bad_alloc();
}

YamlEventSource::YamlEventSource(std::istream& stream) : YamlEventSource() {
    stream_ = &stream;
    yaml_parser_set_input(&parser_, &YamlEventSource::readFrom, this);
}

YamlEventSource::YamlEventSource(std::string_view text) : YamlEventSource() {
    text_ = text;
    yaml_parser_set_input(&parser_, &YamlEventSource::readFrom, this);
}

YamlEventSource::~YamlEventSource() {
    yaml_event_delete(&event_);
    yaml_parser_delete(&parser_);
}

const yaml_event_t& YamlEventSource::next() {
    yaml_event_delete(&event_);
    const bool isRead = yaml_parser_parse(&parser_, &event_) != 0;
    requireFewTags();
    if (!isRead) {
        if (parser_.error == YAML_MEMORY_ERROR)
            throw std::bad_alloc();
        throw std::runtime_error(notYaml);
    }
    return event_;
}

/// All directives of a document are read in one step, on the way to its start.
void YamlEventSource::requireFewTags() const {
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
std::size_t YamlEventSource::tagDirectives() const noexcept {
    constexpr std::size_t added = 2;
    const auto count = static_cast<std::size_t>(parser_.tag_directives.top - parser_.tag_directives.start);
    return count < added ? 0 : count - added;
}

int YamlEventSource::readFrom(void* data, unsigned char* buffer, std::size_t size, std::size_t* sizeRead) {
    auto& source = *static_cast<YamlEventSource*>(data);
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

} // namespace specloom::jv
