#include "dicom/Sha256.h"

#include <QtEndian>

#include <openssl/evp.h>

#include <algorithm>

namespace dravolin {

namespace {

constexpr auto blockSize = static_cast<qsizetype>(shaBlockSize);

qsizetype wholeBlocks(QByteArrayView bytes)
{
    return bytes.size() / blockSize;
}

} // namespace

void Sha256::Free::operator()(EVP_MD_CTX *context) const
{
    EVP_MD_CTX_free(context);
}

Sha256::Sha256(By way)
{
    if (way == By::Processor)
        return;
    m_context.reset(EVP_MD_CTX_new());
    EVP_DigestInit_ex(m_context.get(), EVP_sha256(), nullptr);
}

void Sha256::add(QByteArrayView bytes)
{
    if (m_context) {
        EVP_DigestUpdate(m_context.get(), bytes.data(), static_cast<size_t>(bytes.size()));
        return;
    }
    const QByteArrayView rest = completeBlock(bytes);
    const qsizetype blocks = wholeBlocks(rest);
    addShaBlocks(m_state, rest.data(), static_cast<size_t>(blocks));
    const QByteArrayView begun = rest.sliced(blocks * blockSize);
    std::copy(begun.begin(), begun.end(), m_begun.begin() + m_begunSize);
    m_begunSize += begun.size();
}

void Sha256::addToBoth(Sha256 &one, Sha256 &other, QByteArrayView bytes)
{
    if (one.m_context || other.m_context) {
        one.add(bytes);
        other.add(bytes);
        return;
    }
    const QByteArrayView restOfOne = one.completeBlock(bytes);
    const QByteArrayView restOfOther = other.completeBlock(bytes);
    const qsizetype blocks = std::min(wholeBlocks(restOfOne), wholeBlocks(restOfOther));
    addShaBlocksToBoth(one.m_state, restOfOne.data(), other.m_state, restOfOther.data(),
                       static_cast<size_t>(blocks));
    const qsizetype done = blocks * blockSize;
    for (const auto &[hash, rest] : {std::pair(&one, restOfOne), std::pair(&other, restOfOther)}) {
        hash->m_size -= static_cast<quint64>(rest.size() - done); // add() counts them again
        hash->add(rest.sliced(done));
    }
}

QByteArrayView Sha256::completeBlock(QByteArrayView bytes)
{
    m_size += static_cast<quint64>(bytes.size());
    if (m_begunSize == 0)
        return bytes;
    const qsizetype missing = std::min(blockSize - m_begunSize, bytes.size());
    std::copy_n(bytes.begin(), missing, m_begun.begin() + m_begunSize);
    m_begunSize += missing;
    if (m_begunSize == blockSize) {
        addShaBlocks(m_state, m_begun.data(), 1);
        m_begunSize = 0;
    }
    return bytes.sliced(missing);
}

QByteArray Sha256::digits()
{
    return digest().toHex();
}

QByteArray Sha256::digest()
{
    if (m_context) {
        QByteArray digest(EVP_MAX_MD_SIZE, '\0');
        unsigned size = 0;
        EVP_DigestFinal_ex(m_context.get(), reinterpret_cast<unsigned char *>(digest.data()), &size);
        return digest.left(size);
    }
    const quint64 bits = qToBigEndian(m_size * 8);
    QByteArray end(1, '\x80');
    constexpr qsizetype lengthSize = sizeof(bits);
    while ((m_begunSize + end.size() + lengthSize) % blockSize != 0)
        end.append('\0');
    add(end + QByteArray(reinterpret_cast<const char *>(&bits), lengthSize));
    QByteArray digest(static_cast<qsizetype>(sizeof(m_state)), '\0');
    qToBigEndian<quint32>(m_state.data(), static_cast<qsizetype>(m_state.size()), digest.data());
    return digest;
}

} // namespace dravolin
