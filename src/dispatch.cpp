// The index every stub jumps through, and the library's initialisation function that sets it.

#include "frame/layers.hpp"
#include "vorcore/vorcore.h"

extern "C" {

// 0 is the target u8, 1 the target n8. Zero-initialised, so that a call made before start-up, from
// the initialisation of another library, already finds a valid slot.
VORM_HIDDEN unsigned vorJumpIndexForMergedDLL;

// DT_INIT of the library (see the linker option in CMakeLists.txt), run by the loader once, before
// any entry can be called.
VORM_HIDDEN int vormInitialise()
{
    vorGetCpuFeatures(nullptr, nullptr);
    const uint64_t needed = VorCpuSsse3 | VorCpuSse41;
    vorJumpIndexForMergedDLL = (vorGetEnabledCpuFeatures() & needed) == needed ? 1 : 0;
    return 1;
}
}
