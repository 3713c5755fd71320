#pragma once

#include "base/Files.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace dravolin::test {

// A temporary folder and the odd things that a test puts into it, made with the system's own calls. A name
// may be any that the file system allows; a failure to make something fails the test.
class ScratchFolder
{
public:
    ScratchFolder() = default;
    // QTemporaryDir cannot remove names that are not UTF-8
    ~ScratchFolder() { std::filesystem::remove_all(m_folder.path().toStdString(), m_ignored); }
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString path(const QString &name) const { return joinPath(m_folder.path(), name); }

    QString file(const QString &name, const QByteArray &content = {}) const
    {
        FILE *stream = std::fopen(bytes(name).constData(), "wb");
        const auto size = static_cast<size_t>(content.size());
        check(stream && std::fwrite(content.constData(), 1, size, stream) == size &&
              std::fclose(stream) == 0);
        return path(name);
    }
    // The parent folder has to exist.
    QString folder(const QString &name) const
    {
        check(::mkdir(bytes(name).constData(), 0777) == 0);
        return path(name);
    }
    QString link(const QString &name, const QString &target) const
    {
        check(::symlink(toBytes(target).constData(), bytes(name).constData()) == 0);
        return path(name);
    }
    QString pipe(const QString &name) const
    {
        check(::mkfifo(bytes(name).constData(), 0600) == 0);
        return path(name);
    }
    // A file that can be executed.
    QString program(const QString &name, const QByteArray &text) const
    {
        file(name, text);
        check(::chmod(bytes(name).constData(), 0755) == 0);
        return path(name);
    }

private:
    [[nodiscard]] QByteArray bytes(const QString &name) const { return toBytes(path(name)); }
    static void check(bool made)
    {
        if (!made)
            QTest::qFail("something could not be put into the scratch folder", __FILE__, __LINE__);
    }

    QTemporaryDir m_folder;
    std::error_code m_ignored;
};

} // namespace dravolin::test
