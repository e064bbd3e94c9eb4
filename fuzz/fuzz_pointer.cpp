// JSON pointers: the first line of the input is a pointer, the rest a document to look it up in.

#include "fuzz/check.h"
#include "jv/jv_pointer.h"
#include "test_support/documents.h"

#include <optional>  // std::optional
#include <stdexcept> // std::invalid_argument

namespace {

using specloom::fuzz::require;
using specloom::jv::JV;
using specloom::jv::JVDocument;
using specloom::jv::JVPointer;

std::optional<JVPointer> parse(std::string_view text) {
    try {
        JVPointer pointer;
        pointer.parse(text);
        return pointer;
    } catch (const specloom::jv::JVPointerError&) {
        return std::nullopt;
    }
}

const JV* resolve(const JVDocument& document, const JVPointer& tokens) {
    try {
        return document.root()->resolve(tokens);
    } catch (const std::invalid_argument&) {
        return nullptr;
    }
}

void requireText(std::string_view text, const JVPointer& tokens) {
    require(tokens.toString() == text, "a pointer has one text only");
    for (const std::string& token : tokens) {
        std::string escaped;
        JVPointer::escapeToken(token, escaped);
        require(JVPointer::unescapeToken(escaped) == token, "unescaping reverses escaping");
    }
    if (!tokens.empty())
        require(text.starts_with(tokens.parent().toString()), "a pointer starts with that of its parent");
}

void requireEveryPointer(const JVDocument& document) {
    specloom::test_support::forEachValue(*document.root(), [&](const JV& value) {
        const std::string pointer = value.pointer();
        require(document.lookup(pointer) == &value, "a value is found by its pointer");
        const auto tokens = parse(pointer);
        require(tokens && resolve(document, *tokens) == &value, "and by its tokens");
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = specloom::fuzz::textOf(data, size);
    const std::size_t lineEnd = std::min(input.find('\n'), input.size());
    const std::string_view text = input.substr(0, lineEnd);
    const std::string_view rest = input.substr(std::min(lineEnd + 1, input.size()));

    const auto tokens = parse(text);
    if (tokens)
        requireText(text, *tokens);
    const auto document = specloom::fuzz::readIfGood(rest, specloom::jv::DocumentFormat::Json);
    if (document == nullptr)
        return 0;
    requireEveryPointer(*document);
    if (const JV* found = document->lookup(text)) {
        require(found->pointer() == text, "what is found has this pointer");
        require(tokens && resolve(*document, *tokens) == found, "what is found is found by the tokens");
    }
    return 0;
}
