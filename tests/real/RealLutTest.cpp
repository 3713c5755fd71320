#include "real/RealLutTest.h"

#include "run/RunDriver.h"
#include "run/jobs/ScriptJob.h"

#include <QTest>

namespace dravolin::test {

void RealLutTest::setUp()
{
    m_run = std::make_unique<RealRun>();
    m_run->host.fields.uidRoot = QStringLiteral("1.2.826.0.1.3680043.10.1234");
    m_run->host.chosen.configuration = QStringLiteral("CT");
    bind(tag);
}

void RealLutTest::bind(const QString &attribute)
{
    m_run->state.set(&RunState::LUTconstructionTag, attribute);
    const QString configuration = m_run->writeFile(QStringLiteral("home/configuration.txt"),
                                                   attribute + QStringLiteral("\tname\t<LUT_Site>"));
    m_run->state.set(&RunState::allConfigPaths, TitleToPath{{QStringLiteral("CT"), configuration}});
}

QString RealLutTest::image(const QString &relative, const QString &value)
{
    const QString made = m_run->makeImage(relative, QStringLiteral("latin1"));
    const QStringList arguments = {QStringLiteral("-nb"), QStringLiteral("-i"),
                                   QStringLiteral("(0010,1000)=") + value, made};
    if (!value.isEmpty())
        (void)m_run->tools.run(
            {m_run->paths.dcmodify(), arguments, QStringLiteral("/"), toolEnvironment(m_run->paths), false});
    if (this->value(made) != (value.isEmpty() ? QStringLiteral("none") : value))
        QTest::qFail("an image could not be made", __FILE__, __LINE__);
    return made;
}

QString RealLutTest::run(const QStringList &folders, const QStringList &files, const QString &table)
{
    Drop drop{folders, files, {}};
    if (!table.isEmpty()) {
        drop.options.selectedLUT = QStringLiteral("Site");
        drop.options.selectedLUTpath =
            m_run->writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt"), table);
    }
    performRun(m_run->context, drop);
    return m_run->host.judgements.last().summary;
}

QString RealLutTest::construct(const QStringList &folders, const QStringList &files)
{
    m_run->host.chosen.prepopulate = Qt::Checked;
    const QString summary = run(folders, files, QString());
    m_run->host.chosen.prepopulate = Qt::Unchecked;
    return summary;
}

QString RealLutTest::table() const
{
    return readText(path("home/Desktop/AnonymizationLUT_Site.txt")).value_or(QStringLiteral("none"));
}

QString RealLutTest::value(const QString &path) const
{
    const QStringList lines = m_run->lines(path, "0010,1000");
    return lines.isEmpty() ? QStringLiteral("none") : lines.first().section(u'[', 1).chopped(1);
}

} // namespace dravolin::test
