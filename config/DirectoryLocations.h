#pragma once

#include "config/AppPaths.h"

#include <QString>
#include <QVariantMap>

#include <optional>

// The per-user application support folder, created when it is first asked for. Any thread.
namespace dravolin {

enum class SearchPathDirectory { Desktop = 12, ApplicationSupport = 14 };
enum class SearchPathDomain { User = 1 };

// Why a folder could not be found or created.
struct LocationError
{
    QString domain;
    int code = 0;
    QVariantMap userInfo; // "NSLocalizedDescription" is the text for people
    [[nodiscard]] QString text() const;
};

// The system's directories of a kind, best first; empty when it has none.
[[nodiscard]] QStringList searchPathDirectories(const AppPaths &paths, SearchPathDirectory directory,
                                                SearchPathDomain domain);

// The first directory of that kind with `component` (unless empty) appended, created with all missing
// parents. On success `error` (may be null) is cleared; on failure the result is nothing and `error` holds
// domain "DirectoryLocationDomain", code 0 when the system has no such directory, else the system's error.
[[nodiscard]] std::optional<QString> findOrCreateDirectory(const AppPaths &paths,
                                                           SearchPathDirectory directory,
                                                           SearchPathDomain domain, const QString &component,
                                                           std::optional<LocationError> *error = nullptr);

// The application support folder with the executable's name appended; a failure is logged and gives nothing.
[[nodiscard]] std::optional<QString> applicationSupportDirectory(const AppPaths &paths);

// Where that folder is or would be, without creating it; "" when the system has no such place.
[[nodiscard]] QString applicationSupportPath(const AppPaths &paths);

} // namespace dravolin
