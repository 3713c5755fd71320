#include "dicom/Sha256.h"

#include <openssl/evp.h>

namespace dravolin {

void Sha256::Free::operator()(EVP_MD_CTX *context) const
{
    EVP_MD_CTX_free(context);
}

Sha256::Sha256() : m_context(EVP_MD_CTX_new())
{
    EVP_DigestInit_ex(m_context.get(), EVP_sha256(), nullptr);
}

void Sha256::add(QByteArrayView bytes)
{
    EVP_DigestUpdate(m_context.get(), bytes.data(), static_cast<size_t>(bytes.size()));
}

QByteArray Sha256::digits()
{
    QByteArray digest(EVP_MAX_MD_SIZE, '\0');
    unsigned size = 0;
    EVP_DigestFinal_ex(m_context.get(), reinterpret_cast<unsigned char *>(digest.data()), &size);
    return digest.left(size).toHex();
}

} // namespace dravolin
