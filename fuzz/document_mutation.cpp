#include "fuzz/document_mutation.h"

#include "test_support/corpora.h"

#include <array>      // std::array
#include <filesystem> // std::filesystem
#include <utility>    // std::move

namespace specloom::fuzz {
namespace {

namespace fs = std::filesystem;

[[nodiscard]] std::vector<std::string> loadDocuments(std::size_t largest) {
    std::vector<fs::path> paths = test_support::filesBelow(SEEDS, ".json");
    if (const fs::path corpora = test_support::corporaFolder(); !corpora.empty()) {
        for (const char* folder : {"openapi", "pairs"}) {
            for (const fs::path& path : test_support::filesBelow(corpora / folder, ".json"))
                paths.push_back(path);
        }
    }
    std::vector<std::string> texts;
    for (const fs::path& path : paths) {
        if (fs::file_size(path) <= largest)
            texts.push_back(test_support::fileBytes(path));
    }
    return texts;
}

/// All containers of a document that are not empty.
[[nodiscard]] std::vector<jv::JV*> containersOf(jv::JV* root) {
    std::vector<jv::JV*> containers;
    std::vector<jv::JV*> open{root};
    while (!open.empty()) {
        jv::JV* value = open.back();
        open.pop_back();
        if (value->size() == 0)
            continue;
        containers.push_back(value);
        if (value->isArray()) {
            for (jv::JV* element : value->elements())
                open.push_back(element);
        } else {
            for (const jv::Member member : value->members())
                open.push_back(value->get(member.key));
        }
    }
    return containers;
}

void swapKind(jv::JV& value, std::size_t kind) {
    switch (kind) {
    case 0:
        return value.setNull();
    case 1:
        return value.setBoolean(!value.isBoolean() || !value.boolean());
    case 2:
        return value.setInteger(-1);
    case 3:
        return value.setString("text");
    case 4:
        return value.makeArray();
    default:
        return value.makeObject();
    }
}

constexpr std::array<const char*, 8> references{"#/components/schemas/A",
                                                "#/components/schemas/",
                                                "#/components/parameters/P",
                                                "#/components/pathItems/I",
                                                "#/components/responses/R",
                                                "#/components/headers/H",
                                                "#",
                                                "other.json#/A"};

/// Names that mean something somewhere, or that are not easy to write.
constexpr std::array<std::string_view, 16> names{"/{a}//{A}/{a}",
                                                 "//a/",
                                                 "x-lint-disable",
                                                 "x-audience",
                                                 "$ref",
                                                 "default",
                                                 "2XX",
                                                 "404",
                                                 "example",
                                                 "discriminator",
                                                 "application/json; charset=UTF-8",
                                                 "~1",
                                                 "",
                                                 "\u00e9\u202e",
                                                 "a\nb",
                                                 "#"};

/// Texts that are wrong in most places, or right in few.
constexpr std::array<std::string_view, 16> texts{"",
                                                 "TODO",
                                                 "[a](javascript:b) <script>c</script> `d` **e",
                                                 "::error::\x1b[31m # SKIP |a|<&\"'",
                                                 "line\nline\r\n\tline",
                                                 "\u00e9\u2028\u202e\U0001F600",
                                                 "https://{a}.example.com:{b/%zz?c#d",
                                                 "HTTP://EXAMPLE.COM/",
                                                 "(?<a>[b-c]{2,}|\\p{L}*)+$",
                                                 "2021-02-29T24:60:60Z",
                                                 "1e400",
                                                 "{$request.body#/a~2}",
                                                 "https://json-schema.org/draft/2020-12/schema",
                                                 "3.0.9",
                                                 "3.1.9",
                                                 "text/*"};

/// The member gets another name, and the place of the last one.
void rename(jv::JV& object, const std::string& key, std::string_view name) {
    if (key == name)
        return;
    auto copy = jv::JVDocument::clone(*object.get(key));
    object.remove(key);
    object.remove(name);
    object.set(name, std::move(copy));
}

} // namespace

const std::vector<std::string>& documentTexts(std::size_t largest) {
    static const std::vector<std::string> texts = loadDocuments(largest);
    return texts;
}

void mutate(jv::JVDocument& document, Choices& choices) {
    const std::vector<jv::JV*> containers = containersOf(document.root());
    if (containers.empty())
        return;
    jv::JV& container = *containers[choices.below(containers.size())];
    const std::size_t index = choices.below(container.size());
    const std::string key = container.isObject() ? std::string(container.members()[index].key) : "";
    jv::JV& child = container.isObject() ? *container.get(key) : *container.elements()[index];
    switch (choices.below(7)) {
    case 0:
        if (container.isObject())
            container.remove(key);
        else
            container.clear();
        return;
    case 1:
        return swapKind(child, choices.below(6));
    case 2: // any text of the document may be a good one here
        return jv::JVDocument::assign(*jv::JVDocument::clone(*containers[choices.below(containers.size())]),
                                      child);
    case 3: {
        child.makeObject();
        child.clear();
        child.setString("$ref", references[choices.below(references.size())]);
        return;
    }
    case 4:
        return child.setString(texts[choices.below(texts.size())]);
    case 5:
        if (container.isObject())
            rename(container, key, names[choices.below(names.size())]);
        return;
    default:
        if (container.isObject() && container.size() > 1) {
            const std::string other(container.members()[choices.below(container.size())].key);
            if (other != key)
                jv::JVDocument::assign(*jv::JVDocument::clone(*container.get(other)), child);
        }
    }
}

} // namespace specloom::fuzz
