// Rows of the functions that move objects, and what lanes cannot show of them: a Copy whose operands overlap.
#include "tests/check/function.h"
#include "zepcore.h"

#include <cstring>
#include <gtest/gtest.h>
#include <set>

namespace check
{

namespace
{

// ---- Rows -----------------------------------------------------------------------------------------------------------

// d(i, j) = s(i, j), s(j, i) where the source is seen through its transpose.
template <class T>
void move(Problem<T>& p, bool isTransposed)
{
    const Tensor<T>& s = p.operands[0];
    Tensor<T>& d = p.operands[1];
    for (int k = 0; k < p.count; ++k)
        for (int i = 0; i < d.rows; ++i)
            for (int j = 0; j < d.cols; ++j)
                std::memcpy(&d.at(k, i, j), isTransposed ? &s.at(k, j, i) : &s.at(k, i, j), sizeof(T));
}

template <class T>
void makeIdentities(Problem<T>& p)
{
    Tensor<T>& d = p.operands[0];
    for (int k = 0; k < p.count; ++k)
        for (int i = 0; i < d.rows; ++i)
            for (int j = 0; j < d.cols; ++j) d.at(k, i, j) = i == j ? T(1) : T(0);
}

// Any bits, every fourth element a NaN, of which half are signalling ones.
template <class T>
void anyBits(Problem<T>& p, Random& random)
{
    for (T& x : p.operands[0].elements)
    {
        uint32_t words[sizeof(T) / 4];
        for (uint32_t& word : words) word = random();
        if (random() % 4 == 0) words[sizeof(T) / 4 - 1] |= sizeof(T) == 4 ? 0x7f800000 : 0x7ff00000;
        std::memcpy(&x, words, sizeof x);
    }
}

// The steps in their order; O is a step on stride0 alone, where there is more than one object.
std::string orderOf(const Function& f)
{
    const Layout from = f.layout, to = f.operands.back().layout.value_or(f.layout);
    auto either = [&](Layout layout) { return from == layout || to == layout; };
    if (f.operation == "Copy")
    {
        if (from == Layout::S && to == Layout::S) return "NZCTO";
        if (from == Layout::L && to == Layout::L) return "NZCTR";
        if (from == Layout::P && to == Layout::P) return "NZCRO";
        return f.name == "zepmCopy_va_32f_SP" || f.name == "zepmCopy_va_32f_LP" ? "NZCRTO" : "NZCTRO";
    }
    if (f.operation == "LoadIdentity")
    {
        if (either(Layout::L)) return "NZCTR";
        if (either(Layout::S)) return "NZCTO";
        return f.isFloat32 ? "NZRCO" : "NZCRO";
    }
    if (f.operation == "Transpose") return standardOrder(f);
    if (f.isArray()) return from == Layout::S ? "NZCT" : "NZCRT";
    if (from == Layout::S) return "NZT";
    return f.name == "zepmExtract_v_32f_P" ? "NZR" : "ZNR";
}

Function completed(Function f)
{
    const bool isVector = f.form[0] == 'v', isTranspose = f.operation == "Transpose";
    if (isVector)
    {
        f.sizeNames = {"len"};
        f.sizesToTry = lengths({3, 4, 2, 1, 5, 6, 7, 8, 12, 13, 16, 31, 40, 100});
        f.written = {4}, f.looped = {6}, f.typical = {3};
    }
    else
    {
        f.sizeNames = {"width", "height"};
        f.sizesToTry = {{3, 3}, {1, 1}, {4, 4}, {5, 3}, {1, 7},  {7, 1},  {5, 5},  {3, 5},  {6, 6},
                        {4, 3}, {6, 4}, {8, 2}, {9, 7}, {17, 5}, {5, 18}, {3, 40}, {33, 34}};
        f.written = {4, 4}, f.looped = {6, 6}, f.typical = {5, 3};
    }
    if (f.operation == "Extract") f.operands.back().storage = Storage::Dense;
    if (f.operation == "LoadIdentity") f.operands.erase(f.operands.begin());
    f.items = standardItems(f);
    if (isTranspose)
    {
        f.items = {"src", "width", "height", "dst"};
        if (f.isArray()) f.items.push_back("count");
    }
    f.shape = [isVector, isTranspose](const Operand& operand, const Sizes& sizes) {
        if (isVector) return std::pair(1, sizes[0]);
        const bool isStoredTransposed = isTranspose ? operand.isDst : operand.letter == 't';
        return isStoredTransposed ? std::pair(sizes[0], sizes[1]) : std::pair(sizes[1], sizes[0]);
    };
    f.order = orderOf(f);
    forElementType(f, [&]<class T>(T) {
        if (f.operation == "LoadIdentity")
        {
            f.reference = Reference<T>(makeIdentities<T>);
            return;
        }
        const bool isTransposed = isTranspose || f.form[0] == 't';
        f.reference = Reference<T>([isTransposed](Problem<T>& p) { move(p, isTransposed); });
        f.values = Values<T>(anyBits<T>);
    });
    f.worksInPlace = f.operation == "Copy" && f.operands.back().layout == f.layout;
    return f;
}

// All nine pairs of layouts, in both types.
#define COPY_TO_EACH(form) CHECK_NAME(form##S), CHECK_NAME(form##L), CHECK_NAME(form##P)
#define COPY_FORM(form)                                                                                                \
    COPY_TO_EACH(form##_32f_S), COPY_TO_EACH(form##_32f_L), COPY_TO_EACH(form##_32f_P), COPY_TO_EACH(form##_64f_S),    \
        COPY_TO_EACH(form##_64f_L), COPY_TO_EACH(form##_64f_P)

} // namespace

std::vector<Function> families::movement()
{
    return rows(
        {
            COPY_FORM(zepmCopy_va),
            COPY_FORM(zepmCopy_ma),
            SINGLE_FORM(zepmExtract_v),
            SINGLE_FORM(zepmExtract_m),
            SINGLE_FORM(zepmExtract_t),
            ARRAY_FORM(zepmExtract_va),
            ARRAY_FORM(zepmExtract_ma),
            ARRAY_FORM(zepmExtract_ta),
            ARRAY_FORM(zepmLoadIdentity_ma),
            SINGLE_FORM(zepmTranspose_m),
            ARRAY_FORM(zepmTranspose_ma),
        },
        completed);
}

// ---- Overlaps -------------------------------------------------------------------------------------------------------

namespace
{

struct Matrices
{
    ptrdiff_t stride0, stride1, stride2;
};

// Where the operands lie in common memory: the destination so many bytes behind the source, or in front of it.
struct Overlap
{
    Matrices from, to;
    int width, height, count;
    ptrdiff_t distance;
};

constexpr ptrdiff_t memorySize = 1 << 15, sourceAt = 1 << 14;

// What the table of each layout needs to describe strided matrices.
template <class T>
struct Tables
{
    std::vector<T*> objects, elements;
    Tables(char* base, const Matrices& m, const Overlap& o)
    {
        for (int k = 0; k < o.count; ++k) objects.push_back(reinterpret_cast<T*>(base + k * m.stride0));
        for (int i = 0; i < o.height; ++i)
            for (int j = 0; j < o.width; ++j)
                elements.push_back(reinterpret_cast<T*>(base + i * m.stride1 + j * m.stride2));
    }
};

template <class T>
void copyInOrder(char* source, char* destination, const Overlap& o)
{
    for (int k = 0; k < o.count; ++k)
        for (int i = 0; i < o.height; ++i)
            for (int j = 0; j < o.width; ++j)
                std::memmove(destination + k * o.to.stride0 + i * o.to.stride1 + j * o.to.stride2,
                             source + k * o.from.stride0 + i * o.from.stride1 + j * o.from.stride2, sizeof(T));
}

// Each of the nine functions on these operands.
template <class T>
Status copyAs(const std::string& layouts, char* source, char* destination, const Overlap& o)
{
    const std::string name = std::string("zepmCopy_ma_") + (sizeof(T) == 4 ? "32f_" : "64f_") + layouts;
    const Tables<T> from(source, o.from, o), to(destination, o.to, o);
    std::vector<Arg> args;
    auto add = [&](char layout, char* base, const Tables<T>& tables, const Matrices& m) {
        if (layout == 'S') args.push_back(static_cast<const void*>(base));
        if (layout == 'L') args.push_back(static_cast<const void*>(tables.objects.data()));
        if (layout == 'P') args.push_back(static_cast<const void*>(tables.elements.data()));
        if (layout != 'S') args.push_back(int32{0});
        if (layout != 'L') args.push_back(static_cast<int32>(m.stride0));
        if (layout == 'P') return;
        args.push_back(static_cast<int32>(m.stride1));
        args.push_back(static_cast<int32>(m.stride2));
    };
    add(layouts[0], source, from, o.from);
    add(layouts[1], destination, to, o.to);
    for (const int size : {o.width, o.height, o.count}) args.push_back(int32{size});
    for (const Function& f : allFunctions())
        if (f.name == name) return f.call(args);
    return stsSizeErr;
}

template <class T>
void compareWithLoop(const Overlap& o)
{
    std::vector<char> before(memorySize), expected, got;
    Random random(static_cast<uint64_t>(o.distance + 9 * o.width + 100 * o.count));
    for (char& byte : before) byte = static_cast<char>(random());
    expected = before;
    copyInOrder<T>(expected.data() + sourceAt, expected.data() + sourceAt + o.distance, o);
    for (const char* const layouts : {"SS", "SL", "SP", "LS", "LL", "LP", "PS", "PL", "PP"})
    {
        got = before;
        EXPECT_EQ(copyAs<T>(layouts, got.data() + sourceAt, got.data() + sourceAt + o.distance, o), stsOk);
        EXPECT_TRUE(got == expected) << layouts << ", element size " << sizeof(T) << ", width " << o.width
                                     << ", height " << o.height << ", count " << o.count << ", strides "
                                     << o.from.stride0 << ' ' << o.from.stride1 << ' ' << o.from.stride2 << " to "
                                     << o.to.stride0 << ' ' << o.to.stride1 << ' ' << o.to.stride2 << ", distance "
                                     << o.distance;
    }
}

template <class T>
void overlapAll()
{
    constexpr ptrdiff_t sz = sizeof(T);
    for (const auto& [width, height] : {std::pair{3, 1}, {4, 1}, {2, 3}, {3, 3}, {7, 2}, {20, 1}, {37, 2}})
        for (const int count : {1, 9, 20})
        {
            const Matrices dense{width * height * sz, width * sz, sz};
            const Matrices records{(width + 2) * height * sz, (width + 1) * sz, sz};
            const Matrices spaced{sz, count * width * sz, count * sz};
            const Matrices columns{width * height * sz, sz, height * sz};
            for (const auto& [from, to] : {std::pair{dense, dense},
                                           {records, dense},
                                           {dense, records},
                                           {records, records},
                                           {spaced, dense},
                                           {dense, spaced},
                                           {spaced, spaced},
                                           {columns, dense},
                                           {dense, columns}})
                for (const ptrdiff_t elements : {0, 1, 2, 5, 12, 70})
                    for (const ptrdiff_t odd : {ptrdiff_t{0}, sz - 1})
                        for (const int sign : {1, -1})
                            compareWithLoop<T>({from, to, width, height, count, sign * (elements * sz + odd)});
        }
}

} // namespace

} // namespace check

TEST(Copy, OverlappingOperands32f)
{
    for (int32 level = 0; level <= 2; ++level)
        if (zepSetCpuLevel(level) == stsOk) check::overlapAll<float32>();
}
TEST(Copy, OverlappingOperands64f)
{
    for (int32 level = 0; level <= 2; ++level)
        if (zepSetCpuLevel(level) == stsOk) check::overlapAll<float64>();
}
