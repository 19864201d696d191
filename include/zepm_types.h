/* zepm_types.h: the types, status codes and version record shared by every zepm header.
 *
 * Naming. zepm<Operation>_<operands>_<type>[_<layout>]. The operands are the sources from left to right; the
 * destination is not part of the name. v: a vector of len elements; m: a matrix of height rows and width columns; t: a
 * matrix used through its transpose; c: a constant; a letter followed by a: an array of count such objects. 32f and 64f
 * name the element type, float32 and float64.
 *
 * Layouts. The headers call them by their letters:
 *
 *   S  (no suffix) one base pointer and byte strides: stride0 between objects, stride1 between rows, stride2 between
 *      elements
 *   L  (_L) a table with one pointer for each object, and a shift in bytes added to each of them
 *   P  (_P) a table with one pointer for each element of one object, row by row, and a shift in bytes; object k lies
 *      k * stride0 bytes further
 *
 * A matrix without gaps is stored row by row (row-major): stride2 is the element size, stride1 the size of a row. With
 * the two exchanged it is stored by columns.
 *
 * Every stride is in bytes, at least the element size and a multiple of it; every shift is in bytes, not negative and a
 * multiple of the element size. Base pointers and table entries may have any alignment. An operand without a in an
 * array form is the same object for all count results; in L it is given by base pointer and strides. In C a table of
 * float* needs a cast where the parameter is const float32* const*; C++ converts it.
 *
 * Every function returns a Status. An error found in the arguments leaves all outputs untouched. Objects behind one
 * that fails may have been read, all count of them, but have not been written.
 */
#ifndef ZEPM_TYPES_H
#define ZEPM_TYPES_H

#include <stdint.h>

typedef int32_t int32;
typedef float float32;
typedef double float64;

/* The result of every function; one of the values below. Where another header has made the name a macro for int, as
 * that of Xlib does, the functions return that. */
#ifndef Status
typedef int32_t Status;
#endif

enum
{
    stsOk = 0,              /* success */
    stsNoPivotErr = -2,     /* general eigenvectors: no usable pivot in the back substitution */
    stsSizeErr = -6,        /* a size is below 1 */
    stsNullPtrErr = -8,     /* a pointer argument is null (the entries of a table are not tested) */
    stsDivByZeroErr = -10,  /* a division would be by (nearly) zero */
    stsNotPosDefErr = -179, /* Cholesky: a diagonal pivot is not positive */
    stsStrideErr = -182,    /* a stride is below 1 or not a multiple of the element size */
    stsSingularErr = -195,  /* the matrix is singular to working tolerance */
    stsRoiShiftErr = -202,  /* a shift is negative or not a multiple of the element size */
    stsCountErr = -203,     /* count is below 1 */
    stsSizeMatchErr = -204, /* the sizes of the operands do not fit each other */
    stsEigenFailErr = -205  /* an eigenvalue iteration did not converge */
};

/* What the library is; constant for the life of the process. */
typedef struct
{
    int32 major;
    int32 minor;
    int32 majorBuild;
    int32 build;
    char targetCpu[4];
    const char* Name;
    const char* Version;
    const char* BuildDate;
} LibVersion;

#endif
