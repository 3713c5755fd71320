#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The secret of a project, from which new UIDs come: the same old UID gives the same new one on every machine
// that has the key, and nobody without it can tell which old UID it was. Any thread.
namespace dravolin {

class ProjectKey
{
public:
    static constexpr qsizetype size = 32; // bytes
    explicit ProjectKey(const QByteArray &bytes) : m_bytes(bytes) {}

    // The key in the file at `path`, 64 hexadecimal digits; made there, readable for its owner alone, when
    // there is no such file. Nothing when it can be neither read nor made; `problem` then gets a text for
    // people.
    [[nodiscard]] static std::optional<ProjectKey> readOrMake(const QString &path, QString *problem);
    // The same without making one: nothing and no problem for a missing file.
    [[nodiscard]] static std::optional<ProjectKey> read(const QString &path, QString *problem);

    // 2.25 and the first 128 bits of the HMAC-SHA-256 of `old`, made a UUID of version 8 (RFC 9562).
    [[nodiscard]] QByteArray newUid(const QByteArray &old) const;
    // By how many days the dates of a patient are moved back, one to ten years: the same for all of them.
    [[nodiscard]] int daysBack(const QByteArray &patient) const;
    // Eight letters and digits for the name of a file or folder, which tell nothing about `uid`.
    [[nodiscard]] QString shortName(const QByteArray &uid) const;

private:
    QByteArray m_bytes;
};

} // namespace dravolin
