#include "test_support/corpora.h"

#include "test_support/sanitizers.h"

#include <algorithm> // std::sort
#include <cstdlib>   // std::getenv
#include <fstream>   // std::ifstream
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

namespace specloom::test_support {

namespace fs = std::filesystem;

fs::path corporaFolder() {
    const char* named = std::getenv("SPECLOOM_CORPORA");
    const fs::path folder = named != nullptr
                                ? fs::path(named)
                                : fs::path(SPECLOOM_SOURCE_DIR).parent_path() / "shared" / "corpora";
    return fs::is_directory(folder) ? folder : fs::path();
}

bool corporaRequired() {
    return std::getenv("SPECLOOM_REQUIRE_CORPORA") != nullptr;
}

std::vector<fs::path> filesBelow(const fs::path& folder, std::string_view suffix) {
    std::vector<fs::path> found;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().filename().string().ends_with(suffix))
            found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}

std::vector<fs::path> corpusDocuments() {
    std::vector<fs::path> documents;
    if (const fs::path corpora = corporaFolder(); !corpora.empty())
        for (const char* folder : {"openapi", "pairs"})
            for (fs::path& path : filesBelow(corpora / folder, ""))
                if (path.extension() == ".json" || path.extension() == ".yaml")
                    documents.push_back(std::move(path));
    return documents;
}

std::vector<fs::path> affordableCorpusDocuments() {
    std::vector<fs::path> documents = corpusDocuments();
    if (hasAddressSanitizer)
        std::erase_if(documents, [](const fs::path& path) { return fs::file_size(path) > 1'000'000; });
    return documents;
}

std::string fileBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::string bytes(file ? fs::file_size(path) : 0, '\0');
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        throw std::runtime_error("Cannot read " + path.string());
    return bytes;
}

} // namespace specloom::test_support
