// SPDX-License-Identifier: GPL-3.0-or-later
// bench_startup [--runs N] [--check] [--verbose]: starts the menu probe and the bare-window probe
// (beside this program) N times each as fresh processes on the offscreen platform, and prints
// the median time from exec to the first paint and the median peak memory of each, one figure
// per line, then the ratios against the goals. --check makes a missed goal the exit status.
#include "StartupStats.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace {

constexpr double TimeGoal = 1.3;
constexpr double MemoryGoal = 1.5;
constexpr int TimeoutMs = 60000;

// One start of one probe: milliseconds from just before exec to its first paint, and its peak
// resident memory.
struct Run {
    bool ok = false;
    double ms = 0;
    double maxRssMiB = 0;
    std::string error;
};

struct Probe {
    const char *label;
    std::string path;
    std::vector<double> ms;
    std::vector<double> rss;
};

std::vector<std::string> probeEnvironment()
{
    std::vector<std::string> env;
    for (char **e = environ; *e; ++e)
        if (std::strncmp(*e, "QT_QPA_PLATFORM=", 16) != 0)
            env.emplace_back(*e);
    env.emplace_back("QT_QPA_PLATFORM=offscreen");
    return env;
}

Run runOnce(const std::string &program, const std::vector<std::string> &environment)
{
    Run run;
    int out[2];
    if (pipe(out) != 0) {
        run.error = std::strerror(errno);
        return run;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, out[0]);
    posix_spawn_file_actions_addclose(&actions, out[1]);
    // Qt's warnings about the offscreen platform would drown the figures.
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);

    std::vector<char *> envp;
    for (const std::string &e : environment)
        envp.push_back(const_cast<char *>(e.c_str()));
    envp.push_back(nullptr);
    char *argv[] = {const_cast<char *>(program.c_str()), nullptr};

    pid_t pid = 0;
    const auto started = std::chrono::steady_clock::now();
    const int spawned = posix_spawn(&pid, program.c_str(), &actions, nullptr, argv, envp.data());
    posix_spawn_file_actions_destroy(&actions);
    close(out[1]);
    if (spawned != 0) {
        close(out[0]);
        run.error = std::string("cannot start: ") + std::strerror(spawned);
        return run;
    }

    std::string output;
    bool timedOut = false;
    for (;;) {
        pollfd ready{out[0], POLLIN, 0};
        const int polled = poll(&ready, 1, TimeoutMs);
        if (polled == 0) {
            timedOut = true;
            kill(pid, SIGKILL);
            break;
        }
        if (polled < 0 && errno == EINTR)
            continue;
        char buffer[256];
        const ssize_t n = read(out[0], buffer, sizeof buffer);
        if (n <= 0)
            break;
        output.append(buffer, std::size_t(n));
    }
    close(out[0]);

    int status = 0;
    rusage usage{};
    while (wait4(pid, &status, 0, &usage) < 0 && errno == EINTR) {
    }
    const auto shown = StartupStats::shownAt(output);
    if (timedOut) {
        run.error = "no window within 60 s";
    } else if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        run.error = WIFSIGNALED(status) ? "killed by signal " + std::to_string(WTERMSIG(status))
                                        : "exit status " + std::to_string(WEXITSTATUS(status));
    } else if (!shown) {
        run.error = "it never reported its window";
    } else {
        const long long begin =
            std::chrono::duration_cast<std::chrono::nanoseconds>(started.time_since_epoch())
                .count();
        run.ok = true;
        run.ms = double(*shown - begin) / 1e6;
        run.maxRssMiB = double(usage.ru_maxrss) / 1024.0; // Linux gives kilobytes
    }
    return run;
}

void usage()
{
    std::fputs("usage: bench_startup [--runs N] [--check] [--verbose]\n", stderr);
}

} // namespace

int main(int argc, char *argv[])
{
    int runs = 20;
    bool check = false;
    bool verbose = false;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--runs" && i + 1 < argc) {
            runs = std::atoi(argv[++i]);
        } else if (argument == "--check") {
            check = true;
        } else if (argument == "--verbose") {
            verbose = true;
        } else {
            usage();
            return 2;
        }
    }
    if (runs < 1) {
        usage();
        return 2;
    }

    const std::filesystem::path here =
        std::filesystem::read_symlink("/proc/self/exe").parent_path();
    Probe bare{"bare window", (here / "bench_startup_bare").string(), {}, {}};
    Probe menu{"menu", (here / "bench_startup_menu").string(), {}, {}};
    const std::vector<std::string> environment = probeEnvironment();

    // One start each that is not counted, so both find the font cache and libraries warm; then
    // the two alternate, so a slow spell of the machine falls on both alike.
    for (int i = -1; i < runs; ++i) {
        for (Probe *probe : {&bare, &menu}) {
            const Run run = runOnce(probe->path, environment);
            if (!run.ok) {
                std::fprintf(stderr, "bench_startup: %s (%s): %s\n", probe->label,
                             probe->path.c_str(), run.error.c_str());
                return 1;
            }
            if (verbose)
                std::printf("run %d %s: %.1f ms, %.1f MiB\n", i + 1, probe->label, run.ms,
                            run.maxRssMiB);
            if (i < 0)
                continue;
            probe->ms.push_back(run.ms);
            probe->rss.push_back(run.maxRssMiB);
        }
    }

    const double bareMs = *StartupStats::median(bare.ms);
    const double menuMs = *StartupStats::median(menu.ms);
    const double bareRss = *StartupStats::median(bare.rss);
    const double menuRss = *StartupStats::median(menu.rss);
    const auto time = StartupStats::ratio(menuMs, bareMs, TimeGoal);
    const auto memory = StartupStats::ratio(menuRss, bareRss, MemoryGoal);
    const auto verdict = [](const StartupStats::Ratio &r) {
        return !r.valid ? "no baseline" : r.met ? "met" : "missed";
    };

    std::printf("start-up to first paint, bare window: %.1f ms (median of %d)\n", bareMs, runs);
    std::printf("start-up to first paint, menu: %.1f ms (median of %d)\n", menuMs, runs);
    std::printf("peak memory, bare window: %.1f MiB (median of %d)\n", bareRss, runs);
    std::printf("peak memory, menu: %.1f MiB (median of %d)\n", menuRss, runs);
    std::printf("start-up ratio menu / bare window: %.2f (goal %.1f: %s)\n", time.value, TimeGoal,
                verdict(time));
    std::printf("memory ratio menu / bare window: %.2f (goal %.1f: %s)\n", memory.value, MemoryGoal,
                verdict(memory));
    return check && !(time.met && memory.met) ? 1 : 0;
}
