// The symmetric eigenproblem of one matrix or of registers of them: each body once, for all layouts.

#include "eigen/sym/objects.hpp"

namespace vorm::eigen::sym {

template <class Number>
VormStatus solveValues(Number* w, Number* u, int n)
{
    NoVectors none;
    return solve(w, u, n, none, false);
}
template <class Number>
VormStatus solveVectors(Number* w, Number* u, Number* v, int n, bool sortsFirst)
{
    VectorsInRows<Number> vectors{v, n};
    vectors.makeIdentity();
    return solve(w, u, n, vectors, sortsFirst);
}
template <class T, class Object>
VormStatus solveInPlace(T* w, T* u, const Object& object, int n, bool sortsFirst)
{
    VectorsInPlace<T, Object> vectors{object, n};
    vectors.makeIdentity();
    return solve(w, u, n, vectors, sortsFirst);
}

template <class L>
using Four = Several<L, 4>;
#define SYMMETRIC_OF(Number)                                      \
    template VormStatus solveValues(Number* w, Number* u, int n); \
    template VormStatus solveVectors(Number* w, Number* u, Number* v, int n, bool sortsFirst);
#define SYMMETRIC_IN_PLACE(T, Elements) \
    template VormStatus solveInPlace(T* w, T* u, const Elements<T>::Object&, int n, bool sortsFirst);
#define SYMMETRIC(T)             \
    SYMMETRIC_OF(T)              \
    SYMMETRIC_OF(Lanes<T>)       \
    SYMMETRIC_OF(Four<Lanes<T>>) \
    SYMMETRIC_WIDE(T)            \
    SYMMETRIC_IN_PLACE(T, StridedElements) SYMMETRIC_IN_PLACE(T, TabledElements)
#ifdef VORM_WIDER_REGISTERS
#define SYMMETRIC_WIDE(T) \
    SYMMETRIC_OF(Wide<T>) \
    SYMMETRIC_OF(Four<Wide<T>>)
#else
#define SYMMETRIC_WIDE(T)
#endif

SYMMETRIC(float)
SYMMETRIC(double)

}  // namespace vorm::eigen::sym
