#include "batch/Plan.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Workers.h"
#include "check/PathList.h"
#include "dicom/ObjectFile.h"

#include <QCryptographicHash>
#include <QHash>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <vector>

namespace dravolin {

namespace {

// Goes through the files of a source in the order of the bytes of their paths. Of the names it keeps those of
// the folders that it is in.
class SourceWalk
{
public:
    explicit SourceWalk(const QString &source) : m_source(source)
    {
        if (isFolder(source)) {
            enter(QByteArray());
            return;
        }
        check::PathList names;
        names.append(lastPathComponent(source));
        open(QByteArray(), std::move(names));
    }

    // The next path, relative to the source; "" behind the last one.
    [[nodiscard]] QString next()
    {
        while (!m_open.empty()) {
            Folder &folder = m_open.back();
            if (folder.next == folder.order.size()) {
                m_open.pop_back();
                continue;
            }
            const QByteArray path =
                folder.path + folder.names.bytesAt(folder.order[folder.next++]).toByteArray();
            if (!path.endsWith('/'))
                return fromBytes(path);
            enter(path);
        }
        return {};
    }

    [[nodiscard]] qsizetype folders() const { return m_folders; }

private:
    struct Folder
    {
        QByteArray path;       // ends with a slash; "" is the source
        check::PathList names; // those of folders end with one: it has a place in the order, too
        std::vector<qsizetype> order;
        size_t next = 0;
    };

    void enter(const QByteArray &path)
    {
        ++m_folders;
        const QString folder = joinPath(m_source, fromBytes(path));
        check::PathList names;
        std::error_code error;
        std::filesystem::directory_iterator entry(systemPath(folder).toStdString(), error);
        for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
            std::error_code none; // mostly the entry knows without a call
            const bool isFolder = entry->symlink_status(none).type() == std::filesystem::file_type::directory;
            names.appendBytes(QByteArray::fromStdString(entry->path().filename().string()) +
                              (isFolder ? "/" : ""));
        }
        open(path, std::move(names));
    }

    void open(const QByteArray &path, check::PathList names)
    {
        std::vector<qsizetype> order = names.sorted(check::PathList::Order::Bytes);
        m_open.push_back({path, std::move(names), std::move(order)});
    }

    QString m_source;
    std::vector<Folder> m_open;
    qsizetype m_folders = 0;
};

// Looks at files, so many at a time that all workers have something to do.
class Scan
{
public:
    Scan(int workers, PlannedFiles *files, const std::function<bool()> &stop)
        : m_workers(workers), m_files(files), m_stop(stop)
    {
    }

    void add(PlannedCase &planned)
    {
        SourceWalk walk(planned.row.source);
        const QString folder = planned.sourceFolder();
        for (QString path = walk.next(); !path.isEmpty() && !m_stop(); path = walk.next()) {
            m_looks.push_back({&planned, joinPath(folder, path), path, {}});
            if (m_looks.size() == atOnce)
                look();
        }
        planned.folders = walk.folders();
    }

    void finish()
    {
        look();
        endListing();
    }

private:
    // At what was added since the last time.
    void look()
    {
        workThrough(
            static_cast<qsizetype>(m_looks.size()), m_workers,
            [this](qsizetype number) {
                Look &one = m_looks[static_cast<size_t>(number)];
                one.facts = readFacts(one.file);
            },
            m_stop);
        if (!m_stop())
            for (const Look &one : m_looks)
                take(one);
        m_looks.clear();
    }

    static constexpr size_t atOnce = 2000;
    struct Look
    {
        PlannedCase *planned;
        QString file;
        QString path; // in the source
        ObjectFacts facts;
    };

    void take(const Look &look)
    {
        const ObjectFacts &facts = look.facts;
        PlannedFile file = {look.path, facts.size, facts.modified, {}, {}, facts.isDirectory, facts.problem};
        if (facts.problem.isEmpty() && !facts.isDirectory)
            takeNames(*look.planned, file, facts.names);
        PlannedCase &planned = *look.planned;
        if (!file.problem.isEmpty())
            planned.troubled.append(file);
        if (file.isDirectory && !planned.directory)
            planned.directory = file;
        if (planned.files++ == 0 && m_files)
            planned.firstFile = m_files->end();
        planned.bytes += file.size;
        if (m_files)
            keep(planned, file);
    }

    void keep(PlannedCase &planned, const PlannedFile &file)
    {
        if (m_listed != &planned)
            endListing();
        m_listed = &planned;
        m_listing.addData(toBytes(file.path) + '\t' + QByteArray::number(file.size) + '\t' +
                          QByteArray::number(file.modified) + '\n');
        m_files->add(file);
    }

    void endListing()
    {
        if (m_listed)
            m_listed->listing = m_listing.result();
        m_listing.reset();
    }

    static void takeNames(PlannedCase &planned, PlannedFile &file, const ObjectNames &names)
    {
        file.sopInstance = names.sopInstance;
        file.series = names.series;
        if (file.sopInstance.isEmpty())
            file.problem = Texts::tr("has no SOP Instance UID");
        if (!names.study.isEmpty())
            planned.studies.insert(names.study);
        if (!names.patientId.isEmpty())
            planned.patients.insert(names.patientId);
    }

    int m_workers;
    PlannedFiles *m_files;
    const std::function<bool()> &m_stop;
    std::vector<Look> m_looks;
    PlannedCase *m_listed = nullptr; // whose files came last
    QCryptographicHash m_listing{QCryptographicHash::Sha256};
};

// Of the cases that hold the same study and nothing else, the first one in the list that has a root names it
// for all.
void nameStudies(Plan &plan)
{
    std::vector<PlannedCase *> cases;
    for (QList<PlannedCase> *some : {&plan.cases, &plan.others})
        std::ranges::transform(*some, std::back_inserter(cases), [](PlannedCase &one) { return &one; });
    std::ranges::sort(cases, {}, [](const PlannedCase *planned) { return planned->row.line; });
    QHash<QByteArray, QByteArray> names;
    for (PlannedCase *planned : cases) {
        if (planned->studies.size() > 1 || planned->row.uidRoot.isEmpty())
            continue;
        planned->studyUid = studyUidOf(planned->row);
        for (const QByteArray &study : planned->studies) {
            if (!names.contains(study))
                names.insert(study, planned->studyUid);
            planned->studyUid = names.value(study);
        }
    }
}

} // namespace

void scanSources(Plan &plan, int workers, PlannedFiles *files, const std::function<bool()> &stop)
{
    Scan own(workers, files, stop);
    for (PlannedCase &planned : plan.cases)
        own.add(planned);
    own.finish();
    Scan others(workers, nullptr, stop);
    for (PlannedCase &planned : plan.others)
        others.add(planned);
    others.finish();
    nameStudies(plan);
}

} // namespace dravolin
