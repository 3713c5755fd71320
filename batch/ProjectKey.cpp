#include "batch/ProjectKey.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "dicom/SourceFile.h"
#include "identifiers/Uuid.h"

#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <QtEndian>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dravolin {

namespace {

bool isReadableForOthers(const QString &path)
{
    struct stat attributes = {};
    constexpr mode_t others = 0077;
    return ::stat(systemPath(path).constData(), &attributes) == 0 && (attributes.st_mode & others) != 0;
}

QByteArray randomBytes()
{
    QByteArray bytes(ProjectKey::size, Qt::Uninitialized);
    QRandomGenerator::system()->generate(bytes.begin(), bytes.end());
    return bytes;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    const Descriptor file(
        ::open(systemPath(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    return file.isOpen() &&
           ::write(file.get(), bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size() &&
           ::fsync(file.get()) == 0;
}

// Several machines may do this at once: the first one's key stays, and nobody sees half of one.
bool writeKey(const QString &path, const QByteArray &digits)
{
    const QString temporary = path + u'.' + QString::fromLatin1(randomBytes().toHex());
    const bool isMade =
        writeFile(temporary, digits) &&
        (::link(systemPath(temporary).constData(), systemPath(path).constData()) == 0 || errno == EEXIST);
    const int error = errno;
    removeFile(temporary);
    errno = error;
    return isMade;
}

} // namespace

std::optional<ProjectKey> ProjectKey::read(const QString &path, QString *problem)
{
    if (!pathExists(path))
        return std::nullopt;
    const QByteArray bytes = QByteArray::fromHex(readBytes(path).value_or(QByteArray()).trimmed());
    if (bytes.size() != size)
        *problem = Texts::tr("the key file %1 does not hold 64 hexadecimal digits").arg(path);
    else if (isReadableForOthers(path))
        *problem = Texts::tr("the key file %1 can be read by others; chmod 600 makes it secret").arg(path);
    return problem->isEmpty() ? std::optional(ProjectKey(bytes)) : std::nullopt;
}

std::optional<ProjectKey> ProjectKey::readOrMake(const QString &path, QString *problem)
{
    if (!pathExists(path) && !writeKey(path, randomBytes().toHex() + '\n')) {
        *problem = Texts::tr("the key file %1 cannot be written: %2")
                       .arg(path, QString::fromLocal8Bit(std::strerror(errno)));
        return std::nullopt;
    }
    std::optional<ProjectKey> key = read(path, problem);
    if (!key && problem->isEmpty()) // a link that leads nowhere
        *problem = Texts::tr("the key file %1 cannot be read").arg(path);
    return key;
}

QString ProjectKey::shortName(const QByteArray &uid) const
{
    constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";
    constexpr qsizetype length = 8;
    const QByteArray bytes =
        QMessageAuthenticationCode::hash("name " + uid, m_bytes, QCryptographicHash::Sha256);
    QString name;
    for (qsizetype i = 0; i < length; ++i)
        name += QLatin1Char(alphabet[bytes.at(i) & 0x1f]);
    return name;
}

int ProjectKey::daysBack(const QByteArray &patient) const
{
    constexpr quint32 fewest = 366;
    constexpr quint32 most = 3652;
    const QByteArray bytes =
        QMessageAuthenticationCode::hash("dates " + patient, m_bytes, QCryptographicHash::Sha256);
    return static_cast<int>(fewest + qFromBigEndian<quint32>(bytes.constData()) % (most - fewest + 1));
}

QByteArray ProjectKey::newUid(const QByteArray &old) const
{
    constexpr qsizetype uuidSize = 16;
    QByteArray bytes =
        QMessageAuthenticationCode::hash(old, m_bytes, QCryptographicHash::Sha256).first(uuidSize);
    bytes[6] = static_cast<char>((bytes.at(6) & 0x0f) | 0x80);
    bytes[8] = static_cast<char>((bytes.at(8) & 0x3f) | 0x80);
    return "2.25." + NOXUtils::decimalRepresentationOfUUID(QString::fromLatin1(bytes.toHex())).toLatin1();
}

} // namespace dravolin
