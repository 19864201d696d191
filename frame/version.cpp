#include "zepm.h"

const LibVersion* zepmGetLibVersion(void)
{
    static constexpr LibVersion version = {
        7, 0, 205, 952, {'v', '8', 0, 0}, "zepmv8-7.0.dll", "7.0 build 205.23", "Sep  2 2010"};
    return &version;
}
