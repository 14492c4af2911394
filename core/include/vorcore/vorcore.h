/* vorcore: what the vorm library asks its machine. C99. Every function may be called from any
 * thread. */
#ifndef VORCORE_VORCORE_H
#define VORCORE_VORCORE_H

#include <stdint.h>

#define VORCORE_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* Processor features, as bits of a 64-bit mask. The AVX bits also mean that the operating system
 * saves the wider registers. */
#define VorCpuMmx UINT64_C(0x1)
#define VorCpuSse UINT64_C(0x2)
#define VorCpuSse2 UINT64_C(0x4)
#define VorCpuSse3 UINT64_C(0x8)
#define VorCpuSsse3 UINT64_C(0x10)
#define VorCpuSse41 UINT64_C(0x20)
#define VorCpuSse42 UINT64_C(0x40)
#define VorCpuPopcnt UINT64_C(0x80)
#define VorCpuAvx UINT64_C(0x100)
#define VorCpuFma UINT64_C(0x200)
#define VorCpuAvx2 UINT64_C(0x400)

enum { VorCoreOk = 0, VorCoreBadArgument = -2, VorCoreNullPointer = -8, VorCoreUnknown = -9999 };

/* Stores the features this processor has, and the registers eax, ebx, ecx, edx of cpuid leaf 1
 * (cpuidRegisters has room for 4). Either pointer may be null. Returns VorCoreOk. */
VORCORE_API int vorGetCpuFeatures(uint64_t* features, uint32_t* cpuidRegisters);

/* The features that libraries are to use: those the processor has. */
VORCORE_API uint64_t vorGetEnabledCpuFeatures(void);

/* Number of threads that a parallel call of the calling thread may use, at least 1: what
 * vorSetNumThreadsLocal set for this thread, else what vorSetNumThreads set, else the default. The
 * default is the environment's VORM_NUM_THREADS where that is a positive number, else the first number
 * of OMP_NUM_THREADS, else the processors this process may run on, by its affinity mask and by the
 * quota of its control groups (rounded up). It is found out at the first question and then stands.
 *
 * A child of fork() begins anew with a default of 1: it runs everything on one thread until it sets a
 * number itself. Not every OpenMP runtime can start threads in a child whose parent had some. */
VORCORE_API int32_t ownGetNumThreads(void);

/* The same number, for callers: returns VorCoreOk, or VorCoreNullPointer. */
VORCORE_API int vorGetNumThreads(int32_t* threads);

/* Sets it for the whole process; 0 goes back to the default, below 0 is VorCoreBadArgument. */
VORCORE_API int vorSetNumThreads(int32_t threads);

/* Sets it for the calling thread alone; 0 goes back to the number of the process. */
VORCORE_API int vorSetNumThreadsLocal(int32_t threads);

/* Size in bytes of the largest data or unified cache. VorCoreNullPointer without a place to put
 * it, VorCoreUnknown (and nothing stored) where the processor does not tell. It is found out
 * at the first question. */
VORCORE_API int vorGetMaxCacheSizeB(int* sizeBytes);

#ifdef __cplusplus
}
#endif

#endif
