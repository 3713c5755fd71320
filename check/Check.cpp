#include "check/Check.h"

#include "base/Lines.h"
#include "base/NOXUtils.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "check/FileInHand.h"
#include "check/FileTree.h"
#include "check/Harvest.h"
#include "check/InOrder.h"

#include <algorithm>
#include <set>
#include <utility>

namespace dravolin::check {

namespace {

const QString backupSuffix = QStringLiteral(".bak");

// The files of both sides.
struct Trees
{
    FileTree originals;
    FileTree results;
    std::vector<qint32> named; // the result that has an original's name, for each original
    std::vector<bool> isMade;  // whether a result's name was made for it
};

void moveBackups(Trees &trees)
{
    PathList results;
    trees.originals = {.root = trees.results.root, .files = {}, .links = {}, .others = {}, .unlisted = {}};
    for (qsizetype i = 0; i < trees.results.files.size(); ++i) {
        const QString file = trees.results.files[i];
        (file.endsWith(backupSuffix) ? trees.originals.files : results).append(file);
    }
    trees.results.files = std::move(results);
}

void noteRenamed(Trees &trees, const CheckOptions &options)
{
    std::vector<bool> isRenamed(trees.named.size());
    const RenamedVisit note = [&](const QString &original, const QString &result) {
        const qsizetype from = trees.originals.files.indexOf(original);
        const qsizetype to = trees.results.files.indexOf(result);
        if (to != nobody)
            trees.isMade[static_cast<size_t>(to)] = true;
        if (from == nobody)
            return;
        trees.named[static_cast<size_t>(from)] = static_cast<qint32>(to);
        isRenamed[static_cast<size_t>(from)] = true;
    };
    if (options.renamed)
        options.renamed(note);
    for (size_t i = 0; i < isRenamed.size(); ++i) {
        if (isRenamed[i])
            continue;
        const QString file = trees.originals.files[static_cast<qsizetype>(i)];
        trees.named[i] = static_cast<qint32>(
            trees.results.files.indexOf(options.backups ? file.chopped(backupSuffix.size()) : file));
    }
}

Trees listBoth(const CheckOptions &options)
{
    Trees trees{.originals = {}, .results = listTree(options.result), .named = {}, .isMade = {}};
    if (options.backups)
        moveBackups(trees);
    else
        trees.originals = listTree(options.originals);
    trees.named.resize(static_cast<size_t>(trees.originals.files.size()), nobody);
    trees.isMade.resize(static_cast<size_t>(trees.results.files.size()));
    noteRenamed(trees, options);
    return trees;
}

class Checking
{
public:
    Checking(const CheckOptions &options, const CheckEvents &events)
        : m_options(options), m_events(events), m_trees(listBoth(options)),
          m_values(std::make_shared<Values>()),
          m_pairs(std::exchange(m_trees.named, {}), m_trees.results.files.size())
    {
        if (options.rules)
            m_rules.emplace(*options.rules);
    }

    CheckReport run()
    {
        noteUnlisted(m_trees.originals, UncheckedFile::Side::Original);
        noteUnlisted(m_trees.results, UncheckedFile::Side::Result);
        prepareValues();
        harvest();
        search();
        if (!isToEnd())
            finish();
        return std::move(m_report);
    }

private:
    void noteUnlisted(const FileTree &tree, UncheckedFile::Side side)
    {
        for (const QString &folder : tree.unlisted)
            m_report.unchecked.append({side, folder, Texts::tr("the folder cannot be listed")});
        for (const QString &other : tree.others)
            m_report.unchecked.append({side, other, Texts::tr("it is no regular file, and was not opened")});
        for (const FileTree::Link &link : tree.links)
            m_report.unchecked.append({side, link.path, Texts::tr("it is a link, and was not followed")});
    }

    void prepareValues()
    {
        if (m_rules) {
            for (const QString &value : m_rules->values())
                m_values->leaveOut(value);
        }
        for (const QString &value : m_options.setValues)
            m_values->leaveOut(value);
        for (const QString &line : m_options.identifiers)
            m_values->addListed(line);
    }

    void tell(bool searching, quint64 bytes)
    {
        m_progress.searching = searching;
        ++m_progress.files;
        m_progress.bytes += bytes;
        if (m_events.progress)
            m_events.progress(m_progress);
    }

    // What is told of a file of either side.
    void count(const FileRecord &record, const QString &path, UncheckedFile::Side side)
    {
        if (record.state == FileRecord::State::Damaged || record.state == FileRecord::State::Unreadable)
            m_report.unchecked.append({side, path, record.reason});
        if (record.state == FileRecord::State::Object)
            ++(side == UncheckedFile::Side::Original ? m_report.originalObjects : m_report.resultObjects);
        m_report.bytes += record.bytes;
    }

    [[nodiscard]] bool isToEnd() const { return m_events.stop && m_events.stop(); }

    // The name that an original had before it was a backup.
    [[nodiscard]] QString ownName(qsizetype index) const
    {
        const QString file = m_trees.originals.files[index];
        return m_options.backups ? file.chopped(backupSuffix.size()) : file;
    }

    // What of a result's name may tell something.
    [[nodiscard]] QString toldName(qsizetype result) const
    {
        return m_trees.isMade[static_cast<size_t>(result)] ? QString() : m_trees.results.files[result];
    }

    void takeValues(qsizetype index, const HarvestedFile &file)
    {
        for (const HarvestedValue &value : file.values)
            if (m_options.uids || value.valueClass != ValueClass::Uid)
                m_values->add(value.valueClass, value.source, value.text);
        m_values->addPath(ownName(index));
    }

    void harvest()
    {
        const PathList &files = m_trees.originals.files;
        m_progress.allFiles = files.size() + m_trees.results.files.size();
        const auto makeWorker = [this, &files] {
            return [this, &files, harvester = Harvester()](qsizetype index) mutable {
                const QString path = joinPath(m_trees.originals.root, files[index]);
                const FileInHand inHand(path);
                return harvester.harvest(loadFile(path));
            };
        };
        inOrder<HarvestedFile>(
            files.size(), m_options.workers, makeWorker,
            [&](qsizetype index, HarvestedFile &file) {
                count(file.record, files[index], UncheckedFile::Side::Original);
                m_pairs.addOriginal(file.record);
                takeValues(index, file);
                tell(false, file.record.bytes);
            },
            [this] { return isToEnd(); });
    }

    void search()
    {
        const PathList &files = m_trees.results.files;
        const Patterns &patterns = m_values->patterns();
        m_groups.emplace(patterns);
        const auto makeSearcher = [&] {
            return Searcher(patterns, m_rules ? &*m_rules : nullptr, m_options.pixels, m_options.ownTexts);
        };
        const auto makeWorker = [&] {
            return [&, searcher = makeSearcher()](qsizetype index) mutable {
                const QString path = joinPath(m_trees.results.root, files[index]);
                const FileInHand inHand(path);
                return searcher.search(loadFile(path), toldName(index));
            };
        };
        inOrder<SearchedFile>(
            files.size(), m_options.workers, makeWorker,
            [&](qsizetype index, SearchedFile &file) {
                count(file.record, files[index], UncheckedFile::Side::Result);
                m_pairs.addResult(file.record);
                take(files[index], file);
                tell(true, file.record.bytes);
            },
            [this] { return isToEnd(); });
        for (const FileTree::Link &link : m_trees.results.links)
            takeFindings(link.path, makeSearcher().searchLink(link.path, link.target));
    }

    void takeFindings(const QString &path, const QList<Finding> &findings)
    {
        m_groups->add(findings);
        if (m_events.findings && !findings.isEmpty())
            m_events.findings(path, findings, m_values->patterns());
    }

    void take(const QString &path, const SearchedFile &file)
    {
        takeFindings(path, file.findings);
        m_report.emptied += file.emptied;
        if (!file.record.mayShow.isEmpty())
            m_report.mayShowText.append({path, file.record.mayShow});
        std::set<std::pair<Tag, bool>> tags;
        for (const Deviation &deviation : file.deviations)
            tags.insert({deviation.tag, deviation.wanted});
        for (const auto &tag : tags)
            ++m_deviations[tag];
    }

    void finish()
    {
        m_report.values = m_values;
        m_report.pairing = m_pairs.pairing();
        for (const qsizetype index : m_report.pairing.noObjects)
            m_report.unchecked.append({UncheckedFile::Side::Result, m_trees.results.files[index],
                                       Texts::tr("its original is a DICOM object, and it is none")});
        for (const auto &[tag, files] : m_deviations)
            m_report.deviations.append({tagText(tag.first), attributeName(tag.first), tag.second, files});
        m_report.groups = m_groups->groups();
        m_report.files = m_groups->files();
        m_report.originalFiles = std::move(m_trees.originals.files);
        m_report.resultFiles = std::move(m_trees.results.files);
    }

    const CheckOptions &m_options;
    const CheckEvents &m_events;
    Trees m_trees;
    std::shared_ptr<Values> m_values;
    Pairs m_pairs;
    std::optional<Rules> m_rules;
    std::optional<FindingGroups> m_groups;
    std::map<std::pair<Tag, bool>, quint64> m_deviations; // files
    CheckProgress m_progress;
    CheckReport m_report;
};

} // namespace

bool CheckReport::found(Grade atLeast) const
{
    const auto end = files.cbegin() + static_cast<qsizetype>(atLeast) + 1;
    return !deviations.isEmpty() || std::any_of(files.cbegin(), end, [](quint64 count) { return count > 0; });
}

bool CheckReport::incomplete() const
{
    return !unchecked.isEmpty() || !values || values->searched() == 0 || resultFiles.isEmpty();
}

QStringList identifiersIn(const QString &text)
{
    QStringList identifiers;
    for (const QStringView line : lines(text)) {
        if (const QString value = NOXUtils::stringByTrimmingLeadingAndTrailingspaces(line); !value.isEmpty())
            identifiers.append(value);
    }
    return identifiers;
}

CheckReport check(const CheckOptions &options, const CheckEvents &events)
{
    return Checking(options, events).run();
}

} // namespace dravolin::check
