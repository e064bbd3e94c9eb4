#include "openapi/reader/reader_context.h"

#include "foundation/site.h"
#include "openapi/reader.h"
#include "openapi/reference.h"

#include <algorithm> // std::any_of, std::ranges::sort
#include <iterator>  // std::back_inserter
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

#include <fmt/format.h> // fmt::format, fmt::format_to

namespace specloom::openapi {

namespace {

constexpr std::string_view unknownFormat = "Unknown format: ";
constexpr const char* customFormatsHint =
    "\nWARNING: Looks like this schema uses custom schema formats. Define them in \n"
    "the configuration file and pass the configuration file using the --config \n"
    "option. You can find more information about custom formats in the docs: \n";

} // namespace

ReaderContext::ReaderContext(ReadResult& result) : result_(result), placeholder_(&result.root()) {}

void ReaderContext::report(const Node& node, const jv::JV* value, Message message) {
    errors_.push_back({&node, value, std::move(message)});
}

bool ReaderContext::requireObject(const Node& node, const jv::JV& value, MessageFormat<> message) {
    if (!value.isObject())
        report(node, &value, formatMessage(message));
    return value.isObject();
}

bool ReaderContext::enter(const Node& node, const jv::JV& value) {
    if (depth_ == maxNodeDepth) {
        report(node, &value, formatMessage("Objects are nested more than {} levels deep", maxNodeDepth));
        return false;
    }
    ++depth_;
    return true;
}

void ReaderContext::addExtensions(Node& node) {
    // One that stands before another is put at its place by moving all behind it: hence in order.
    std::ranges::sort(extensions, {}, &jv::Member::key);
    for (const jv::Member& member : extensions)
        node.replaceExtension(Text::borrow(member.key), Value::borrow(*member.value));
    extensions.clear();
}

// ---- errors

jv::Pos ReaderContext::positionOf(const ReadError& error) const {
    const jv::Location location = result_.source().nearestLocationOf(error.value);
    return location.pos.isKnown() ? location.pos : result_.nearestLocationOf(*error.node).pos;
}

void ReaderContext::throwErrors() const {
    if (errors_.empty())
        return;
    std::string text;
    for (const ReadError& error : errors_) {
        const jv::Pos pos = positionOf(error);
        fmt::format_to(std::back_inserter(text), "{} at ({}, {})\n", error.message.composed(), pos.line,
                       pos.column);
    }
    const bool custom = std::any_of(errors_.begin(), errors_.end(), [](const ReadError& error) {
        return error.message.composed().find(unknownFormat) != std::string::npos;
    });
    if (custom)
        fmt::format_to(std::back_inserter(text), "{}{}/custom-formats\n", customFormatsHint,
                       documentationSite);
    throw std::runtime_error(text);
}

} // namespace specloom::openapi
