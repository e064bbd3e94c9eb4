#include "test_support/growing_documents.h"

#include "jv/key_pool.h"

#include <cstdint>     // std::uint64_t
#include <cstring>     // std::memcpy
#include <stdexcept>   // std::logic_error
#include <string_view> // std::string_view

#include <fmt/core.h>

namespace specloom::test_support {
namespace {

/// "{item(0)},{item(1)},..."
template <typename Item>
[[nodiscard]] std::string listOf(std::size_t size, Item item) {
    std::string list;
    for (std::size_t i = 0; i < size; ++i)
        (list += i == 0 ? "" : ",") += item(i);
    return list;
}

/// A document in JSON with some members more.
[[nodiscard]] std::string documentWith(std::string_view members) {
    return fmt::format(R"({{"openapi":"3.0.3","info":{{"title":"T","version":"1.0.0"}},{}}})", members);
}
[[nodiscard]] std::string schemaWith(std::string_view members) {
    return documentWith(fmt::format(R"("paths":{{}},"components":{{"schemas":{{"A":{{{}}}}}}})", members));
}

[[nodiscard]] std::string fractions(std::size_t size) {
    return schemaWith(fmt::format(R"("type":"number","enum":[{}])",
                                  listOf(size, [](std::size_t i) { return fmt::format("0.{:07}1", i); })));
}
[[nodiscard]] std::string otherFractions(std::size_t size) {
    return schemaWith(fmt::format(R"("type":"number","enum":[{}])",
                                  listOf(size, [](std::size_t i) { return fmt::format("0.{:07}2", i); })));
}

[[nodiscard]] std::string switchedOff(std::size_t size) {
    const std::string rules = listOf(size, [](std::size_t i) { return fmt::format(R"("rule-{}")", i); });
    const std::string paths = listOf(size, [](std::size_t i) {
        return fmt::format(R"("/p{0}":{{"get":{{"operationId":"o{0}","responses":{{}}}}}})", i);
    });
    return documentWith(fmt::format(R"("x-lint-disable":[{}],"paths":{{{}}})", rules, paths));
}

[[nodiscard]] std::string extensionsBackwards(std::size_t size) {
    return documentWith(fmt::format(R"("paths":{{}},{})", listOf(size, [&](std::size_t i) {
                                        return fmt::format(R"("x-{:07}":1)", size - i);
                                    })));
}

[[nodiscard]] std::string variablesBackwards(std::size_t size) {
    std::string url = "https://e.example/";
    for (std::size_t i = size; i > 0; --i)
        url += fmt::format("{{v{:07}}}", i);
    return documentWith(fmt::format(R"("paths":{{}},"servers":[{{"url":"{}"}}])", url));
}

[[nodiscard]] std::string schemesOfOneRequirement(std::size_t size) {
    const std::string names = listOf(size, [](std::size_t i) { return fmt::format(R"("s{:07}":[])", i); });
    return documentWith(fmt::format(R"("paths":{{}},"security":[{{{}}}])", names));
}

/// Objects that all refer to all, each in another order in the destination.
[[nodiscard]] std::string crossReferences(std::size_t size, std::size_t step) {
    std::size_t objects = 1;
    while (objects * objects < size)
        ++objects;
    const std::string schemas = listOf(objects, [&](std::size_t object) {
        return fmt::format(R"("S{}":{{"type":"object","properties":{{{}}}}})", object,
                           listOf(objects, [&](std::size_t i) {
                               return fmt::format(R"("p{}":{{"$ref":"#/components/schemas/S{}"}})", i,
                                                  (i + object * step) % objects);
                           }));
    });
    return documentWith(fmt::format(R"("paths":{{}},"components":{{"schemas":{{{}}}}})", schemas));
}
[[nodiscard]] std::string crossReferencesBefore(std::size_t size) {
    return crossReferences(size, 0);
}
[[nodiscard]] std::string crossReferencesAfter(std::size_t size) {
    return crossReferences(size, 1);
}

/// Keys of two words that the quick hash of keys takes for one: the second word undoes what the first did.
[[nodiscard]] std::string collidingKeys(std::size_t size) {
    constexpr std::uint64_t factor = 0x9e3779b97f4a7c15;
    constexpr std::uint64_t meeting = 0x3132333435363738;
    constexpr std::uint64_t inAnyByte = 0x8080808080808080;
    const auto isPlain = [](std::string_view text) {
        for (const char c : text)
            if (c <= ' ' || c > '~' || c == '"' || c == '\\')
                return false;
        return true;
    };
    std::string members;
    std::string first;
    std::string key(16, '-');
    for (std::uint64_t counter = 0, found = 0; found < size; ++counter) {
        for (std::size_t i = 0; i < sizeof counter; ++i)
            key[i] = static_cast<char>('0' + (counter >> i * 4) % 16); // "0" to "?"
        std::uint64_t word;
        std::memcpy(&word, key.data(), sizeof word);
        std::uint64_t hash = (key.size() * factor ^ word) * factor;
        hash ^= hash >> 32;
        hash ^= meeting;
        if ((hash & inAnyByte) != 0)
            continue;
        std::memcpy(key.data() + sizeof word, &hash, sizeof hash);
        if (!isPlain(key))
            continue;
        if (found++ == 0)
            first = key;
        if (jv::KeyPool::quickHash(key) != jv::KeyPool::quickHash(first))
            throw std::logic_error("These keys do not collide");
        members += fmt::format(R"(,"{}":1)", key);
    }
    return documentWith(R"("paths":{},"x-keys":{"a":1)" + members + "}");
}

[[nodiscard]] std::string tagDirectives(std::size_t size) {
    std::string text;
    for (std::size_t i = 0; i < size; ++i)
        text += fmt::format("%TAG !t{0}! tag:e.example,{0}:\n", i);
    return text + "---\nopenapi: 3.0.3\ninfo: {title: T, version: '1'}\npaths: {}\n";
}

[[nodiscard]] std::string longTagPrefix(std::size_t size) {
    std::string text = fmt::format("%TAG !t! tag:{}\n---\nopenapi: 3.0.3\ninfo: {{title: T, version: '1'}}\n"
                                   "paths: {{}}\nx-tagged:\n",
                                   std::string(size * 5, 'e'));
    for (std::size_t i = 0; i < size; ++i)
        text += "- !t!a b\n";
    return text;
}

[[nodiscard]] std::string nestedFlow(std::size_t size) {
    std::string text = "openapi: 3.0.3\ninfo: {title: T, version: '1'}\npaths: {}\nx-nested: ";
    for (std::size_t i = 0; i < size; ++i)
        text += "{aaaaaaaaaaaaaa: ";
    return text + std::string(size, '}') + "\n";
}

/// The first path is reported in a message.
[[nodiscard]] std::string oneLongName(std::size_t size) {
    const std::string paths = listOf(size, [&](std::size_t i) {
        return fmt::format(R"("/{}":{{"get":{{"operationId":"o{}","responses":{{}}}}}})",
                           i == 0 ? std::string(size * 30, 'X') : fmt::format("p{}", i), i);
    });
    return documentWith(fmt::format(R"("paths":{{{}}})", paths));
}

[[nodiscard]] std::string sharedBody(std::size_t size) {
    const std::string paths = listOf(size, [](std::size_t i) {
        return fmt::format(
            R"("/p{}":{{"put":{{"requestBody":{{"$ref":"#/components/requestBodies/B"}},"responses":{{}}}}}})",
            i);
    });
    const std::string contents = listOf(size, [](std::size_t i) {
        return fmt::format(R"("application/json{}":{{"schema":{{"type":"string"}}}})", i);
    });
    return documentWith(fmt::format(
        R"("paths":{{{}}},"components":{{"requestBodies":{{"B":{{"content":{{{}}}}}}}}})", paths, contents));
}

/// Operations whose answers would all be called alike, all of one group.
[[nodiscard]] std::string namelessAnswers(std::size_t size) {
    const std::string paths = listOf(size, [](std::size_t i) {
        return fmt::format(
            R"("/p{}":{{"get":{{"tags":["t"],"responses":{{"200":{{"description":"","content":{{)"
            R"("application/json":{{"schema":{{"type":"object"}}}}}}}}}}}}}})",
            i);
    });
    return documentWith(fmt::format(R"("tags":[{{"name":"t"}}],"paths":{{{}}})", paths));
}

/// Schemas each of which says something of the one before.
[[nodiscard]] std::string chainOf(std::size_t size, std::string_view first, std::string_view next) {
    const std::string schemas = listOf(size, [&](std::size_t i) {
        return fmt::format(
            R"("s{}":{})", i,
            i == 0 ? std::string(first)
                   : fmt::format(fmt::runtime(next), fmt::format("#/components/schemas/s{}", i - 1)));
    });
    return documentWith(fmt::format(
        R"("paths":{{"/":{{"get":{{"responses":{{"200":{{"description":"","content":{{"application/json":{{)"
        R"("schema":{{"$ref":"#/components/schemas/s{}"}}}}}}}}}}}}}}}},"components":{{"schemas":{{{}}}}})",
        size - 1, schemas));
}
[[nodiscard]] std::string joinedSchemas(std::size_t size) {
    return chainOf(size, R"({"type":"object"})", R"({{"allOf":[{{"$ref":"{}"}}]}})");
}
[[nodiscard]] std::string listsOfLists(std::size_t size) {
    return chainOf(size, R"({"type":"string"})", R"({{"type":"array","items":{{"$ref":"{}"}}}})");
}
[[nodiscard]] std::string heldRecords(std::size_t size) {
    return chainOf(size, R"({"type":"object"})",
                   R"({{"type":"object","properties":{{"a":{{"$ref":"{0}"}},"b":{{"$ref":"{0}"}}}}}})");
}

} // namespace

const std::vector<GrowingDocument>& growingDocuments() {
    static const std::vector<GrowingDocument> documents = {
        {"fractions in an enumeration", "lint", "json", fractions, nullptr, 12'000, 100'000, nullptr},
        {"fractions in an enumeration", "diff", "json", fractions, otherFractions, 12'000, 100'000, nullptr},
        {"rules switched off above operations", "lint", "json", switchedOff, nullptr, 1'500, 40'000, nullptr},
        {"extensions out of order", "lint", "json", extensionsBackwards, nullptr, 12'000, 250'000, nullptr},
        {"server variables out of order", "lint", "json", variablesBackwards, nullptr, 10'000, 400'000,
         nullptr},
        {"schemes of one requirement", "lint", "json", schemesOfOneRequirement, nullptr, 12'000, 250'000,
         nullptr},
        {"components that all refer to all", "diff", "json", crossReferencesBefore, crossReferencesAfter,
         1'800, 28'900, nullptr},
        {"keys that collide", "format", "json", collidingKeys, nullptr, 3'000, 100'000, nullptr},
        {"%TAG directives", "lint", "yaml", tagDirectives, nullptr, 10'000, 200'000,
         "YAML has more than 100 %TAG directives"},
        {"values tagged by a long prefix", "lint", "yaml", longTagPrefix, nullptr, 5'000, 200'000,
         "YAML has a %TAG directive with more than 1000 bytes"},
        {"nested mappings in YAML", "format", "yaml", nestedFlow, nullptr, 4'000, 9'000,
         "YAML output is too large for its content: values are nested too deeply"},
        {"operations that share a large body", "lint", "json", sharedBody, nullptr, 1'000, 6'000,
         "More than 500000 findings in one document"},
        {"a long name beside many", "lint", "json", oneLongName, nullptr, 500, 10'000, nullptr},
        {"answers without a name", "generate server spring", "json", namelessAnswers, nullptr, 200, 10'000,
         nullptr},
        {"schemas joined one after another", "generate server spring", "json", joinedSchemas, nullptr, 500,
         8'000, nullptr},
        {"lists of lists", "generate server spring", "json", listsOfLists, nullptr, 4'000, 100'000, nullptr},
        {"records within records", "generate server spring", "json", heldRecords, nullptr, 200, 10'000,
         nullptr},
    };
    return documents;
}

} // namespace specloom::test_support
