#include "bench/plain.h"

namespace bench
{

template <class T, int N>
void plainSum(const T* a, const T* b, T* d)
{
    for (int i = 0; i < N; ++i) d[i] = a[i] + b[i];
}

template <class T, int N>
void plainProduct(const T* a, const T* b, T* d)
{
    for (int i = 0; i < N; ++i)
        for (int j = 0; j < N; ++j)
        {
            T sum = 0;
            for (int k = 0; k < N; ++k) sum += a[N * i + k] * b[N * k + j];
            d[N * i + j] = sum;
        }
}

#define INSTANTIATE(T)                                                                                                 \
    template void plainSum<T, 3>(const T*, const T*, T*);                                                              \
    template void plainSum<T, 4>(const T*, const T*, T*);                                                              \
    template void plainSum<T, 6>(const T*, const T*, T*);                                                              \
    template void plainSum<T, 9>(const T*, const T*, T*);                                                              \
    template void plainSum<T, 16>(const T*, const T*, T*);                                                             \
    template void plainSum<T, 36>(const T*, const T*, T*);                                                             \
    template void plainProduct<T, 3>(const T*, const T*, T*);                                                          \
    template void plainProduct<T, 4>(const T*, const T*, T*);                                                          \
    template void plainProduct<T, 6>(const T*, const T*, T*);
INSTANTIATE(float)
INSTANTIATE(double)
#undef INSTANTIATE

} // namespace bench
