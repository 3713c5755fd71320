#pragma once

// Arithmetic on rows of words as BigIntWords.h has them.

#include "identifiers/BigIntWords.h"

#include <QtGlobal>

namespace dravolin::words {

// Two's complement in place; the value that has only its top bit set stays as it is.
inline void negate(quint32 *words, qint32 size)
{
    quint64 carry = 1;
    for (qint32 i = 0; i < size; ++i) {
        carry += low(~quint64{words[i]});
        words[i] = low(carry);
        carry >>= 32;
    }
}

// left -= right; the result is the borrow, 0 or 1.
inline quint32 subtract(quint32 *left, const quint32 *right, qint32 size)
{
    quint64 borrow = 0;
    for (qint32 i = 0; i < size; ++i) {
        const quint64 difference = quint64{left[i]} - right[i] - borrow;
        left[i] = low(difference);
        borrow = difference >> 63;
    }
    return low(borrow);
}

// left += right; the result is the carry, 0 or 1.
inline quint32 add(quint32 *left, const quint32 *right, qint32 size)
{
    quint64 carry = 0;
    for (qint32 i = 0; i < size; ++i) {
        carry += quint64{left[i]} + right[i];
        left[i] = low(carry);
        carry >>= 32;
    }
    return low(carry);
}

// sum += factor * row; the result is the word carried out.
inline quint32 addMultiple(quint32 *sum, const quint32 *row, qint32 size, quint32 factor)
{
    quint64 carry = 0;
    for (qint32 i = 0; i < size; ++i) {
        carry += quint64{factor} * row[i] + sum[i];
        sum[i] = low(carry);
        carry >>= 32;
    }
    return low(carry);
}

// sum += (lowFactor + highFactor * b) * row, where the words above sum are zero; the result is what is
// carried out, of two words. Two rows at once take little longer than one, as their carries do not wait for
// each other.
inline quint64 addTwoMultiples(quint32 *sum, const quint32 *row, qint32 size, quint32 lowFactor,
                               quint32 highFactor)
{
    quint64 lowCarry = 0;
    quint64 highCarry = 0;
    quint32 wordBefore = 0;
    for (qint32 i = 0; i < size; ++i) {
        lowCarry += quint64{lowFactor} * row[i] + sum[i];
        highCarry += quint64{highFactor} * wordBefore + low(lowCarry);
        sum[i] = low(highCarry);
        wordBefore = row[i];
        lowCarry >>= 32;
        highCarry >>= 32;
    }
    return quint64{highFactor} * wordBefore + lowCarry + highCarry;
}

// number = number * factor + summand; the result is the word carried out.
inline quint32 multiplyAndAdd(quint32 *number, qint32 size, quint32 factor, quint32 summand)
{
    quint64 carry = summand;
    for (qint32 i = 0; i < size; ++i) {
        carry += quint64{factor} * number[i];
        number[i] = low(carry);
        carry >>= 32;
    }
    return low(carry);
}

// number mod divisor.
[[nodiscard]] inline quint32 remainder(const quint32 *number, qint32 size, quint32 divisor)
{
    quint64 rest = 0;
    for (qint32 i = size - 1; i >= 0; --i)
        rest = ((rest << 32) | number[i]) % divisor;
    return low(rest);
}

// number /= divisor; the result is the remainder.
inline quint32 divide(quint32 *number, qint32 size, quint32 divisor)
{
    quint64 rest = 0;
    for (qint32 i = size - 1; i >= 0; --i) {
        rest = (rest << 32) | number[i];
        number[i] = low(rest / divisor);
        rest %= divisor;
    }
    return low(rest);
}

} // namespace dravolin::words
