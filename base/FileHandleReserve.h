#pragma once

#include <vector>

namespace dravolin {

// File handles that are kept open so that there are some when all others are taken, whoever took them:
// without a single one a window cannot be painted and a thread cannot be started. One thread at a time.
class FileHandleReserve
{
public:
    FileHandleReserve() { fill(); }
    ~FileHandleReserve() { release(); }
    FileHandleReserve(const FileHandleReserve &) = delete;
    FileHandleReserve &operator=(const FileHandleReserve &) = delete;

    // Takes them again when they were released, if as many are then left for others.
    void fill();
    // Gives all of them to others when no other is to be had. Costs two system calls.
    void releaseWhenScarce();
    // Lets the process's table of handles have places for all of them. To be called before there is a second
    // thread: from then on the table grows only when the kernel has waited for all processors, several
    // milliseconds long.
    static void makeRoom();

private:
    void release();

    std::vector<int> m_handles;
};

} // namespace dravolin
