#include "bench/process.h"

#include <cstdio>    // std::fscanf
#include <stdexcept> // std::runtime_error

#include <fcntl.h> // O_CLOEXEC
#include <spawn.h> // posix_spawn
#include <sys/wait.h>
#include <unistd.h> // pipe2

extern char** environ;

namespace specloom::bench {

ProcessRun runProcess(const std::vector<std::string>& arguments, int highestStatus) {
    std::vector<char*> argv{const_cast<char*>(LAUNCHER)};
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);

    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("No pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    pid_t child = 0;
    const int failure = posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);

    ProcessRun run{};
    std::FILE* answer = fdopen(ends[0], "r");
    const int fields = std::fscanf(answer, "%lf %lf %lf", &run.wallSeconds, &run.cpuSeconds, &run.peakBytes);
    std::fclose(answer);
    int status = -1;
    if (failure == 0)
        waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) > highestStatus || fields != 3)
        throw std::runtime_error("Failed: " + arguments.front());
    return run;
}

} // namespace specloom::bench
