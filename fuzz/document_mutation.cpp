#include "fuzz/document_mutation.h"

#include "test_support/corpora.h"

#include <array>      // std::array
#include <filesystem> // std::filesystem

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
    switch (choices.below(5)) {
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
    default:
        if (container.isObject() && container.size() > 1) {
            const std::string other(container.members()[choices.below(container.size())].key);
            if (other != key)
                jv::JVDocument::assign(*jv::JVDocument::clone(*container.get(other)), child);
        }
    }
}

} // namespace specloom::fuzz
