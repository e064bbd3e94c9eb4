#include "code_morph/generated_path.h"
#include "code_morph/project.h"
#include "foundation/file_system.h"
#include "test_support/failure.h"
#include "test_support/temporary_folder.h"

#include <array>       // std::array
#include <filesystem>  // std::filesystem
#include <memory>      // std::unique_ptr, std::make_unique
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::code_morph::base {
namespace {

using namespace std::string_literals;
using test_support::TemporaryFolder;
using testing::HasSubstr;

/// The text of the std::runtime_error that `call` throws; a word of its own for none, since each text holds
/// "".
template <typename Call>
std::string textOf(Call call) {
    const std::string failure = test_support::failureOf<std::runtime_error>(call);
    return failure.empty() ? "nothing thrown" : failure;
}

std::string readBack(const std::string& path) {
    return LocalFileSystem().readFile(path);
}

class ProjectTest : public testing::Test {
  protected:
    std::string creating(std::string_view path) {
        return textOf([&] { project.createSourceFile(path); });
    }
    std::string creatingBelow(std::string_view path) {
        return textOf([&] { project.createSourceFileBelow(path); });
    }

    const TemporaryFolder folder;
    LocalFileSystem files;
    Project project{files};
};

TEST_F(ProjectTest, filesStandUnderTheirFullPath) {
    EXPECT_EQ(project.createSourceFile("x.txt").path(), "x.txt");
    project.setRootPath("out");
    EXPECT_EQ(project.createSourceFile("a/../b").path(), "out/a/../b");
    EXPECT_EQ(project.createSourceFile("a/b").path(), "out/a/b");
    EXPECT_EQ(project.createSourceFile("a//b").path(), "out/a//b");
    EXPECT_EQ(project.createSourceFile("/abs/x").path(), "/abs/x");
    EXPECT_EQ(project.createSourceFile("/abs/x2").parent(), &project);
    EXPECT_EQ(creating("a/b"), "Source file already exists: out/a/b");
    EXPECT_EQ(creating("/abs/x"), "Source file already exists: /abs/x");
}

TEST_F(ProjectTest, aFileIsNoFolder) {
    project.setRootPath("out");
    for (const char* path : {"a", "b/c/d", "b/c-d"}) // "-" sorts before "/"
        project.createSourceFile(path);
    EXPECT_EQ(creating("a/x/y"), "Source file stands where a folder is needed: out/a");
    EXPECT_EQ(creating("b/c"), "Source file stands where a folder is needed: out/b/c");
    EXPECT_EQ(creating("ab/x"), "nothing thrown");
    EXPECT_EQ(creating("a/x"),
              "Source file stands where a folder is needed: out/a"); // no folder of what was refused
    EXPECT_EQ(project.files().size(), 4U);
}

TEST_F(ProjectTest, namesOfDocumentsLeadNowhereElse) {
    const std::string name(255, 'n');
    std::string longest = "f";
    while (longest.size() < 4094)
        longest += "/f";
    const std::string tooLong = longest + "ff";
    project.setRootPath("");
    // Path, what no file can have, what a file below a folder cannot have.
    const std::string possible = "nothing thrown";
    const std::vector<std::array<std::string, 3>> cases = {
        {"src/...ts", possible, possible},
        {name, possible, possible},
        {longest, possible, possible},
        {"b/" + name + "n/x", "a name in it is longer than 255 bytes",
         "a name in it is longer than 255 bytes"},
        {tooLong, "it is longer than 4095 bytes", "it is longer than 4095 bytes"},
        {"c\0d"s, "it has a NUL in it", "it has a NUL in it"},
        {"d/", "it does not end in a name", "a name in it is empty"},
        {"", "it does not end in a name", "a name in it is empty"},
        {"/etc/x", possible, "it begins at the root"},
        {"e//f", possible, "a name in it is empty"},
        {"../x", possible, "a name in it is only dots"},
        {"g/../../x", possible, "a name in it is only dots"},
        {"g/.../x", possible, "a name in it is only dots"},
        {"g/./x", possible, "a name in it is only dots"},
        {"..", possible, "a name in it is only dots"},
    };
    for (const auto& [path, anywhere, below] : cases) {
        Project other(files);
        EXPECT_THAT(textOf([&, path = path] { other.createSourceFile(path); }), HasSubstr(anywhere)) << path;
        Project another(files);
        EXPECT_THAT(textOf([&, path = path] { another.createSourceFileBelow(path); }), HasSubstr(below))
            << path;
        EXPECT_EQ(another.files().size(), below == possible ? 1U : 0U) << path;
    }
    EXPECT_EQ(creatingBelow("a\n/../x"), "No file can be generated at a\\n/../x: a name in it is only dots");
    project.setRootPath(longest);
    EXPECT_THAT(creatingBelow("x"), HasSubstr("it is longer than 4095 bytes"));
}

/// A file whose text cannot be made.
class FailingFile final : public SourceFile {
  public:
    using SourceFile::SourceFile;
    void write(std::string& /*out*/) const override { throw std::runtime_error("cannot be rendered"); }
};

class ProjectThatFails final : public Project {
  public:
    using Project::namedFile;
    using Project::Project;
    std::unique_ptr<SourceFile> makeSourceFile(const std::string& fullPath) override {
        return fullPath.ends_with("failing") ? std::make_unique<FailingFile>(*this, fullPath)
                                             : Project::makeSourceFile(fullPath);
    }
};

TEST_F(ProjectTest, nothingIsWrittenWhenAFileCannotBeRendered) {
    ProjectThatFails failing(files);
    failing.setRootPath(folder.path().string());
    failing.createSourceFile("a").setText("1");
    failing.createSourceFile("failing");
    EXPECT_EQ(textOf([&] { failing.saveAll(); }), "cannot be rendered");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(ProjectTest, aNamedFileIsLookedUpByItsBareName) {
    ProjectThatFails named(files);
    SourceFile& file = named.namedFile("package.json");
    EXPECT_EQ(&named.namedFile("package.json"), &file);
    named.setRootPath("out");
    EXPECT_EQ(&named.namedFile("package.json"), &file); // still under its bare name
    named.namedFile("tsconfig.json");
    EXPECT_EQ(textOf([&] { named.namedFile("tsconfig.json"); }),
              "Source file already exists: out/tsconfig.json");
}

TEST_F(ProjectTest, savesToTheDisk) {
    Project empty(files);
    empty.setRootPath(folder.at("none"));
    empty.saveAll();
    EXPECT_FALSE(std::filesystem::exists(folder.at("none")));

    folder.write("old.txt", "a text that was longer");
    const std::string bytes = "a\r\n\0\xff\xe2\x80\xa8"s;
    Project full(files);
    full.setRootPath(folder.path().string());
    full.createSourceFile("old.txt").setText(bytes);
    full.createSourceFile("new/below/empty.txt");
    full.saveAll();
    EXPECT_EQ(readBack(folder.at("old.txt")), bytes);
    EXPECT_EQ(readBack(folder.at("new/below/empty.txt")), "");
}

} // namespace
} // namespace specloom::code_morph::base
