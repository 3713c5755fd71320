// Runs one script after another and prints the seconds that took: native_loop LIST DICTIONARY SCRIPT, where
// LIST is a file of folders, each ended by a NUL. In each it starts /bin/sh -c "\"FOLDER/SCRIPT\"" and waits
// for it.
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>
#include <vector>

namespace {

void runScript(const std::string &folder, const std::string &script, char *const *environment)
{
    std::string command = '"' + folder + '/' + script + '"';
    const pid_t child = ::fork();
    if (child == 0) {
        char shell[] = "/bin/sh";
        char option[] = "-c";
        char *const arguments[] = {shell, option, command.data(), nullptr};
        const int null = ::open("/dev/null", O_RDONLY);
        if (null >= 0 && ::dup2(null, STDIN_FILENO) >= 0 && ::chdir(folder.c_str()) == 0)
            ::execve(shell, arguments, environment);
        ::_exit(127);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child ||
        (WIFEXITED(status) && WEXITSTATUS(status) > 125)) {
        std::fprintf(stderr, "native_loop: the script in %s did not run\n", folder.c_str());
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
    if (argc != 4)
        return 2;
    std::ifstream list(argv[1], std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(list)), std::istreambuf_iterator<char>());
    std::vector<std::string> folders;
    for (size_t start = 0; start < text.size(); start += folders.back().size() + 1)
        folders.emplace_back(text.c_str() + start);

    std::string dictionary = std::string("DCMDICTPATH=") + argv[2];
    char *const environment[] = {dictionary.data(), nullptr};
    const double start = now();
    for (const std::string &folder : folders)
        runScript(folder, argv[3], environment);
    std::printf("%.9f\n", now() - start);
    return 0;
}
