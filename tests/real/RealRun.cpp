#include "real/RealRun.h"

#include "run/jobs/ScriptJob.h"

#include <QTest>

#include <unistd.h>

namespace dravolin::test {

namespace {

void check(bool done, const char *what)
{
    if (!done)
        QTest::qFail(what, __FILE__, __LINE__);
}

} // namespace

RealRun::RealRun()
{
    const auto place = [](const char *tool, const QString &path) {
        check(::symlink(tool, toBytes(path).constData()) == 0, "a tool could not be placed");
    };
    place(DRAVOLIN_DCMODIFY, paths.dcmodify());
    place(DRAVOLIN_DCMDUMP, paths.dcmdump());
    place(DRAVOLIN_DICOM_DIC, paths.dictionary());
    place(DEFAULT_CONFIGURATION, paths.defaultConfiguration());
}

QString RealRun::makeImage(const QString &relative, const QString &dump) const
{
    const QString image = path(relative);
    check(createFolder(parentPath(image)), "a folder could not be made");
    const QString source = QStringLiteral(DUMPS "/") + dump + QStringLiteral(".dump");
    (void)PosixJobRunner().run(
        {QStringLiteral(DRAVOLIN_DUMP2DCM), {source, image}, path(QString()), toolEnvironment(paths), true});
    check(pathExists(image), "an image could not be made");
    return image;
}

QStringList RealRun::lines(const QString &path, const char *tag) const
{
    QStringList arguments = {QStringLiteral("-q"), QStringLiteral("-Un"), QStringLiteral("+L")};
    if (tag)
        arguments += {QStringLiteral("+p"), QStringLiteral("+P"), QString::fromLatin1(tag)};
    arguments += path;
    const JobResult result =
        PosixJobRunner().run({paths.dcmdump(), arguments, QStringLiteral("/"), toolEnvironment(paths), true});
    QStringList lines = fromBytes(result.output).split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines) {
        if (const qsizetype remark = line.lastIndexOf(QStringLiteral(" #")); remark > 0)
            line = line.first(remark).trimmed();
    }
    return lines;
}

} // namespace dravolin::test
