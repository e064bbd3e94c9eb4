#include "cli/libraries.h"

#include "cli/license_text.h"

namespace specloom::cli {
namespace {

struct Row {
    std::string_view name;
    std::string_view url;
    std::string_view description;
    std::string_view licenseFile;
};

constexpr Row rows[] = {
    {"ada", "https://github.com/ada-url/ada",
     "A fast URL parser and builder. Spec Loom uses it many places, most notably for validating URLs.",
     "ada.txt"},
    {"argparse", "https://github.com/p-ranav/argparse", "command line argument parser.", "argparse.txt"},
    {"base64", "https://github.com/ReneNyffenegger/cpp-base64", "C++ base64 encoder and decoder.",
     "base64.txt"},
    {"{fmt}", "https://github.com/fmtlib/fmt", "C++ formatting library.", "fmt.txt"},
    {"GoogleTest", "https://github.com/google/googletest",
     "C++ testing and mocking library. Uses for all core modules.", "googletest.txt"},
    {"HunSpell", "https://github.com/hunspell/hunspell", "C++ spell checking library", "hunspell.txt"},
    {"LibBF", "https://bellard.org/libbf/",
     "C library for arbitrary precision arithmetic. I rewrote most of it in modern C++.", "libbf.txt"},
    {"MD4C", "https://github.com/mity/md4c", "C library for parsing and building Markdown documents.",
     "md4c.txt"},
    {"opentelemetry", "https://github.com/open-telemetry/opentelemetry-cpp", "The OpenTelemetry C++ Client.",
     "opentelemetry.txt"},
    {"semver", "https://github.com/Neargye/semver",
     "C++ library for parsing and building semantic version strings.", "semver.txt"},
    {"TinyXML2", "https://github.com/leethomason/tinyxml2",
     "Small XML parser and emitter. Spec Loom uses it for emitting HTML documents.", "tinyxml2.txt"},
    {"uri-template", "https://github.com/TinkoffCreditSystems/uri-template",
     "C++ library for parsing URI templates.", "uri-template.txt"},
    {"utfcpp", "https://github.com/nemtrif/utfcpp", "Fast C++ library for iterating over UTF strings.",
     "utfcpp.txt"},
    {"yajl", "https://github.com/lloyd/yajl",
     "JSON parser and emitter. I rewrote the library in C++ and adapted it to use our custom JSON model.",
     "yajl.txt"},
    {"libyaml", "https://github.com/yaml/libyaml", "A C library for parsing and emitting YAML.",
     "libyaml.txt"},
};

} // namespace

std::vector<std::string_view> libraryNames() {
    std::vector<std::string_view> names;
    for (const Row& row : rows)
        names.push_back(row.name);
    return names;
}

const std::vector<LibraryInfo>& libraries() {
    static const std::vector<LibraryInfo> table = [] {
        std::vector<LibraryInfo> result;
        for (const Row& row : rows)
            result.push_back(
                {row.name, row.url, row.description, std::string("\n").append(licenseText(row.licenseFile))});
        return result;
    }();
    return table;
}

} // namespace specloom::cli
