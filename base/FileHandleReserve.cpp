#include "base/FileHandleReserve.h"

#include <QtGlobal>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

namespace dravolin {

namespace {

constexpr qsizetype reserved = 32;

int openHandle()
{
    return ::open("/dev/null", O_RDONLY | O_CLOEXEC);
}

} // namespace

void FileHandleReserve::makeRoom()
{
    constexpr int lastPlace = 255; // a window has about 20 others
    const int handle = openHandle();
    ::close(::fcntl(handle, F_DUPFD_CLOEXEC, lastPlace)); // a process that may not have so many does without
    ::close(handle);
}

void FileHandleReserve::fill()
{
    if (!m_handles.empty())
        return;
    std::vector<int> handles(size_t{2 * reserved});
    std::generate(handles.begin(), handles.end(), openHandle);
    const bool enough = handles.back() >= 0;
    const auto kept = handles.begin() + (enough ? reserved : 0);
    m_handles.assign(handles.begin(), kept);
    std::for_each(kept, handles.end(), ::close); // -1 is none, and is left alone
}

void FileHandleReserve::releaseWhenScarce()
{
    const int handle = openHandle();
    if (handle < 0)
        release();
    else
        ::close(handle);
}

void FileHandleReserve::release()
{
    for (const int handle : m_handles)
        ::close(handle);
    m_handles.clear();
}

} // namespace dravolin
