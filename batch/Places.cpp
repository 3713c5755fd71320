#include "batch/Places.h"

#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Evidence.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <filesystem>

namespace dravolin {

namespace {

// A place and all folders around it; none for a path that is missing, which is told elsewhere.
QStringList outwards(const QString &place)
{
    QStringList places;
    for (QString path = place; !path.isEmpty(); path = path == u'/' ? QString() : parentPath(path))
        places.append(path);
    return places;
}

// Whether `inner` is `outer` or lies in it.
bool isInside(const QString &inner, const QString &outer)
{
    if (inner.isEmpty() || outer.isEmpty())
        return false;
    return inner == outer || inner.startsWith(joinPath(outer, QString()));
}

// The first line of those places, or 0.
int lineOf(const QStringList &places, const QHash<QString, int> &lines)
{
    for (const QString &place : places)
        if (const int line = lines.value(place); line != 0)
            return line;
    return 0;
}

class PlaceJudge
{
public:
    PlaceJudge(const QList<CaseRow> &rows, const BatchOptions &options)
        : m_options(options), m_key(placeOf(options.key))
    {
        const QString &folder = options.wholeFolder;
        for (const QString &own : {folder, secretFolder(folder), evidenceFolder(folder),
                                   joinPath(folder, QStringLiteral("parts"))})
            m_own.append(placeOf(own)); // each may be a link of its own
        for (const CaseRow &row : rows)
            m_rows.append({row.line, placeOf(row.source), placeOf(row.destination)});
        for (const Row &row : m_rows) {
            insertFirst(m_sources, row.source, row.line);
            insertFirst(m_destinations, row.destination, row.line);
            for (const QString &place : outwards(row.source))
                insertFirst(m_aroundSources, place, row.line);
        }
    }

    QList<ListProblem> judge()
    {
        for (const Row &row : m_rows) {
            judgeRunFolder(row);
            judgeKey(row);
            judgeDestination(row);
        }
        return m_problems;
    }

private:
    struct Row
    {
        int line;
        QString source;
        QString destination;
    };

    static void insertFirst(QHash<QString, int> &lines, const QString &place, int line)
    {
        if (!lines.contains(place))
            lines.insert(place, line);
    }

    void judgeRunFolder(const Row &row)
    {
        const auto isOneOf = [this](const auto &isMeant) { return std::ranges::any_of(m_own, isMeant); };
        if (isOneOf([&](const QString &own) { return isInside(own, row.source); }))
            tell(row, Texts::tr("the source holds the run's own folder"));
        if (isOneOf([&](const QString &own) {
                return isInside(own, row.destination) || isInside(row.destination, own);
            }))
            tell(row, Texts::tr("the destination and the run's own folder lie one inside the other"));
    }

    void judgeKey(const Row &row)
    {
        if (isInside(m_key, row.source))
            tell(row, Texts::tr("the key %1 lies in the source").arg(m_options.key));
        if (isInside(m_key, row.destination))
            tell(row, Texts::tr("the key %1 lies in the destination").arg(m_options.key));
    }

    void judgeDestination(const Row &row)
    {
        if (row.destination.isEmpty())
            return;
        const QStringList places = outwards(row.destination);
        const int source = std::max(lineOf(places, m_sources), m_aroundSources.value(row.destination));
        if (source != 0)
            tell(row,
                 Texts::tr("the destination and the source of line %1 lie one inside the other").arg(source));
        if (const int same = m_destinations.value(row.destination); same != row.line)
            tell(row, Texts::tr("has the destination of line %1").arg(same));
        if (const int outer = lineOf(places.sliced(1), m_destinations); outer != 0)
            tell(row, Texts::tr("the destination lies inside that of line %1").arg(outer));
    }

    void tell(const Row &row, const QString &text) { m_problems.append({row.line, text}); }

    const BatchOptions &m_options;
    QString m_key;
    QStringList m_own; // of the run
    QList<Row> m_rows;
    QHash<QString, int> m_sources; // the first line of each
    QHash<QString, int> m_destinations;
    QHash<QString, int> m_aroundSources; // and those themselves
    QList<ListProblem> m_problems;
};

} // namespace

QString placeOf(const QString &path)
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(systemPath(path).toStdString(), error);
    if (!error)
        return fromBytes(QByteArray::fromStdString(real.native()));
    if (path.isEmpty() || path == u'/')
        return path;
    return joinPath(placeOf(parentPath(path)), lastPathComponent(path));
}

QList<ListProblem> placeProblems(const QList<CaseRow> &rows, const BatchOptions &options)
{
    return PlaceJudge(rows, options).judge();
}

} // namespace dravolin
