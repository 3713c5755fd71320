// Runs one program after another and prints the seconds that took: native_loop LIST DICTIONARY, where LIST is
// a file of jobs. A job is a folder, a program and its arguments, each ended by a NUL, and one NUL more.
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>
#include <vector>

namespace {

using Job = std::vector<std::string>; // folder, program, arguments

void run(Job &job, char *const *environment)
{
    std::vector<char *> arguments;
    for (size_t i = 1; i < job.size(); ++i)
        arguments.push_back(job[i].data());
    arguments.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const int null = ::open("/dev/null", O_RDONLY);
        if (null >= 0 && ::dup2(null, STDIN_FILENO) >= 0 && ::chdir(job[0].c_str()) == 0)
            ::execve(arguments[0], arguments.data(), environment);
        ::_exit(127);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child ||
        (WIFEXITED(status) && WEXITSTATUS(status) > 125)) {
        std::fprintf(stderr, "native_loop: %s did not run in %s\n", job[1].c_str(), job[0].c_str());
        std::exit(1);
    }
}

double now()
{
    timespec time = {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    std::ifstream list(argv[1], std::ios::binary);
    std::vector<Job> jobs(1);
    for (std::string word; std::getline(list, word, '\0');) {
        if (word.empty())
            jobs.emplace_back();
        else
            jobs.back().push_back(word);
    }
    jobs.pop_back();

    std::string dictionary = std::string("DCMDICTPATH=") + argv[2];
    char *const environment[] = {dictionary.data(), nullptr};
    const double start = now();
    for (Job &job : jobs)
        run(job, environment);
    std::printf("%.9f\n", now() - start);
    return 0;
}
