// Declares the layers below an exported stub. A subsystem's layers.hpp applies VORM_LAYERS to its
// function list, so that a definition whose parameters drift from the prototype does not compile.
#pragma once

#include "vorm/status.h"

#define VORM_HIDDEN __attribute__((visibility("hidden")))

// For the templates a named layer consists of: the layer is then one function, without a call.
#define VORM_INLINE [[gnu::always_inline]] inline
#define VORM_INLINE_LAMBDA __attribute__((always_inline))
// For templates that are compiled once for the whole library, and not again for what a caller is known to pass.
#ifdef __clang__
#define VORM_SHARED [[gnu::noinline]]
#else
#define VORM_SHARED [[gnu::noinline, gnu::noclone]]
#endif

// No layer is inlined into another one, even within a module: the step between them stays a jump.
#define VORM_LAYERS(name, parameters)                                                             \
    VORM_LAYER VormStatus n8_##name parameters;         /* public layer                        */ \
    VORM_LAYER VormStatus n8_ownOMP_##name parameters;  /* team-parallel driver                */ \
    VORM_LAYER VormStatus n8_own##name parameters;      /* kernel: contiguous, or the only one */ \
    VORM_LAYER VormStatus n8_own##name##_S2 parameters; /* any-stride kernel, standard layout  */ \
    VORM_LAYER VormStatus n8_own##name##S2 parameters;  /* any-stride kernel, list layout      */
#define VORM_LAYER VORM_HIDDEN __attribute__((noinline))
