// The tree of real documents in which a few places were changed. Byte by byte, the input says which document,
// and then which change at which place: members removed, kinds swapped, values copied elsewhere, references
// redirected.

#include "fuzz/check.h"
#include "fuzz/tree_check.h"
#include "test_support/corpora.h"

#include <array> // std::array
#include <filesystem>
#include <string> // std::string
#include <vector> // std::vector

namespace {

namespace fs = std::filesystem;
namespace fuzz = specloom::fuzz;
namespace jv = specloom::jv;

constexpr std::size_t largestDocument = 100'000; // bytes; larger ones would only slow the search down

/// Our own small documents, and those of the corpora where there are any.
[[nodiscard]] std::vector<std::string> loadDocuments() {
    std::vector<fs::path> paths = specloom::test_support::filesBelow(SEEDS, ".json");
    if (const fs::path corpora = specloom::test_support::corporaFolder(); !corpora.empty()) {
        for (const char* folder : {"openapi", "pairs"}) {
            for (const fs::path& path : specloom::test_support::filesBelow(corpora / folder, ".json"))
                paths.push_back(path);
        }
    }
    std::vector<std::string> texts;
    for (const fs::path& path : paths) {
        if (fs::file_size(path) <= largestDocument)
            texts.push_back(specloom::test_support::fileBytes(path));
    }
    return texts;
}

/// The input as a source of choices; zeros behind its end.
class Choices {
  public:
    explicit Choices(std::string_view input) : rest_(input) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    /// A number below `limit`, which is above 0.
    [[nodiscard]] std::size_t below(std::size_t limit) {
        std::size_t value = 0;
        for (std::size_t reach = 1; reach < limit && !rest_.empty(); reach *= 256) {
            value = value * 256 + static_cast<unsigned char>(rest_.front());
            rest_.remove_prefix(1);
        }
        return value % limit;
    }

  private:
    std::string_view rest_;
};

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

/// Changes one place of `document`.
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<std::string> documents = loadDocuments();
    fuzz::require(!documents.empty(), "there are documents to change");
    Choices choices(fuzz::textOf(data, size));
    const std::string& text = documents[choices.below(documents.size())];
    auto document = fuzz::readIfGood(text, jv::DocumentFormat::Json);
    for (int changes = 0; changes < 8 && !choices.atEnd(); ++changes)
        mutate(*document, choices);
    document->reindex();
    fuzz::checkTree(std::move(document));
    return 0;
}
