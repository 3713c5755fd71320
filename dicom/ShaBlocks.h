#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// The compression function of SHA-256 (FIPS 180-4, 6.2.2) by the processor's own instructions, for one or two
// hashes at a time. These instructions make a hash wait for its own last step most of the time; a second hash
// in between costs next to nothing, and no library that Debian has offers that for bytes that come piece by
// piece. Any thread.
namespace dravolin {

using ShaState = std::array<std::uint32_t, 8>;
inline constexpr std::size_t shaBlockSize = 64; // bytes

// Whether the processor has the instructions. Without them nothing else here may be called.
[[nodiscard]] bool hasShaInstructions();

void addShaBlocks(ShaState &state, const char *blocks, std::size_t count);
// `count` blocks of its own to each of two hashes; the bytes may overlap.
void addShaBlocksToBoth(ShaState &one, const char *blocksOfOne, ShaState &other, const char *blocksOfOther,
                        std::size_t count);

} // namespace dravolin
