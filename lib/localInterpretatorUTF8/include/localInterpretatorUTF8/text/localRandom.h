// The random generator behind RAND: 15 bits, linear congruential, seeded anew by every new context.
#pragma once

#include <cstdint>

constexpr int localRandomMax = 32767;

void localRandomSeed(std::uint32_t seed);
// 0 to localRandomMax.
int localRandom();
