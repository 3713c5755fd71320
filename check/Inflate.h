#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace dravolin::check {

struct Inflated
{
    QByteArray bytes;
    qsizetype used = 0;    // bytes of the input
    bool complete = false; // the stream came to its end below the limit
};

// The bytes of a stream compressed by Deflate without header (RFC 1951), up to `limit`. Any thread.
[[nodiscard]] Inflated inflate(QByteArrayView stream, qsizetype limit);

} // namespace dravolin::check
