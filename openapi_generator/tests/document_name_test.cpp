#include "openapi_generator/document_name.h"
#include "openapi_generator/notes.h"
#include "test_support/temporary_folder.h"

#include <memory>    // std::make_unique
#include <sstream>   // std::ostringstream
#include <stdexcept> // std::runtime_error
#include <string>    // std::string

#include <gtest/gtest.h>

namespace specloom::openapi_generator {
namespace {

class RefusingPlugin final : public Plugin {
  public:
    using Plugin::Plugin;
    void configureParts() override {
        const openapi::Tag& tag = *document()->tags().front();
        createNamed(host(), nameOf(tag), [&] {
            code_morph::base::requirePathBelow("src/" + moduleNameOf(host(), tag) + "/" +
                                               std::string(tag.name()));
        });
    }
};

std::string failureWithTag(const std::string& tag) {
    const test_support::TemporaryFolder folder;
    PluginRunner runner;
    const std::string path = folder.write("api.json", R"({"openapi": "3.1.0", "tags": [{"name": ")" + tag +
                                                          R"("}], "paths": {}, "info": {"title": "",
                                                          "version": "1"}})");
    runner.setInputPath(path);
    runner.addPlugin(std::make_unique<RefusingPlugin>(runner));
    try {
        runner.run();
    } catch (const std::runtime_error& error) {
        std::string text = error.what();
        const std::size_t at = text.find(path);
        return at == std::string::npos ? text : text.replace(at, path.size(), "API");
    }
    return "";
}

TEST(DocumentName, refusesWithNamePlaceAndReason) {
    EXPECT_EQ(failureWithTag("a/b"), "");
    EXPECT_EQ(failureWithTag("../x"), "Tag '../x' at /tags/0/name in API: No file can be generated at "
                                      "src/x/../x: a name in it is only dots");
    EXPECT_EQ(failureWithTag("\\n"), "Tag '\\n' at /tags/0/name in API: in snake case it is empty, and no "
                                     "module can have such a name");
}

TEST(Notes, countOperationsWithoutTag) {
    std::ostringstream out;
    for (const std::size_t count : {0U, 1U, 2U})
        noteOperationsWithoutTag(count, "route", out);
    EXPECT_EQ(out.str(), "specloom: note: 1 operation has no declared tag and so no route\n"
                         "specloom: note: 2 operations have no declared tag and so no route\n");
}

} // namespace
} // namespace specloom::openapi_generator
