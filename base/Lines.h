#pragma once

#include <QList>
#include <QStringView>

// The lines of a text. Pure functions, callable from any thread; none of them fails.
namespace dravolin {

// True for LF, VT, FF, CR, U+0085, U+2028 and U+2029.
[[nodiscard]] bool isNewline(QChar c);

// The index of the first newline character of `text` at or behind `from`, or its size when there is none.
// Made for texts of many megabytes.
[[nodiscard]] qsizetype indexOfNewline(QStringView text, qsizetype from);

// Calls `visit` with each line of `text`: the text cut at every newline character, so that CR LF gives an
// empty line between the two and an empty text one empty line. The views point into the argument.
template <typename Visit>
void forEachLine(QStringView text, Visit &&visit)
{
    for (qsizetype start = 0; start <= text.size();) {
        const qsizetype end = indexOfNewline(text, start);
        visit(text.sliced(start, end - start));
        start = end + 1;
    }
}

// The same lines as a list.
[[nodiscard]] QList<QStringView> lines(QStringView text);

} // namespace dravolin
