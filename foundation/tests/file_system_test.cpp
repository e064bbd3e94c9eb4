#include "foundation/file_system.h"
#include "foundation/input_file.h"

#include <csignal>    // std::signal
#include <cstdlib>    // mkdtemp
#include <filesystem> // std::filesystem
#include <fstream>    // std::ofstream
#include <stdexcept>  // std::runtime_error
#include <string>     // std::string

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h> // getrlimit, setrlimit
#include <unistd.h>       // close, geteuid, pipe, write

namespace fs = std::filesystem;

namespace specloom {
namespace {

class LocalFileSystemTest : public testing::Test {
  protected:
    LocalFileSystemTest() {
        std::string pattern = (fs::temp_directory_path() / "specloom-XXXXXX").string();
        folder = mkdtemp(pattern.data());
    }
    ~LocalFileSystemTest() override { fs::remove_all(folder); }

    std::string at(const std::string& name) const { return (folder / name).string(); }

    /// The text of the std::runtime_error that `call` throws.
    template <typename Call>
    static std::string textOf(Call call) {
        try {
            call();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "nothing thrown";
    }

    fs::path folder;
    LocalFileSystem files;
};

TEST_F(LocalFileSystemTest, writesAndReadsBytes) {
    // Longer than any buffer on the way, with every byte value.
    std::string content;
    for (int i = 0; i < 300'000; ++i)
        content += static_cast<char>(i);
    const std::string path = at("gr\xc3\xb6\xc3\x9f"
                                "e \xf0\x9f\x98\x80");
    files.writeFile(path, content);
    EXPECT_EQ(files.readFile(path), content);
    files.writeFile(path, "short");
    EXPECT_EQ(files.readFile(path), "short");
    files.writeFile(path, "");
    EXPECT_EQ(files.readFile(path), "");
}

TEST_F(LocalFileSystemTest, exists) {
    EXPECT_TRUE(files.exists(folder.string()));
    EXPECT_FALSE(files.exists(at("none")));
    EXPECT_FALSE(files.exists(at("none/below")));
    fs::create_symlink("loop", at("loop"));
    EXPECT_THROW(static_cast<void>(files.exists(at("loop"))), fs::filesystem_error);
}

TEST_F(LocalFileSystemTest, createDirectoriesLeavesTheLastComponentAlone) {
    files.createDirectories(at("a/b/c.txt"));
    EXPECT_TRUE(fs::is_directory(at("a/b")));
    EXPECT_FALSE(fs::exists(at("a/b/c.txt")));
    files.createDirectories(at("a/b/c.txt"));
    files.createDirectories("just_a_name");
    EXPECT_FALSE(fs::exists("just_a_name"));

    files.writeFile(at("file"), "");
    EXPECT_THAT(
        textOf([&] { files.createDirectories(at("file/below/c.txt")); }),
        testing::AllOf(testing::HasSubstr("create_directories"), testing::HasSubstr(at("file/below"))));
}

TEST_F(LocalFileSystemTest, whatCannotBeReadIsTold) {
    EXPECT_EQ(textOf([&] { static_cast<void>(files.readFile(at("x"))); }), "File does not exist: " + at("x"));
    EXPECT_EQ(textOf([&] { static_cast<void>(files.readFile(folder.string())); }),
              "filesystem error: file_size: Is a directory [" + folder.string() + "]");
    fs::create_symlink("loop", at("loop"));
    EXPECT_THAT(textOf([&] { static_cast<void>(files.readFile(at("loop"))); }),
                testing::StartsWith("filesystem error: status: "));
    // Opens, and then fails to give its first byte.
    EXPECT_EQ(textOf([&] { static_cast<void>(files.readFile("/proc/self/mem")); }),
              "Failed to read file: /proc/self/mem");
}

TEST_F(LocalFileSystemTest, aFileWithoutPermissionIsTold) {
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser may read everything";
    files.writeFile(at("secret"), "a");
    fs::permissions(at("secret"), fs::perms::none);
    EXPECT_EQ(textOf([&] { static_cast<void>(files.readFile(at("secret"))); }),
              "Failed to open file for reading: " + at("secret"));
}

TEST_F(LocalFileSystemTest, readsWhatHasNoSize) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(write(ends[1], "piped", 5), 5);
    close(ends[1]);
    EXPECT_EQ(files.readFile("/dev/fd/" + std::to_string(ends[0])), "piped");
    close(ends[0]);
    EXPECT_NE(files.readFile("/proc/self/status"), ""); // a regular file that claims to be empty
}

TEST_F(LocalFileSystemTest, whatNeverEndsIsRefused) {
    EXPECT_EQ(textOf([&] { static_cast<void>(files.readFile("/dev/zero")); }),
              "Neither a file nor a pipe: /dev/zero");
    files.writeFile(at("file"), "12345");
    EXPECT_EQ(textOf([&] { const InputFile input(at("file"), 4); }), "Longer than 4 bytes: " + at("file"));
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(write(ends[1], "12345", 5), 5);
    close(ends[1]);
    const std::string path = "/dev/fd/" + std::to_string(ends[0]);
    InputFile input(path, 4);
    EXPECT_EQ(input.stream().get(), std::char_traits<char>::eof());
    EXPECT_TRUE(input.stream().bad());
    EXPECT_EQ(textOf([&] { input.requireBounds(); }), "Longer than 4 bytes: " + path);
    close(ends[0]);
}

TEST_F(LocalFileSystemTest, whatCannotBeWrittenIsTold) {
    EXPECT_EQ(textOf([&] { files.writeFile(folder.string(), "a"); }),
              "Failed to open file for writing: " + folder.string());
    EXPECT_EQ(textOf([&] { files.writeFile(at("none/below"), "a"); }),
              "Failed to open file for writing: " + at("none/below"));
}

TEST_F(LocalFileSystemTest, aFileThatDoesNotFitIsLeftAsItWas) {
    struct rlimit former {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &former), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    files.writeFile(at("old"), "old");
    const rlimit low{.rlim_cur = 1000, .rlim_max = former.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &low), 0);
    for (const char* name : {"new", "old"})
        EXPECT_EQ(textOf([&] { files.writeFile(at(name), std::string(2000, 'a')); }),
                  "Failed to write file: " + at(name));
    setrlimit(RLIMIT_FSIZE, &former);
    static_cast<void>(std::signal(SIGXFSZ, handler));
    EXPECT_EQ(files.readFile(at("new")), "");
    EXPECT_EQ(files.readFile(at("old")), "old");
}

TEST_F(LocalFileSystemTest, aFullDiskIsTold) {
    fs::create_symlink("/dev/full", at("full"));
    // Once within the stream's buffer, once beyond it.
    EXPECT_EQ(textOf([&] { files.writeFile(at("full"), "a"); }), "Failed to write file: " + at("full"));
    EXPECT_EQ(textOf([&] { files.writeFile(at("full"), std::string(1 << 20, 'a')); }),
              "Failed to write file: " + at("full"));
}

} // namespace
} // namespace specloom
