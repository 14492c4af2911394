/* The status every function but vormGetLibVersion returns. C99. */
#ifndef VORM_STATUS_H
#define VORM_STATUS_H

typedef int VormStatus;

enum {
    StatusOk = 0,
    StatusBadArgument = -2,           /* a general eigenvector cannot be computed                    */
    StatusBadSize = -6,               /* len, width, height or another size is below 1               */
    StatusNullPointer = -8,           /* a required pointer is null                                  */
    StatusDivisionByZero = -10,       /* a divisor is zero to working accuracy                       */
    StatusNotPositiveDefinite = -179, /* a pivot of a Cholesky decomposition is not positive         */
    StatusBadStride = -182,           /* a stride is not a positive multiple of the element size     */
    StatusSingular = -195,            /* a matrix is singular to working accuracy                    */
    StatusBadShift = -202,            /* a shift is negative or not a multiple of the element size   */
    StatusBadCount = -203,            /* count is below 1                                            */
    StatusSizeMismatch = -204,        /* the sizes of the operands do not fit each other             */
    StatusNoConvergence = -205        /* an eigenvalue iteration passed its limit                    */
};

#endif
