#include "check/LoadedModule.h"

#include "base/Files.h"
#include "base/Texts.h"

#include <dlfcn.h>
#include <link.h>

#include <cstring>
#include <filesystem>
#include <system_error>

namespace dravolin::check {

namespace {

// Whether a library ends behind its table of sections, the last thing in it: the system loads one that was
// cut off, and ends the program when it comes to what is missing.
bool isWhole(const QByteArray &library)
{
    ElfW(Ehdr) header = {};
    if (static_cast<size_t>(library.size()) < sizeof(header))
        return false;
    std::memcpy(&header, library.constData(), sizeof(header));
    const quint64 table = quint64(header.e_shnum) * header.e_shentsize;
    const auto size = static_cast<quint64>(library.size());
    return header.e_shoff <= size && table <= size - header.e_shoff;
}

LoadedModule failed(const QString &reason)
{
    return {nullptr, Texts::tr("GDCM, which reads the files, cannot be loaded: %1").arg(reason)};
}

} // namespace

QString modulePath()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) // a relative path would be one below the current folder
        return {};
    const std::filesystem::path module = program.parent_path() / DRAVOLIN_GDCM_MODULE;
    return fromBytes(QByteArray::fromStdString(module.lexically_normal().native()));
}

LoadedModule loadModule(const QString &path)
{
    const std::optional<QByteArray> bytes = readBytes(path);
    if (!bytes)
        return failed(Texts::tr("'%1' cannot be read").arg(path));
    if (!isWhole(*bytes))
        return failed(Texts::tr("'%1' is damaged").arg(path));
    // everything now: what is missing later would end the program
    void *const library = ::dlopen(systemPath(path).constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!library)
        return failed(fromBytes(::dlerror()));
    const auto entry = reinterpret_cast<GdcmModuleEntry>(::dlsym(library, gdcmModuleEntry));
    const GdcmModule *const module = entry ? entry(DRAVOLIN_VERSION) : nullptr;
    return module ? LoadedModule{module, {}}
                  : failed(Texts::tr("'%1' belongs to another version of the program").arg(path));
}

} // namespace dravolin::check
