// What the level source of this family offers: move_level.cpp is compiled for each instruction-set level.
#pragma once

#include "frame/levels.h"

namespace zepm
{

// Whether a run that is moved in ascending order reads what it has written: elements of the destination lie between the
// source's first byte and its last.
ZEPM_INLINE bool smears(const char* to, const char* from, ptrdiff_t size)
{
    return reinterpret_cast<uintptr_t>(to) - reinterpret_cast<uintptr_t>(from) - 1 < static_cast<uintptr_t>(size) - 1;
}

// Runs of so many bytes may be stored past the caches.
inline constexpr ptrdiff_t longRun = 1 << 22;

// moveRun moves a run of bytes, moveObjects count objects of height rows of width elements each, whatever views they
// are seen through. Both give what a loop over the elements gives that ascends by objects, rows and elements: where a
// destination overlaps its source, an element that is written may be read again.
//
// transposeObjects moves objects whose columns are contiguous to others whose rows are. No two may overlap.
//
// fillIdentity writes identity matrices.
ZEPM_EACH_LEVEL(template <class T> void moveRun(char* to, const char* from, ptrdiff_t size);
                template <class T, class From, class To>
                void moveObjects(const From& from, const To& to, int32 width, int32 height, int32 count);
                template <class T, class From, class To>
                void transposeObjects(const From& from, const To& to, int32 width, int32 height, int32 count);
                template <class T, class To> void fillIdentity(const To& to, int32 width, int32 height, int32 count);)

} // namespace zepm
