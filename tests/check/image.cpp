#include "tests/check/image.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace check
{

namespace
{

constexpr size_t arenaSize = 1 << 22;
constexpr size_t tableArenaSize = 1 << 18;
constexpr ptrdiff_t margin = 64;

// A stride just short of 2 GiB.
ptrdiff_t farStride(ptrdiff_t sz) { return std::numeric_limits<int32>::max() / sz * sz; }

// Bytes that repeat after 256, none like its neighbours.
void fillWithPattern(char* begin, char* end, int start)
{
    static const std::array<char, 8192> pattern = [] {
        std::array<char, 8192> bytes{};
        for (size_t n = 0; n < bytes.size(); ++n) bytes[n] = static_cast<char>(n * 37);
        return bytes;
    }();
    const size_t shift = static_cast<size_t>(start) * 173 % 256; // 37 * 173 = 1 modulo 256
    for (size_t n = 0; begin < end; begin += n)
    {
        n = std::min(static_cast<size_t>(end - begin), pattern.size() - 256);
        std::memcpy(begin, pattern.data() + shift, n);
    }
}

} // namespace

Image::Image(const Operand& operand_, Layout layout_, size_t elementSize, int number_)
    : operand(operand_),
      layout(layout_),
      sz(operand_.storage == Storage::Index ? 4 : static_cast<ptrdiff_t>(elementSize)),
      number(number_),
      arena(std::make_shared<Arena>(arenaSize)),
      tableArena(std::make_shared<Arena>(tableArenaSize))
{
}

ptrdiff_t Image::offset(int k, int i, int j) const
{
    const ptrdiff_t object = operand.isArray ? k : 0;
    if (isList()) return slots[static_cast<size_t>(object)] + i * stride1 + j * stride2;
    if (isTable()) return slots[static_cast<size_t>(i * cols + j)] + object * stride0;
    return object * stride0 + i * stride1 + j * stride2;
}

void Image::chooseStrides(Strides strides)
{
    const ptrdiff_t n = number;
    stride2 = sz;
    stride1 = cols * sz;
    stride0 = rows * stride1;
    switch (strides)
    {
    case Strides::FirstGapped:
    case Strides::SecondGapped:
    case Strides::ThirdGapped:
    case Strides::Dense: break;
    case Strides::ObjectsGapped: stride0 += (2 + n) * sz; break;
    case Strides::Gapped:
    case Strides::OneGeneral:
        stride1 = (cols + 1 + n) * sz;
        stride0 = rows * stride1 + (2 + n) * sz;
        break;
    case Strides::Records:
        stride1 = (stride1 + 15) / 16 * 16;
        stride0 = rows * stride1;
        break;
    case Strides::General:
        stride2 = (2 + n) * sz;
        stride1 = cols * stride2 + (1 + n) * sz;
        stride0 = rows * stride1 + (3 + n) * sz;
        break;
    case Strides::ColumnMajor:
        stride1 = sz;
        stride2 = (rows + n) * sz;
        stride0 = cols * stride2 + n * sz;
        break;
    case Strides::Across:
        stride0 = sz;
        stride2 = (count + n) * sz;
        stride1 = cols * stride2 + n * sz;
        break;
    case Strides::Far: stride0 = farStride(sz) - n * sz; break;
    case Strides::FarGeneral:
        stride2 = (2 + n) * sz;
        stride1 = cols * stride2;
        stride0 = farStride(sz) - n * sz;
        break;
    case Strides::FarElements:
        stride2 = farStride(sz) - n * sz;
        stride0 = rows * stride1 + (2 + n) * sz;
        break;
    }
}

// Objects of a list and elements of a table lie in an order of their own.
void Image::chooseSlots(Strides strides)
{
    slots.clear();
    if (!isList() && !isTable()) return;
    const int entries = isList() ? count : rows * cols;
    const ptrdiff_t objectSize = (rows - 1) * stride1 + (cols - 1) * stride2 + sz;
    ptrdiff_t step = objectSize + (strides == Strides::Dense ? 0 : (1 + number) * sz);
    if (isTable())
    {
        const bool streams =
            strides == Strides::General || strides == Strides::Across || strides == Strides::OneGeneral;
        step = streams && operand.isArray ? count * stride0 + number * sz : sz;
        if (strides == Strides::FarElements) step = farStride(sz);
    }
    for (int n = 0; n < entries; ++n)
    {
        const int shuffled = entries % 7 == 0 ? entries - 1 - n : (n * 7 + 3) % entries;
        slots.push_back((strides == Strides::Dense ? n : shuffled) * step);
    }
}

void Image::place(int rows_, int cols_, int count_, Strides strides, Placement placement)
{
    rows = rows_;
    cols = cols_;
    count = operand.isArray ? count_ : 1;
    if (strides == Strides::OneGeneral && number == (cols + count_) % 3) strides = Strides::General;
    if (strides >= Strides::FirstGapped && strides <= Strides::ThirdGapped)
    {
        const bool isGapped = number == static_cast<int>(strides) - static_cast<int>(Strides::FirstGapped);
        strides = !isGapped ? Strides::Dense : count_ % 2 == 0 ? Strides::Gapped : Strides::ObjectsGapped;
    }
    chooseStrides(isLaid() ? strides : Strides::Dense);
    if (isTable() && strides == Strides::FarElements) stride0 = (5 + number) * sz;
    if (isTable() && strides == Strides::OneGeneral) stride0 = (4 + number) * sz;
    if (isTable() && strides == Strides::General) stride0 = (2 + number) * sz;
    chooseSlots(strides);

    ptrdiff_t last = 0;
    for (const int k : {0, count - 1})
        for (const int i : {0, rows - 1})
            for (const int j : {0, cols - 1}) last = std::max(last, offset(k, i, j));
    for (const ptrdiff_t slot : slots)
        last = std::max(last, slot + (isList() ? (rows - 1) * stride1 + (cols - 1) * stride2 : (count - 1) * stride0));
    const size_t extent = static_cast<size_t>(last + sz);
    if (extent + margin > static_cast<size_t>(arena->end() - arena->begin()))
        arena = std::make_shared<Arena>(extent + static_cast<size_t>(margin));

    base = placement.atEnd ? arena->end() - extent - placement.offset : arena->begin() + placement.offset;
    spanBegin = base - std::min(margin, base - arena->begin());
    spanEnd = base + std::min(static_cast<ptrdiff_t>(extent) + margin, arena->end() - base);
    gaps.clear();
    if (!isFar(strides))
    {
        fillWithPattern(spanBegin, spanEnd, 11 * number + 5);
        if (canForbid) findGaps();
    }

    roiShift = (3 + 2 * number) * sz;
    const size_t entries = slots.size();
    if (entries * sizeof *table > static_cast<size_t>(tableArena->end() - tableArena->begin()))
        tableArena = std::make_shared<Arena>(entries * sizeof *table);
    table = reinterpret_cast<const void**>(tableArena->end()) - entries;
    for (size_t n = 0; n < entries; ++n) table[n] = base + slots[n] - roiShift;
}

void Image::placeAt(const Image& other)
{
    arena = other.arena;
    rows = other.rows, cols = other.cols, count = other.count;
    stride0 = other.stride0, stride1 = other.stride1, stride2 = other.stride2, roiShift = other.roiShift;
    slots = other.slots;
    base = other.base, spanBegin = other.spanBegin, spanEnd = other.spanEnd;
    table = other.table;
    tableArena = other.tableArena;
    gaps.clear(); // the other's
}

std::vector<NamedArg> Image::args() const
{
    std::string upper = operand.name;
    upper[0] = static_cast<char>(upper[0] - 'a' + 'A');
    std::vector<NamedArg> list;
    auto stride = [&](int n, ptrdiff_t value) {
        list.push_back({NamedArg::Stride, operand.name + "Stride" + std::to_string(n), static_cast<int32>(value)});
    };
    if (isTable() || isList())
    {
        list.push_back({NamedArg::Pointer, "pp" + upper, static_cast<const void*>(table)});
        list.push_back({NamedArg::Shift, operand.name + "RoiShift", static_cast<int32>(roiShift)});
    }
    else
    {
        list.push_back({NamedArg::Pointer, "p" + upper, static_cast<const void*>(base)});
    }
    if (!isLaid()) return list;
    if (operand.isArray && !isList()) stride(0, stride0);
    if (isMatrix() && !isTable()) stride(1, stride1);
    if (operand.letter != 'c' && !isTable()) stride(2, stride2);
    return list;
}

void Image::findGaps()
{
    std::vector<const char*> elements;
    for (int k = 0; k < count; ++k)
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < cols; ++j) elements.push_back(element(k, i, j));
    std::sort(elements.begin(), elements.end());
    const char* from = spanBegin;
    for (const char* const p : elements)
    {
        if (p > from) gaps.emplace_back(from, static_cast<size_t>(p - from));
        from = p + sz;
    }
    if (spanEnd > from) gaps.emplace_back(from, static_cast<size_t>(spanEnd - from));
}

void Image::forbidGaps() const
{
    for (const auto& [p, n] : gaps) forbid(p, n);
}

void Image::allowGaps() const
{
    if (!gaps.empty()) allow(spanBegin, static_cast<size_t>(spanEnd - spanBegin));
}

std::string Image::describe(size_t at) const
{
    for (int k = 0; k < count; ++k)
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < cols; ++j)
            {
                const ptrdiff_t within =
                    static_cast<ptrdiff_t>(at) - static_cast<ptrdiff_t>(spanOffset(element(k, i, j)));
                if (within >= 0 && within < sz)
                    return "object " + std::to_string(k) + " element (" + std::to_string(i) + ", " + std::to_string(j) +
                           ")";
            }
    return "a byte outside its elements, " + std::to_string(static_cast<ptrdiff_t>(at) - (base - spanBegin)) +
           " bytes from its first";
}

} // namespace check
