// The memory that one worker takes for an object of 2 GiB.
#include "Figures.h"

#include "dicom/ObjectFile.h"
#include "dicom/Prologue.h"
#include "dicom/Values.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>

using namespace dravolin;
using bench::Figures;

namespace {

constexpr quint32 pixelSize = 0x7ffffffe;

// All pixels are zeros that take no room on the disk.
bool makeObject(const QString &path)
{
    const Prologue prologue = {"1.2.840.10008.5.1.4.1.1.2", "1.2.3", "1.2.840.10008.1.2.1", {}, 0};
    const QByteArray head = prologueBytes(prologue) + elementBytes(0x00080018, vr('U', 'I'), {}, "1.2.3") +
                            elementBytes(0x00100010, vr('P', 'N'), {}, "Doe^Jane") +
                            headerBytes(0x7fe00010, vr('O', 'W'), {}, pixelSize);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(head) == head.size() &&
           file.resize(head.size() + static_cast<qint64>(pixelSize));
}

double peakMegabytes()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir scratch;
    Treatment treatment;
    treatment.rules = {{0x00100010, {}}};
    if (!makeObject(scratch.filePath(QStringLiteral("large"))))
        return 2;
    const double before = peakMegabytes();
    const TreatedFile treated = treatFile(scratch.filePath(QStringLiteral("large")),
                                          scratch.filePath(QStringLiteral("result")), treatment);
    if (!treated.facts.problem.isEmpty() || treated.sizeAfter < pixelSize)
        return 2;
    Figures figures;
    figures.add("memory that a worker takes for an object of 2 GiB", peakMegabytes() - before, 64, "MiB");
    return figures.exitCode();
}
