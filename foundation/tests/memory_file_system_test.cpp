#include "foundation/input.h"
#include "foundation/memory_file_system.h"

#include <cstdlib>    // mkdtemp
#include <filesystem> // std::filesystem
#include <functional> // std::function
#include <istream>    // std::getline
#include <string>     // std::string
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Pair;

/// What comes of all operations on each of these paths below `folder`, which exists: content or error texts.
std::vector<std::string> outcomes(FileSystem& files, const std::string& folder) {
    std::vector<std::string> result;
    const auto note = [&](const std::string& what, const std::function<std::string()>& call) {
        try {
            result.push_back(what + ": " + call());
        } catch (const fs::filesystem_error& error) {
            result.push_back(what + " (file system): " + error.what());
        } catch (const std::runtime_error& error) {
            result.push_back(what + ": " + error.what());
        }
    };
    for (const std::string name :
         {"a/b/file", "file", "file/", "file/below", "file/below/deeper", "a/./b/again", "a//b/twice",
          "a/b/../up", "a/b", "a/b/", "a/b/.", "none/file", "", ".", "./here", "a/b/../../none"}) {
        const std::string path = folder + "/" + name;
        if (name != "none/file")
            note("create " + name, [&] { return files.createDirectories(path), ""; });
        note("write " + name, [&] { return files.writeFile(path, "in " + name), ""; });
        note("exists " + name, [&] { return files.exists(path) ? "yes" : "no"; });
        note("read " + name, [&] { return files.readFile(path); });
        note("open " + name, [&]() -> std::string {
            const auto input = files.open(path);
            std::string line;
            return input != nullptr && std::getline(input->stream(), line)
                       ? line + " of " + std::to_string(input->size())
                       : "nothing";
        });
    }
    return result;
}

TEST(MemoryFileSystem, doesAndSaysWhatTheDiskDoes) {
    std::string folder = (fs::temp_directory_path() / "specloom-XXXXXX").string();
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    LocalFileSystem disk;
    const std::vector<std::string> expected = outcomes(disk, folder);
    fs::remove_all(folder);

    MemoryFileSystem memory;
    memory.createDirectories(folder + "/");
    EXPECT_EQ(outcomes(memory, folder), expected);
    EXPECT_THAT(
        memory.files(),
        ElementsAre(Pair(folder + "/a/b/again", "in a/./b/again"), Pair(folder + "/a/b/file", "in a/b/file"),
                    Pair(folder + "/a/b/twice", "in a//b/twice"), Pair(folder + "/a/up", "in a/b/../up"),
                    Pair(folder + "/file", "in file"), Pair(folder + "/here", "in ./here"),
                    Pair(folder + "/none", "in a/b/../../none")));
}

TEST(MemoryFileSystem, takesPathsByTheirText) {
    MemoryFileSystem files{{"b/./c", "1"}, {"none/../a", "2"}, {"../a", "3"}, {"/../a", "4"}, {"a", "5"}};
    EXPECT_THAT(files.files(),
                ElementsAre(Pair("../a", "3"), Pair("/a", "4"), Pair("a", "5"), Pair("b/c", "1")));
    EXPECT_FALSE(files.exists(""));
    EXPECT_EQ(files.readFile("x/../b//c"), "1");
}

} // namespace
} // namespace specloom
