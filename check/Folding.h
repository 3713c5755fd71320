#pragma once

#include <QStringView>

#include <vector>

// Texts in the form in which they are compared. Pure functions, callable from any thread; none of them fails.
//
// A text is taken as its words: runs of letters, runs of digits (with single dots between digits, so that a
// UID or 31.01.1970 is one word), and each character of a script that puts no space between words. Case,
// accents and width do not count; ä, ae and a are one letter, as are ö, oe, o and ü, ue, u; ß is ss. What
// separates words does not count either.
namespace dravolin::check {

struct Word
{
    quint64 hash = 0;       // of the folded letters
    quint64 datePrefix = 0; // of the first eight digits of a longer run, a date with its time; else 0
    qsizetype start = 0;    // UTF-16 units of the text
    qsizetype end = 0;
    quint32 letters = 0;    // folded letters or digits
    bool digits = false;    // a run of digits
    bool ideograph = false; // one character of a script without spaces
    bool joined = false;    // nothing separates it from the word before
};

// The words of `text`, in order, behind those that are in `words` already.
void appendWords(QStringView text, std::vector<Word> &words);

[[nodiscard]] std::vector<Word> wordsOf(QStringView text);

// The hash of the word that the folded letters of both make when they are written as one.
[[nodiscard]] quint64 joinedHash(QStringView first, QStringView second);

// Two hashes, or a state and a hash, as one; the order counts.
[[nodiscard]] constexpr quint64 mixed(quint64 first, quint64 second)
{
    quint64 value =
        (first ^ (second + 0x9E3779B97F4A7C15U + (first << 6) + (first >> 2))) * 0xFF51AFD7ED558CCDU;
    value ^= value >> 33;
    value *= 0xC4CEB9FE1A85EC53U;
    return value ^ (value >> 29);
}

} // namespace dravolin::check
