#pragma once

#include <QTest>

#include <unistd.h>

namespace dravolin::test {

// While it lives, permissions count: a process of root takes the rights of another user. What that user is to
// reach has to be made while this lives.
class AsOrdinaryUser
{
public:
    AsOrdinaryUser()
    {
        if (m_isRoot && (::setegid(nobody) != 0 || ::seteuid(nobody) != 0))
            QTest::qFail("the rights of root could not be given up", __FILE__, __LINE__);
    }
    ~AsOrdinaryUser()
    {
        if (m_isRoot && (::seteuid(0) != 0 || ::setegid(0) != 0))
            QTest::qFail("the rights of root could not be taken back", __FILE__, __LINE__);
    }
    AsOrdinaryUser(const AsOrdinaryUser &) = delete;
    AsOrdinaryUser &operator=(const AsOrdinaryUser &) = delete;

private:
    static constexpr unsigned nobody = 65534;
    const bool m_isRoot = ::geteuid() == 0;
};

} // namespace dravolin::test
