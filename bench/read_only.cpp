#include "jv/json_reader.h"
#include "jv/yaml_reader.h"
#include "test_support/corpora.h"
#include "test_support/read_tree.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view

/// read_only text|json|yaml FILE: reads the file into memory and, unless told "text", into values too.
/// read_only tree FILE: reads the file as the program does, into values and a tree.
int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    const std::string_view mode = argv[1];
    if (mode == "tree")
        return specloom::test_support::readTree(argv[2]).result == nullptr ? 1 : 0;
    const std::string text = specloom::test_support::fileBytes(argv[2]);
    std::unique_ptr<specloom::jv::JVDocument> document;
    if (mode == "json")
        document = specloom::jv::parseJSON(text);
    else if (mode == "yaml")
        document = specloom::jv::parseYAML(text);
    return 0;
}
