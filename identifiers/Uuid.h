#pragma once

#include <QString>

// UUIDs as texts and numbers. Callable from any thread; nothing here fails.
namespace dravolin::NOXUtils {

// A source of fresh random UUIDs; the only seam between identifiers and chance.
class UuidSource
{
public:
    virtual ~UuidSource() = default;
    // A new UUID at every call: 36 characters, 8-4-4-4-12 upper-case hexadecimal digits joined by "-".
    [[nodiscard]] virtual QString uniqueString() = 0;
};

// Random (version 4) UUIDs of RFC 4122 from the platform's generator. Callable from any thread.
class RandomUuidSource : public UuidSource
{
public:
    [[nodiscard]] QString uniqueString() override;
};

// The 32 hexadecimal digits of `uuid` (any case, with or without "-") as one unsigned big-endian number in
// base 10: no sign, no leading zeros, "0" for zero, at most 39 digits (ITU-T X.667, DICOM PS3.5 B.2).
[[nodiscard]] QString decimalRepresentationOfUUID(const QString &uuid);

} // namespace dravolin::NOXUtils
