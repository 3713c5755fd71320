#include "base/FileHandleReserve.h"

#include <fcntl.h>
#include <unistd.h>

namespace dravolin {

namespace {

constexpr size_t reserved = 32;

int openHandle()
{
    return ::open("/dev/null", O_RDONLY | O_CLOEXEC);
}

} // namespace

void FileHandleReserve::fill()
{
    std::vector<int> handles;
    while (handles.size() < 2 * reserved - m_handles.size()) {
        const int handle = openHandle();
        if (handle < 0)
            break;
        handles.push_back(handle);
    }
    const bool enough = handles.size() == 2 * reserved - m_handles.size();
    while (enough && m_handles.size() < reserved) {
        m_handles.push_back(handles.back());
        handles.pop_back();
    }
    for (const int handle : handles)
        ::close(handle);
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
