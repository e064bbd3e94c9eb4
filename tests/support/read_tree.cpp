#include "test_support/read_tree.h"

#include "jv/deser.h"

#include <exception> // std::exception

namespace specloom::test_support {

std::vector<std::string> addUnknownFormats(std::string_view refusal, openapi::SchemaFormatRegistry& formats) {
    constexpr std::string_view start = "Unknown format: ";
    constexpr std::string_view end = " at (";
    std::vector<std::string> added;
    for (std::size_t at = refusal.find(start); at != std::string_view::npos; at = refusal.find(start, at)) {
        at += start.size();
        const std::string_view name = refusal.substr(at, refusal.find(end, at) - at);
        if (formats.find(name) != nullptr)
            continue;
        formats.add(name, openapi::SchemaType::String);
        added.emplace_back(name);
    }
    return added;
}

ReadTree readTree(const std::filesystem::path& path) {
    ReadTree tree{std::make_shared<openapi::SchemaFormatRegistry>(), nullptr, {}, ""};
    for (int attempt = 0; attempt < 2; ++attempt) {
        try {
            tree.result = openapi::readFile(path.string(), tree.formats);
            tree.refusal.clear();
            return tree;
        } catch (const std::exception& error) {
            tree.refusal = error.what();
        }
        tree.unknownFormats = addUnknownFormats(tree.refusal, *tree.formats);
        if (tree.unknownFormats.empty())
            return tree;
    }
    return tree;
}

} // namespace specloom::test_support
