#pragma once

#include "base/Lines.h"
#include "base/NOXUtils.h"
#include "base/PathText.h"
#include "config/Columns.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>

// What the programs of this folder share. Each of them says what has to hold for every input; where it does
// not, the process ends, and libFuzzer keeps the input.
namespace dravolin::fuzz {

inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

// Whether `text` is one line without blanks at its ends.
inline bool isTrimmedLine(const QString &text)
{
    return indexOfNewline(text, 0) == text.size() && NOXUtils::trimmed(text).size() == text.size();
}

// The words that a shell makes of `text`, which holds nothing but blanks, words, and what stands between
// double quotes; nothing when a quote is left open.
inline std::optional<QStringList> shellWords(QStringView text)
{
    QStringList words;
    bool inQuotes = false;
    bool inWord = false;
    for (const QChar c : text) {
        if (c == u'"') {
            inQuotes = !inQuotes;
        } else if (c == u' ' && !inQuotes) {
            inWord = false;
            continue;
        }
        if (!inWord)
            words.append(QString());
        inWord = true;
        if (c != u'"')
            words.last() += c;
    }
    return inQuotes ? std::nullopt : std::optional(words);
}

// Whether a shell finds nothing to do in `text` when it stands between double quotes.
inline bool isPlainInQuotes(QStringView text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) { return QStringView(u"\"$`\\").contains(c); });
}

} // namespace dravolin::fuzz
