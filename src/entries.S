/* The exported surface: for every function a two-slot table of code addresses and a stub that
 * jumps through it. Slot 0 is the target u8, slot 1 the target n8. A stub touches no argument
 * register and no stack, so that one form fits any number of arguments. */

    .hidden vorJumpIndexForMergedDLL

    .macro table name, slot0, slot1
    .section .data.rel.local, "aw", @progbits
    .balign 8
\name\()_arraddr:
    .quad \slot0, \slot1
    .endm

    .macro stub name
    .text
    .balign 16
    .globl  \name
    .type   \name, @function
\name:
    movl    vorJumpIndexForMergedDLL(%rip), %eax
    leaq    \name\()_arraddr(%rip), %r11
    jmp     *(%r11, %rax, 8)
    .size   \name, . - \name
    .endm

    .macro entry name
    table   \name, n8_\name, n8_\name
    stub    \name
    .endm

/* The version call is the one function whose targets differ. */
    table   vormGetLibVersion, u8_vormGetLibVersion, n8_vormGetLibVersion
    stub    vormGetLibVersion

#define VORM_FUNCTION(name, parameters) entry name;
#include "vorm/elementwise.inc"
#include "vorm/products.inc"
#include "vorm/factor.inc"
#include "vorm/eigen.inc"
#include "vorm/math3d.inc"
#include "vorm/measures.inc"
#include "vorm/movement.inc"
#undef VORM_FUNCTION

    .section .note.GNU-stack, "", @progbits
