#include "workspace.h"

#include "test_support/corpora.h"
#include "test_support/sanitizers.h"

#include <cstdlib>      // mkdtemp
#include <fstream>      // std::ofstream
#include <string>       // std::to_string
#include <system_error> // std::system_error
#include <utility>      // std::move

#include <fcntl.h> // O_WRONLY
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace specloom::tests {
namespace {

void require(int error, const char* what) {
    if (error != 0)
        throw std::system_error(error, std::generic_category(), what);
}

} // namespace

Workspace::Workspace() {
    std::string pattern = (fs::temp_directory_path() / "specloom-XXXXXX").string();
    require(mkdtemp(pattern.data()) == nullptr ? errno : 0, "mkdtemp");
    folder_ = fs::path(pattern) / "work";
    outputs_ = fs::path(pattern) / "outputs";
    fs::create_directory(folder_);
    fs::create_directory(outputs_);
}

Workspace::~Workspace() {
    fs::remove_all(folder_.parent_path());
}

Outcome Workspace::run(const std::vector<std::string>& arguments, const fs::path& standardOutput) const {
    std::vector<std::string> words = {SPECLOOM_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return spawn(std::move(words), standardOutput);
}

Outcome Workspace::runScript(const std::string& script, const std::vector<std::string>& arguments) const {
    std::vector<std::string> words = {"/bin/sh", "-c", script, "sh", SPECLOOM_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return spawn(std::move(words), {});
}

std::string Workspace::transcript(const std::vector<std::string>& commands, Statuses statuses) const {
    std::string script = "exec 2>&1\nprogram=$1 status=0\nspecloom() { \"$program\" \"$@\"; }\n";
    for (const std::string& command : commands) {
        script += "cat <<'END'\n$ " + command + "\nEND\n(exit $status)\n" + command + "\nstatus=$?\n";
        if (statuses == Statuses::Shown)
            script += "[ $status = 0 ] || echo \"=> $status\"\n";
    }
    return runScript(script, {}).out;
}

Outcome Workspace::runWithin(const Limits& limits, const std::vector<std::string>& arguments) const {
    std::string script = "ulimit -c 0; ulimit -t " + std::to_string(limits.cpuSeconds) + "; ";
    if (!test_support::hasAddressSanitizer)
        script += "ulimit -v " + std::to_string(limits.addressBytes / 1024) + "; ";
    return runScript(script + "exec \"$@\"", arguments);
}

Outcome Workspace::spawn(std::vector<std::string> words, const fs::path& standardOutput) const {
    const fs::path out = standardOutput.empty() ? outputs_ / "out" : standardOutput;
    const fs::path err = outputs_ / "err";
    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    require(posix_spawn_file_actions_init(&actions), "actions");
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    posix_spawn_file_actions_addchdir_np(&actions, folder_.c_str());
    pid_t child = 0;
    const int error = posix_spawn(&child, argv.front(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    require(error, "posix_spawn");

    int status = 0;
    require(waitpid(child, &status, 0) == child ? 0 : errno, "waitpid");
    Outcome outcome;
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    if (standardOutput.empty())
        outcome.out = test_support::fileBytes(out);
    outcome.err = test_support::fileBytes(err);
    return outcome;
}

std::string execAsPlainUser() {
    if (geteuid() != 0)
        return "exec \"$@\"";
    return "exec setpriv --bounding-set=-chown,-dac_override,-dac_read_search,-fowner \"$@\"";
}

void Workspace::write(const std::string& name, const std::string& text) const {
    fs::create_directories(path(name).parent_path());
    std::ofstream stream(path(name), std::ios::binary);
    stream << text;
    ASSERT_TRUE(stream.flush()) << name;
}

std::string Workspace::read(const std::string& name) const {
    return test_support::fileBytes(path(name));
}

} // namespace specloom::tests
