// Memory between unreadable pages.
#pragma once

#include <cstddef>

namespace check
{

// Writable bytes with an unreadable page on either side; untouched pages cost nothing, whatever the size.
class Arena
{
public:
    explicit Arena(size_t size);
    ~Arena();
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    char* begin() const { return start; }
    char* end() const { return start + size; }

private:
    char* start;
    size_t size;
};

// Under the address sanitizer: bytes that no code may touch, and back. Without it nothing is forbidden.
extern const bool canForbid;
void forbid(const char* p, size_t n);
void allow(const char* p, size_t n);

// Calls report before the process ends by a touch of unreadable or forbidden memory.
void onFault(void (*report)());

} // namespace check
