// What a user would write in place of a single call: loops in functions of their own, compiled with -O2 for any
// processor.
#pragma once

namespace bench
{

template <class T, int N>
void plainSum(const T* a, const T* b, T* d);
template <class T, int N>
void plainProduct(const T* a, const T* b, T* d);

} // namespace bench
