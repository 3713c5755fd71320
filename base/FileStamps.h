#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// Whether files were touched, told without reading them. Any thread; nothing here is an error: what cannot
// be looked at is not there.
namespace dravolin {

// Differs when a file was written or replaced in between, and not when it was called something else for a
// while: the tools do so, and give back the name of a file that they could not write.
struct FileStamp
{
    quint64 device = 0;
    quint64 number = 0; // of the file in its file system
    qint64 size = 0;    // bytes
    qint64 written = 0; // nanoseconds

    bool operator==(const FileStamp &) const = default;
};

// Of the regular file at `path`, links followed; nothing when there is none.
[[nodiscard]] std::optional<FileStamp> fileStamp(const QString &path);

// The regular files of one folder, links followed, at the moment of construction.
class FolderStamps
{
public:
    struct Changes
    {
        quint64 changed = 0;   // written anew or replaced by a file that can be looked at
        QStringList unchanged; // names of all others, so that nobody takes what is lost for changed
    };

    // The files that "*" names to a shell. Hidden ones are left out.
    explicit FolderStamps(const QString &folder);
    // Those of these names. A name without a file is left out.
    FolderStamps(const QString &folder, const QStringList &names);

    [[nodiscard]] quint64 leftOut() const { return m_leftOut; }
    // What has become of the files; looks at them once more.
    [[nodiscard]] Changes changes() const;

private:
    struct Entry
    {
        QByteArray name;
        FileStamp stamp;
    };
    QByteArray m_folder;
    std::vector<Entry> m_entries;
    quint64 m_leftOut = 0;
};

} // namespace dravolin
