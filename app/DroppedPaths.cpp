#include "app/DroppedPaths.h"

#include "base/PathText.h"

#include <QMimeData>
#include <QSet>
#include <QSysInfo>
#include <QUrl>

namespace dravolin {

namespace {

// QUrl::toLocalFile would replace bytes that are not UTF-8.
QString localPath(const QUrl &url)
{
    if (!isLocalFile(url))
        return {};
    QString path = fromBytes(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

bool isLocalFile(const QUrl &url)
{
    const QString host = url.host();
    const bool thisHost = host.isEmpty() || host == QStringLiteral("localhost") ||
                          host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    // no file has a NUL in its name
    return url.isLocalFile() && thisHost && !url.path(QUrl::FullyEncoded).contains(QStringLiteral("%00"));
}

QStringList droppedPaths(const QMimeData &drag)
{
    QStringList paths;
    for (const QUrl &url : drag.urls())
        paths.append(localPath(url));
    return paths;
}

bool isPicture(const QString &path)
{
    static const QSet<QString> extensions = [] {
        const QString list =
            QStringLiteral("png jpg jpeg tiff pdf pic ps bmp pct pict eps mac pnt ico psd icns "
                           "nef dng tif jpf jp2 gif jfif");
        const QStringList items = list.split(u' ');
        return QSet<QString>(items.cbegin(), items.cend());
    }();
    return extensions.contains(pathExtension(path).toLower());
}

} // namespace dravolin
