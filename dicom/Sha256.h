#pragma once

#include "dicom/ShaBlocks.h"

#include <QByteArray>

#include <openssl/types.h>

#include <array>
#include <memory>

namespace dravolin {

// SHA-256 of bytes that come piece by piece, by the processor's own instructions where it has them, else by
// OpenSSL. An object belongs to one thread.
class Sha256
{
public:
    enum class By { Processor, Library };
    Sha256() : Sha256(hasShaInstructions() ? By::Processor : By::Library) {}
    explicit Sha256(By way); // not By::Processor without its instructions

    void add(QByteArrayView bytes);
    // The same bytes to both, in hardly more time than to one.
    static void addToBoth(Sha256 &one, Sha256 &other, QByteArrayView bytes);
    // 64 hexadecimal digits; nothing can be added any more.
    [[nodiscard]] QByteArray digits();

private:
    // Completes a block that was begun, if any; gives the bytes that are left.
    [[nodiscard]] QByteArrayView completeBlock(QByteArrayView bytes);
    [[nodiscard]] QByteArray digest();

    struct Free
    {
        void operator()(EVP_MD_CTX *context) const;
    };
    std::unique_ptr<EVP_MD_CTX, Free> m_context; // By::Library
    ShaState m_state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                        0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<char, shaBlockSize> m_begun = {}; // a part of a block
    qsizetype m_begunSize = 0;
    quint64 m_size = 0; // of all that was added
};

} // namespace dravolin
