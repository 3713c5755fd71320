#pragma once

#include <QByteArray>

#include <openssl/types.h>

#include <memory>

namespace dravolin {

// SHA-256 of bytes that come piece by piece, by OpenSSL, which uses the processor's own instructions. An
// object belongs to one thread.
class Sha256
{
public:
    Sha256();
    void add(QByteArrayView bytes);
    // 64 hexadecimal digits; nothing can be added any more.
    [[nodiscard]] QByteArray digits();

private:
    struct Free
    {
        void operator()(EVP_MD_CTX *context) const;
    };
    std::unique_ptr<EVP_MD_CTX, Free> m_context;
};

} // namespace dravolin
