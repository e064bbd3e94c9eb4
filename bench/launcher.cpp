#include <chrono> // std::chrono::steady_clock
#include <cstdio> // std::printf

#include <fcntl.h> // O_RDWR
#include <spawn.h> // posix_spawn
#include <sys/resource.h>
#include <sys/wait.h>

extern char** environ;

/// launcher PROGRAM ARGUMENT...: runs a program with its input, output and errors thrown away, and prints the
/// seconds on the clock, the seconds of processor time and the bytes of its largest resident set. The status
/// is that of the program, and 255 when it did not end by itself.
///
/// This is a program of its own because a new process starts with the peak of the one that it was forked
/// from: only a small parent sees the true peak of its children.
int main(int argc, char** argv) {
    if (argc < 2)
        return 2;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_adddup2(&actions, 0, 1);
    posix_spawn_file_actions_adddup2(&actions, 0, 2); // notes of a generator, each time
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    if (posix_spawn(&child, argv[1], &actions, nullptr, argv + 1, environ) != 0)
        return 2;
    int status = -1;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;

    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    std::printf("%.9f %.9f %.0f\n", wall.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime),
                static_cast<double>(usage.ru_maxrss) * 1024);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 255;
}
