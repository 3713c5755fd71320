// What a configuration costs: the processor time of the tool over one folder of 320 images of 85 KB, beside
// that of 81 lines over the same images.
//
//   bench_configuration [ROUNDS]
#include "Figures.h"

#include "base/Files.h"
#include "config/ConfigurationFile.h"
#include "processing/FolderAnonymization.h"
#include "run/jobs/ScriptJob.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstdlib>
#include <unistd.h>
#include <sys/resource.h>

using namespace dravolin;
using bench::Figures;

namespace {

constexpr int imageCount = 320;
constexpr int headerBytes = 6000;
constexpr int pixels = 192 * 204;

void require(bool done, const char *what)
{
    if (done)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(2);
}

double childrensProcessorSeconds()
{
    rusage usage = {};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

QString repeated(const QString &value, int count)
{
    return QStringList(count, value).join(u'\\');
}

class Price
{
public:
    Price()
    {
        m_paths.resourceFolder = QStringLiteral(RESOURCES);
        makeImage();
    }

    // Processor seconds for the folder, which is made anew.
    double of(const QString &configuration)
    {
        QDir(folder()).removeRecursively();
        require(createFolder(folder()), "the folder of the benchmark could not be made");
        for (int i = 0; i < imageCount; ++i)
            require(copyFile(m_image, joinPath(folder(), QString::number(i))),
                    "an image could not be copied");
        TagRules rules = loadConfiguration(configuration);
        require(rules.allTagsToAnonymize.size() > 80, "a configuration could not be read");
        addFixedTags(rules, {QStringLiteral("name"), QStringLiteral("1"), QStringLiteral("number"), {}},
                     QStringLiteral("2.25.1"));
        const QString command =
            anonymizationCommand(m_paths.dcmodify(), rules, {}).prefix + QStringLiteral(" *");
        const double before = childrensProcessorSeconds();
        const ScriptJobResult result =
            runScriptJob(m_jobs, m_paths, folder(), command + QStringLiteral(" >.noxTemp.out 2>&1"));
        require(result.ran && result.output.isEmpty(), "the tool failed");
        return childrensProcessorSeconds() - before;
    }

private:
    [[nodiscard]] QString folder() const { return m_scratch.filePath(QStringLiteral("images")); }

    void makeImage()
    {
        m_image = m_scratch.filePath(QStringLiteral("image.dcm"));
        const QString dump = m_scratch.filePath(QStringLiteral("image.dump"));
        const QString text = readText(QStringLiteral(DATA "/mr.dump")).value_or(QString()) +
                             QStringLiteral("(0029,1010) OB ") + repeated(QStringLiteral("5a"), headerBytes) +
                             QStringLiteral("\n(7fe0,0010) OW ") + repeated(QStringLiteral("0123"), pixels) +
                             u'\n';
        require(writeText(dump, text), "the image's text could not be written");
        (void)m_jobs.run({QStringLiteral(DUMP2DCM),
                          {QStringLiteral("+l"), QStringLiteral("1000000"), dump, m_image},
                          m_scratch.path(),
                          toolEnvironment(m_paths)});
        require(readBytes(m_image).value_or(QByteArray()).size() > 80000, "the image could not be made");
    }

    QTemporaryDir m_scratch;
    AppPaths m_paths;
    PosixJobRunner m_jobs;
    QString m_image;
};

} // namespace

int main(int argc, char **argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 5;
    Price price;
    std::vector<double> yardstick;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        yardstick.push_back(price.of(QStringLiteral(DATA "/eighty-one-lines.txt")));
        ratios.push_back(price.of(QStringLiteral(DEFAULT_CONFIGURATION)) / yardstick.back());
    }
    Figures figures;
    Figures::note("81 lines, one folder of 320 images: processor time", bench::median(yardstick), "s");
    figures.add("the default configuration beside them", bench::median(ratios), 3.5, "x");
    return figures.exitCode();
}
