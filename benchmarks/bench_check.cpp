// bench_check: processor time of `dravolin-cli check` beside that of merely reading the same files with GDCM,
// and the memory it takes for 100000 files.
// bench_check read FOLDER...: reads every file below the folders with GDCM.
#include "base/Files.h"
#include "Figures.h"

#include <QTemporaryDir>

#include <gdcmReader.h>
#include <gdcmTrace.h>

#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

extern char **environ;

namespace {

using namespace dravolin;
using namespace dravolin::bench;

constexpr int files = 20'000;    // on each side, names of fewer objects
constexpr int objects = 2000;    // originals
constexpr int plainObjects = 20; // results, which name nobody
constexpr int frameSize = 20'000;
constexpr int rounds = 3;
constexpr int manyFiles = 100'000;
constexpr int manyValues = 50'000;

struct Usage
{
    double seconds = 0; // of processor time
    double megabytes = 0;
};

// Runs a program to its end; it must succeed or find something.
Usage usageOf(std::vector<std::string> words)
{
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    int status = 0;
    rusage used = {};
    if (::posix_spawn(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
        ::wait4(child, &status, 0, &used) != child || !WIFEXITED(status) || WEXITSTATUS(status) > 1) {
        std::printf("%s %s failed\n", arguments[0], arguments[1]);
        std::exit(2);
    }
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return {seconds(used.ru_utime) + seconds(used.ru_stime), static_cast<double>(used.ru_maxrss) / 1024};
}

int readFolders(const std::vector<std::string> &folders)
{
    gdcm::Trace::WarningOff();
    int unread = 0;
    for (const std::string &folder : folders) {
        for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
            gdcm::Reader reader;
            reader.SetFileName(entry.path().c_str());
            unread += entry.is_regular_file() && !reader.Read();
        }
    }
    return unread == 0 ? 0 : 2;
}

void makeObjects(const std::string &folder, std::vector<std::string> options)
{
    std::vector<std::string> words = {PYTHON, OBJECT_GENERATOR, options[0], folder};
    words.insert(words.end(), options.begin() + 1, options.end());
    usageOf(words);
    std::filesystem::remove(folder + "/planted.json");
}

// `count` names of one file.
void makeLinks(const std::filesystem::path &file, const std::filesystem::path &folder, int count)
{
    std::filesystem::create_directories(folder);
    for (int i = 0; i < count; ++i)
        std::filesystem::create_hard_link(file, folder / (file.filename().string() + std::to_string(i)));
}

// Persons, numbers and UIDs, each of its own.
void writeValues(const QString &path)
{
    QString text;
    for (int i = 0; i < manyValues; ++i) {
        const QString number = QString::number(i * 7919 + 1'000'000);
        const QString letters = QString::number(i + 40'000, 26).replace(u'0', u'q').remove(u'1');
        switch (i % 3) {
        case 0: text += QStringLiteral("Br%1er^Jo%2\n").arg(letters, number.last(3)); break;
        case 1: text += QStringLiteral("P%1\n").arg(number); break;
        default: text += QStringLiteral("1.2.276.0.7230010.3.1.4.%1\n").arg(number); break;
        }
    }
    (void)writeText(path, text);
}

class Folders
{
public:
    Folders()
    {
        makeObjects(native("objects"), {"mixed", "--count", std::to_string(objects), "--pixels",
                                        std::to_string(frameSize), "--flat", "--no-directory"});
        makeObjects(native("nobody"), {"plain"});
        linkAll("objects", "before", files / objects);
        linkAll("nobody", "after", files / plainObjects);
        makeLinks(native("objects") + "/IM000001", native("few"), files);
        writeValues(path(QStringLiteral("values.txt")));
    }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] std::string native(const char *name) const
    {
        return path(QString::fromLatin1(name)).toStdString();
    }

private:
    void linkAll(const char *from, const char *to, int count) const
    {
        int folder = 0;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(native(from))) {
            if (entry.is_regular_file())
                makeLinks(entry.path(), native(to) + "/" + std::to_string(++folder), count);
        }
    }

    QTemporaryDir m_folder;
};

// Check and reading take turns, so that a busy machine spoils neither more than the other.
double ratio(const std::vector<std::string> &check, const std::vector<std::string> &read)
{
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round)
        ratios.push_back(usageOf(check).seconds / usageOf(read).seconds);
    return median(ratios);
}

void compare(Figures &figures, const Folders &folders, const std::string &program)
{
    const std::string values = folders.native("values.txt");
    const auto timeOf = [&](const char *originals, const char *result, std::vector<std::string> options) {
        const std::string before = folders.native(originals);
        const std::string after = folders.native(result);
        std::vector<std::string> check = {DRAVOLIN_CLI, "check", "--quiet", before, after};
        check.insert(check.end(), options.begin(), options.end());
        return ratio(check, {program, "read", before, after});
    };
    figures.add("processor time, some 50 values", timeOf("few", "after", {}), 1.6, "times", 2);
    figures.add("processor time, more than 50000 values",
                timeOf("before", "after", {"--identifiers", values}), 1.6, "times", 2);
    figures.add("processor time, a result in which every value stands", timeOf("before", "before", {}), 1.6,
                "times", 2);
}

void measureMemory(Figures &figures, const Folders &folders)
{
    const std::string many = folders.native("many");
    makeLinks(folders.native("nobody") + "/CT/IM000001", many, manyFiles);
    const Usage used = usageOf({DRAVOLIN_CLI, "check", "--quiet", "--identifiers",
                                folders.native("values.txt"), folders.native("before"), many});
    figures.add("memory, 100000 files", used.megabytes, 200, "MiB", 1);
    Figures::note("  processor time", used.seconds, "s", 1);
}

} // namespace

int main(int argc, char *argv[])
{
    const std::vector<std::string> arguments(argv, argv + argc);
    if (argc > 2 && arguments[1] == "read")
        return readFolders({arguments.begin() + 2, arguments.end()});
    std::printf("%d files on each side, of all kinds and syntaxes; GDCM reading them is 1\n", files);
    const Folders folders;
    Figures figures;
    compare(figures, folders, std::filesystem::canonical("/proc/self/exe").string());
    measureMemory(figures, folders);
    return figures.exitCode();
}
