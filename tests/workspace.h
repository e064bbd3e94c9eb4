#pragma once

#include <cstddef>    // std::size_t
#include <filesystem> // std::filesystem::path
#include <string>     // std::string
#include <vector>     // std::vector

namespace specloom::tests {

/// How a run of the program ended.
struct Outcome {
    int status = 0; // as a shell sees it: 0 to 255, and 128 plus the signal's number when a signal ended it
    std::string out;
    std::string err;
};

/// A temporary folder in which the built program runs as a user runs it. Removed at the end with all that is
/// in it.
class Workspace {
  public:
    Workspace();
    ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    /// Runs the program with this folder as its working directory. `standardOutput` is captured unless it
    /// names a file that takes its place.
    [[nodiscard]] Outcome run(const std::vector<std::string>& arguments,
                              const std::filesystem::path& standardOutput = {}) const;

    /// Runs a script of the shell with this folder as its working directory, in which "$@" is the program and
    /// `arguments`. Its output is captured unless it sends that elsewhere.
    [[nodiscard]] Outcome runScript(const std::string& script,
                                    const std::vector<std::string>& arguments) const;
    /// The same with bounds on what the process may take, beyond which it fails or is ended by a signal.
    struct Limits {
        std::size_t cpuSeconds;
        std::size_t addressBytes; ///< not held under the address sanitizer, which takes terabytes
    };
    [[nodiscard]] Outcome runWithin(const Limits& limits, const std::vector<std::string>& arguments) const;

    /// What a user of this folder sees who types these commands of the shell, where `specloom` is the
    /// program: each behind "$ ", with its output below it, and with "=> STATUS" where that is asked and not
    /// 0.
    enum class Statuses : bool { Hidden, Shown };
    [[nodiscard]] std::string transcript(const std::vector<std::string>& commands, Statuses statuses) const;

    /// Writes a file, given by its path in this folder; missing folders are made.
    void write(const std::string& name, const std::string& content) const;

    /// The content of a file, given by its path in this folder. Fails the test when it cannot be read.
    [[nodiscard]] std::string read(const std::string& name) const;

    [[nodiscard]] std::filesystem::path path(const std::string& name) const { return folder_ / name; }

  private:
    [[nodiscard]] Outcome spawn(std::vector<std::string> words,
                                const std::filesystem::path& standardOutput) const;

    std::filesystem::path folder_;  // the program's working directory
    std::filesystem::path outputs_; // beside it, so that tests find nothing there but what the program wrote
};

/// A document on one line, and what `specloom format` makes of it.
inline const std::string smallDocument = "{\"info\":{\"version\":\"1\"},\"openapi\":\"3.1.0\"}";
inline const std::string smallDocumentFormatted =
    "{\n  \"openapi\": \"3.1.0\",\n  \"info\": {\n    \"version\": \"1\"\n  }\n}\n";

/// The end of a script for runScript(): starts the program without what the superuser may do beyond others.
[[nodiscard]] std::string execAsPlainUser();

} // namespace specloom::tests
