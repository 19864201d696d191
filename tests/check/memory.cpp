#include "tests/check/memory.h"

#include <csignal>
#include <initializer_list>
#include <new>
#include <sys/mman.h>
#include <unistd.h>

#ifndef __has_feature
#define __has_feature(name) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
#include <sanitizer/asan_interface.h>
#define CHECK_POISONS 1
#else
#define CHECK_POISONS 0
#endif

namespace check
{

namespace
{

size_t pageSize() { return static_cast<size_t>(sysconf(_SC_PAGESIZE)); }

} // namespace

Arena::Arena(size_t wanted) : size((wanted + pageSize() - 1) / pageSize() * pageSize())
{
    void* const p = mmap(nullptr, size + 2 * pageSize(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (p == MAP_FAILED) throw std::bad_alloc();
    start = static_cast<char*>(p) + pageSize();
    if (mprotect(start, size, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
}

Arena::~Arena()
{
    // What the sanitizer holds of objects far apart would be gigabytes to clear; their gaps are not forbidden.
    if (size < size_t(1) << 30) allow(start, size);
    munmap(start - pageSize(), size + 2 * pageSize());
}

namespace
{

void (*reportFault)() = nullptr;

void reportAndEnd(int number)
{
    std::signal(number, SIG_DFL);
    reportFault();
    std::raise(number);
}

} // namespace

void onFault(void (*report)())
{
    reportFault = report;
    for (const int number : {SIGSEGV, SIGBUS}) std::signal(number, reportAndEnd);
#if CHECK_POISONS
    __sanitizer_set_death_callback(report);
#endif
}

const bool canForbid = CHECK_POISONS;

#if CHECK_POISONS
void forbid(const char* p, size_t n) { ASAN_POISON_MEMORY_REGION(p, n); }
void allow(const char* p, size_t n) { ASAN_UNPOISON_MEMORY_REGION(p, n); }
#else
void forbid(const char*, size_t) {}
void allow(const char*, size_t) {}
#endif

} // namespace check
