#include "RunFiles.h"

#include "base/Files.h"

#include <QFile>
#include <QtEndian>

#include <cstdio>
#include <cstdlib>

namespace dravolin::bench {

void require(bool done, const char *what)
{
    if (done)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(2);
}

QString folderOf(const RunSet &set, const QString &top, int number)
{
    return set.folders == 1 ? top : top + QStringLiteral("/%1/%2").arg(number / 20).arg(number % 20);
}

void makeRunFiles(const RunSet &set, const QByteArray &header, const QString &top)
{
    const QByteArray number = "1234567";
    const qsizetype first = header.indexOf(number);
    const qsizetype second = header.lastIndexOf(number);
    const qsizetype pixels = set.size - header.size();
    require(first > 0 && pixels > 0, "the image could not be made");
    QByteArray length(4, '\0');
    qToLittleEndian(static_cast<quint32>(pixels), length.data());
    QByteArray image = header + QByteArray("\xe0\x7f\x10\x00OW\0\0", 8) + length + QByteArray(pixels, 'x');
    for (int i = 0; i < set.folders * set.files; ++i) {
        const QString target = folderOf(set, top, i / set.files);
        require(createFolder(target), "a folder could not be made");
        for (const qsizetype at : {first, second})
            image.replace(at, number.size(), QByteArray::number(1'000'000 + i));
        QFile file(target + QStringLiteral("/IM%1").arg(i));
        require(file.open(QIODevice::WriteOnly) && file.write(image) == image.size(),
                "a file could not be written");
    }
}

} // namespace dravolin::bench
