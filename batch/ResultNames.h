#pragma once

#include "batch/Plan.h"
#include "batch/ProjectKey.h"

#include <QHash>
#include <QSet>

namespace dravolin {

// Names for the results of a case, which come from series and instance, never from the source's names.
class ResultNames
{
public:
    // What a DICOMDIR names has eight characters and no dot.
    ResultNames(const ProjectKey &key, bool forDirectory) : m_key(key), m_forDirectory(forDirectory) {}

    // Relative to the destination. Objects with one UID get different names, by their order.
    [[nodiscard]] QString next(const PlannedFile &file);

private:
    [[nodiscard]] QString stem(const PlannedFile &file, int copy);

    const ProjectKey &m_key;
    bool m_forDirectory;
    QByteArray m_series; // of the file before, and the folder of its result
    QString m_folder;
    QSet<quint64> m_given;        // hashes of the names of first ones
    QHash<quint64, int> m_copies; // of those that were given again, how often
};

} // namespace dravolin
