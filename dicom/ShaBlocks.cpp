#include "dicom/ShaBlocks.h"

#ifdef __x86_64__
#include <cpuid.h>
#include <immintrin.h>
#endif

namespace dravolin {

#ifdef __x86_64__

namespace {

#define DRAVOLIN_SHA __attribute__((target("sha,sse4.1")))

alignas(16) constexpr std::uint32_t roundConstants[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

// One hash on its way through the blocks.
class Lane
{
public:
    DRAVOLIN_SHA Lane(ShaState &state, const char *blocks)
        : m_state(state), m_block(reinterpret_cast<const __m128i *>(blocks))
    {
        // the instructions want the words in this order
        m_abef = _mm_set_epi32(word(0), word(1), word(4), word(5));
        m_cdgh = _mm_set_epi32(word(2), word(3), word(6), word(7));
    }

    DRAVOLIN_SHA void beginBlock()
    {
        const __m128i bigEndian = _mm_set_epi64x(0x0c0d0e0f08090a0b, 0x0405060700010203);
        m_abefBefore = m_abef;
        m_cdghBefore = m_cdgh;
        m_first = _mm_shuffle_epi8(_mm_loadu_si128(m_block), bigEndian);
        m_second = _mm_shuffle_epi8(_mm_loadu_si128(m_block + 1), bigEndian);
        m_third = _mm_shuffle_epi8(_mm_loadu_si128(m_block + 2), bigEndian);
        m_fourth = _mm_shuffle_epi8(_mm_loadu_si128(m_block + 3), bigEndian);
        m_block += 4;
    }

    // Four of the 64 rounds, with four words of the message; makes four for later rounds.
    DRAVOLIN_SHA void addRounds(const std::uint32_t *constants)
    {
        const auto *four = reinterpret_cast<const __m128i *>(constants);
        const __m128i sum = _mm_add_epi32(m_first, _mm_load_si128(four));
        m_cdgh = _mm_sha256rnds2_epu32(m_cdgh, m_abef, sum);
        m_abef = _mm_sha256rnds2_epu32(m_abef, m_cdgh, _mm_shuffle_epi32(sum, 0x0e));
        const __m128i sixteen = _mm_sha256msg1_epu32(m_first, m_second);
        const __m128i seven = _mm_alignr_epi8(m_fourth, m_third, 4);
        m_first = m_second;
        m_second = m_third;
        m_third = m_fourth;
        m_fourth = _mm_sha256msg2_epu32(_mm_add_epi32(sixteen, seven), m_third);
    }

    DRAVOLIN_SHA void endBlock()
    {
        m_abef = _mm_add_epi32(m_abef, m_abefBefore);
        m_cdgh = _mm_add_epi32(m_cdgh, m_cdghBefore);
    }

    DRAVOLIN_SHA void finish()
    {
        m_state = {part<3>(m_abef), part<2>(m_abef), part<3>(m_cdgh), part<2>(m_cdgh),
                   part<1>(m_abef), part<0>(m_abef), part<1>(m_cdgh), part<0>(m_cdgh)};
    }

private:
    [[nodiscard]] int word(std::size_t i) const { return static_cast<int>(m_state.at(i)); }
    template <int number>
    DRAVOLIN_SHA static std::uint32_t part(__m128i four)
    {
        return static_cast<std::uint32_t>(_mm_extract_epi32(four, number));
    }

    ShaState &m_state;
    const __m128i *m_block;
    __m128i m_abef;
    __m128i m_cdgh;
    __m128i m_abefBefore;
    __m128i m_cdghBefore;
    __m128i m_first; // words of the message
    __m128i m_second;
    __m128i m_third;
    __m128i m_fourth;
};

// In turns.
template <typename... Lanes>
DRAVOLIN_SHA void addBlocks(std::size_t count, Lanes... lanes)
{
    for (std::size_t block = 0; block < count; ++block) {
        (lanes.beginBlock(), ...);
#pragma GCC unroll 16
        for (int round = 0; round < 64; round += 4)
            (lanes.addRounds(roundConstants + round), ...);
        (lanes.endBlock(), ...);
    }
    (lanes.finish(), ...);
}

} // namespace

bool hasShaInstructions()
{
    constexpr unsigned leaf = 7;
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    static const bool has = __get_cpuid_count(leaf, 0, &a, &b, &c, &d) == 1 && (b & bit_SHA) != 0 &&
                            __builtin_cpu_supports("sse4.1");
    return has;
}

void addShaBlocks(ShaState &state, const char *blocks, std::size_t count)
{
    addBlocks(count, Lane(state, blocks));
}

void addShaBlocksToBoth(ShaState &one, const char *blocksOfOne, ShaState &other, const char *blocksOfOther,
                        std::size_t count)
{
    addBlocks(count, Lane(one, blocksOfOne), Lane(other, blocksOfOther));
}

#else

bool hasShaInstructions()
{
    return false;
}

void addShaBlocks(ShaState &, const char *, std::size_t)
{
}

void addShaBlocksToBoth(ShaState &, const char *, ShaState &, const char *, std::size_t)
{
}

#endif

} // namespace dravolin
