// Running one case of a function: operands placed and filled, the call, and the whole of memory compared with what must
// be there.
#pragma once

#include "tests/check/image.h"

namespace check
{

// What is chosen of a case; the seed chooses the elements.
struct Case
{
    Sizes sizes;
    int count = 1;
    Strides strides = Strides::Dense;
    Placement placement;
    unsigned seed = 1;
    int inPlace = -1;     // the source that the destination is, or -1
    bool mayFail = false; // an object may fail, which ends the call

    std::string describe() const;
};

// The memory of a function's operands, kept from case to case.
class Trial
{
public:
    // From operand to operand, so that no two are placed alike.
    static constexpr size_t offsetStep = 5;

    explicit Trial(const Function& function);

    // Places and fills the operands, for any number of calls.
    void prepare(const Case& chosen);
    std::vector<NamedArg> args() const;
    static std::vector<Arg> values(const std::vector<NamedArg>& args);

    // Calls the function on the prepared operands. The gaps are out of bounds during the call.
    Status call(const std::vector<Arg>& args) const;
    // Puts the destinations back to what they were before a call.
    void restore();

    // What the call must return.
    Status expectedStatus() const { return wantedStatus; }
    // After a call past validation: an empty string, or what is wrong.
    std::string difference() const;
    // After a call that validation must refuse: the same, nothing written.
    std::string change() const;
    // The elements alone, where too many bytes lie between them.
    std::string differenceOfElements() const;

    // All bytes of the destinations, for comparison with another run.
    std::vector<std::vector<char>> outputs() const;

    const Function& function;

private:
    bool isPacked() const;
    template <class T>
    void fill(const Case& chosen);
    template <class Visit>
    void forEachResult(Visit visit) const;
    bool isAlias(size_t n) const;
    bool isAlike(size_t n, const char* p, const char* wanted) const;

    std::vector<Image> images;
    std::vector<double> numbers;             // the value passed for each operand that is one
    std::vector<std::vector<char>> before;   // all bytes of each operand before the call
    std::vector<std::vector<char>> wanted;   // and after it
    std::vector<std::vector<char>> expected; // the destinations' elements in order
    int32 count = 1;
    Sizes sizes;
    Status wantedStatus = stsOk;
    bool isFar = false;
    int inPlace = -1;
};

// How many threads ownGetNumThreads answers, and how often it was asked.
extern int32 threadsToUse;
extern int threadsAsked;
// What zepGetMaxCacheSizeB answers.
constexpr int32 largestCache = 1 << 23;

} // namespace check
