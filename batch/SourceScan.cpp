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

namespace fs = std::filesystem;

// Goes through the files of a source in the order of the bytes of their paths. Of the names it keeps those of
// the folders that it is in.
class SourceWalk
{
public:
    explicit SourceWalk(const QString &source) : m_source(source) {}

    struct Entry
    {
        QString path;    // relative to the source; "" behind the last one
        QString problem; // of a folder, why it cannot be listed
    };

    // The next file, or folder that cannot be listed.
    [[nodiscard]] Entry next()
    {
        if (!m_isBegun) {
            m_isBegun = true;
            if (const QString problem = begin(); !problem.isEmpty())
                return {QStringLiteral("./"), problem};
        }
        while (!m_open.empty()) {
            Folder &folder = m_open.back();
            if (folder.next == folder.order.size()) {
                m_open.pop_back();
                continue;
            }
            const QByteArray path =
                folder.path + folder.names.bytesAt(folder.order[folder.next++]).toByteArray();
            if (!path.endsWith('/'))
                return {fromBytes(path), {}};
            if (const QString problem = enter(path); !problem.isEmpty())
                return {fromBytes(path), problem};
        }
        return {};
    }

    [[nodiscard]] qsizetype folders() const { return m_folders; }
    // Whether anything may have been missed.
    [[nodiscard]] bool isIncomplete() const { return m_isIncomplete; }

private:
    struct Folder
    {
        QByteArray path;       // ends with a slash; "" is the source
        check::PathList names; // those of folders end with one: it has a place in the order, too
        std::vector<quint32> order;
        size_t next = 0;
    };

    QString begin()
    {
        const std::optional<EntryKind> kind = entryKind(m_source);
        if (kind == EntryKind::Folder)
            return enter(QByteArray());
        m_isIncomplete = !kind;
        check::PathList names;
        names.append(lastPathComponent(m_source));
        open(QByteArray(), std::move(names));
        return {};
    }

    // Takes what can be listed, and gives the reason when that is not all.
    QString enter(const QByteArray &path)
    {
        ++m_folders;
        check::PathList names;
        std::error_code error;
        fs::directory_iterator entry(systemPath(joinPath(m_source, fromBytes(path))).toStdString(), error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
            std::error_code unknown; // mostly the entry knows without a call
            const bool isFolder = !entry->is_symlink(unknown) && !unknown && entry->is_directory(unknown);
            names.appendBytes(QByteArray::fromStdString(entry->path().filename().string()) +
                              (isFolder ? "/" : ""));
            m_isIncomplete = m_isIncomplete || unknown;
        }
        open(path, std::move(names));
        m_isIncomplete = m_isIncomplete || error;
        return error ? Texts::tr("cannot be listed: %1").arg(QString::fromStdString(error.message()))
                     : QString();
    }

    void open(const QByteArray &path, check::PathList names)
    {
        std::vector<quint32> order = names.sorted(check::PathList::Order::Bytes);
        m_open.push_back({path, std::move(names), std::move(order)});
    }

    QString m_source;
    std::vector<Folder> m_open;
    qsizetype m_folders = 0;
    bool m_isBegun = false;
    bool m_isIncomplete = false;
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
        for (auto entry = walk.next(); !entry.path.isEmpty() && !m_stop(); entry = walk.next()) {
            m_looks.push_back({&planned, joinPath(folder, entry.path), entry.path, {}});
            m_looks.back().facts.problem = entry.problem;
            if (m_looks.size() == atOnce)
                look();
        }
        planned.folders = walk.folders();
        planned.isIncomplete = walk.isIncomplete();
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
                if (one.facts.problem.isEmpty())
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
