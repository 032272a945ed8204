#include "localInterpretatorUTF8/text/localRandom.h"

namespace {
std::uint32_t state = 1;
}

void localRandomSeed(std::uint32_t seed) {
    state = seed;
}

int localRandom() {
    state = state * 214013U + 2531011U;
    return static_cast<int>(state >> 16 & 0x7FFF);
}
