// One operand in memory: its elements at the strides and in the layout of a variant, everything around them a pattern
// that must stay as it is.
#pragma once

#include "tests/check/function.h"
#include "tests/check/memory.h"

#include <memory>
#include <span>

namespace check
{

// How the elements of an operand lie. Strides of different operands and of different steps are all distinct, where the
// variant does not say otherwise.
enum class Strides
{
    Dense,       // no gaps
    Gapped,      // contiguous elements, gaps behind rows and objects
    Records,     // contiguous elements, rows of multiples of 16 bytes
    General,     // gaps everywhere
    ColumnMajor, // rows closer together than elements
    Across,      // the objects' elements side by side
    OneGeneral,  // one operand General, the others Gapped
    FirstGapped, // one operand with gaps, all of them or those behind objects alone, the others Dense
    SecondGapped,
    ThirdGapped,
    ObjectsGapped, // gaps behind objects alone
    Far,           // objects 2 GiB apart
    FarGeneral,    // the same, with gaps between elements
    FarElements    // elements 2 GiB apart
};

constexpr const char* nameOf(Strides strides)
{
    switch (strides)
    {
    case Strides::Dense: return "dense";
    case Strides::Gapped: return "gapped";
    case Strides::Records: return "records";
    case Strides::General: return "general";
    case Strides::ColumnMajor: return "column-major";
    case Strides::Across: return "across";
    case Strides::OneGeneral: return "one general";
    case Strides::FirstGapped: return "first gapped";
    case Strides::SecondGapped: return "second gapped";
    case Strides::ThirdGapped: return "third gapped";
    case Strides::ObjectsGapped: return "objects gapped";
    case Strides::Far: return "far";
    case Strides::FarGeneral: return "far general";
    case Strides::FarElements: return "far elements";
    }
    return "";
}

inline bool isFar(Strides strides)
{
    return strides == Strides::Far || strides == Strides::FarGeneral || strides == Strides::FarElements;
}

// Where an operand's first or last byte lies.
struct Placement
{
    // The last byte ends at the unreadable page behind; else the first is offset bytes behind the one in front.
    bool atEnd = true;
    size_t offset = 0;
};

// An argument with its name in the argument list.
struct NamedArg
{
    enum Kind
    {
        Pointer,
        Stride,
        Shift,
        Size,
        Count,
        Value
    };
    Kind kind;
    std::string name;
    Arg value;
};

class Image
{
public:
    Image(const Operand& operand, Layout layout, size_t elementSize, int number);

    // Lays out rows * cols * count elements anew; the bytes around them get their pattern.
    void place(int rows, int cols, int count, Strides strides, Placement placement);
    // The same place as another operand of the same shape and strides.
    void placeAt(const Image& other);

    size_t elementSize() const { return static_cast<size_t>(sz); }
    char* element(int k, int i, int j) const { return base + offset(k, i, j); }
    std::vector<NamedArg> args() const;

    // The bytes from a little before the first to a little behind the last element.
    std::span<char> bytes() const { return {spanBegin, spanEnd}; }
    size_t spanOffset(const char* p) const { return static_cast<size_t>(p - spanBegin); }
    // Under the address sanitizer: all bytes of the span but the elements.
    void forbidGaps() const;
    void allowGaps() const;
    // In words, for a failure: the element or gap at a byte of the span.
    std::string describe(size_t spanOffset) const;

    const Operand operand;

private:
    bool isLaid() const { return operand.storage == Storage::Laid; }
    bool isTable() const { return layout == Layout::P && operand.letter != 'c' && isLaid(); }
    bool isList() const { return layout == Layout::L && operand.isArray && isLaid(); }
    bool isMatrix() const { return operand.letter == 'm' || operand.letter == 't'; }
    ptrdiff_t offset(int k, int i, int j) const;
    void chooseStrides(Strides strides);
    void chooseSlots(Strides strides);
    void findGaps();

    const Layout layout;
    const ptrdiff_t sz;
    const int number;
    std::shared_ptr<Arena> arena, tableArena;

    int rows = 1, cols = 1, count = 1;
    ptrdiff_t stride0 = 0, stride1 = 0, stride2 = 0, roiShift = 0;
    std::vector<ptrdiff_t> slots; // of the objects of a list, or of the elements of a table
    char* base = nullptr;
    char *spanBegin = nullptr, *spanEnd = nullptr;
    const void** table = nullptr;
    std::vector<std::pair<const char*, size_t>> gaps; // where they can be forbidden
};

} // namespace check
