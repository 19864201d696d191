#include "tests/check/run.h"

#include "frame/operands.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <sstream>

namespace check
{

int32 threadsToUse = 1;
int threadsAsked = 0;

namespace
{

// Values over many orders of magnitude, with the special ones among them. Only one operand of a call holds a NaN, so
// that which of two NaNs survives is no question.
template <class T>
T element(Random& random, bool mayBeNan)
{
    const unsigned kind = random() % 64;
    const T sign = random() % 2 ? T(1) : T(-1);
    switch (kind)
    {
    case 0: return sign * T(0);
    case 1: return sign * std::numeric_limits<T>::infinity();
    case 2: return sign * std::numeric_limits<T>::denorm_min() * T(random() % 1000);
    case 3: return sign * std::numeric_limits<T>::max();
    case 4: return mayBeNan ? std::numeric_limits<T>::quiet_NaN() : sign;
    default: break;
    }
    const T fraction = T(1) + T(random()) / T(4294967296.0);
    return sign * std::ldexp(fraction, static_cast<int>(random() % 40) - 20);
}

} // namespace

std::string Case::describe() const
{
    std::ostringstream out;
    out << "sizes";
    for (const int size : sizes) out << ' ' << size;
    out << ", count " << count << ", strides " << nameOf(strides);
    if (placement.atEnd)
        out << ", flush against the page behind";
    else
        out << ", " << placement.offset << " bytes behind the page in front";
    if (inPlace >= 0) out << ", in place of source " << inPlace + 1;
    if (mayFail) out << ", objects may fail";
    return out.str();
}

Trial::Trial(const Function& function_) : function(function_)
{
    for (const Operand& operand : function.operands)
        images.emplace_back(operand, operand.layout.value_or(function.layout), function.isFloat32 ? 4 : 8,
                            static_cast<int>(images.size()));
    numbers.resize(images.size());
}

namespace
{

// One element of an operand in memory; row numbers are int32 there.
template <class T>
void write(const Operand& operand, char* p, T x)
{
    if (operand.storage == Storage::Index)
    {
        const auto number = static_cast<int32>(x);
        std::memcpy(p, &number, sizeof number);
    }
    else
    {
        std::memcpy(p, &x, sizeof x);
    }
}

} // namespace

template <class T>
void Trial::fill(const Case& chosen)
{
    Random random(chosen.seed);
    Problem<T> problem{chosen.sizes, chosen.count, {}, stsOk, chosen.mayFail, isPacked()};
    auto forEach = [&](size_t n, auto visit) {
        Tensor<T>& tensor = problem.operands[n];
        size_t at = 0;
        for (int k = 0; k < tensor.count; ++k)
            for (int i = 0; i < tensor.rows; ++i)
                for (int j = 0; j < tensor.cols; ++j) visit(images[n].element(k, i, j), tensor.elements[at++]);
    };
    auto isSource = [&](size_t n) {
        return !function.operands[n].isDst && function.operands[n].storage != Storage::Scratch;
    };
    for (size_t n = 0; n < images.size(); ++n)
    {
        const Operand& operand = function.operands[n];
        const auto [rows, cols] = function.shape(operand, chosen.sizes);
        Tensor<T>& tensor = problem.operands.emplace_back(Tensor<T>{operand.isArray ? chosen.count : 1, rows, cols});
        tensor.elements.resize(static_cast<size_t>(tensor.count) * static_cast<size_t>(rows * cols));
        for (int k = 0; k < tensor.count && !operand.isNumber(); ++k)
            tensor.addresses.push_back(images[n].element(k, 0, 0));
        if (!function.hasTables() && !operand.isNumber())
        {
            tensor.stride1 = images[n].element(0, 1, 0) - images[n].element(0, 0, 0);
            tensor.stride2 = images[n].element(0, 0, 1) - images[n].element(0, 0, 0);
        }
        if (isSource(n))
            for (T& x : tensor.elements) x = element<T>(random, n == 0);
    }
    if (const auto* const values = std::get_if<Values<T>>(&function.values)) (*values)(problem, random);
    for (size_t n = 0; n < images.size(); ++n)
    {
        const Operand& operand = function.operands[n];
        if (operand.isNumber())
            numbers[n] = static_cast<double>(problem.operands[n].elements[0]);
        else if (isSource(n))
            forEach(n, [&](char* p, T& x) { write(operand, p, x); });
    }
    for (size_t n = 0; n < images.size() && !isFar; ++n)
    {
        const Operand& operand = function.operands[n];
        if (!operand.isDst) continue;
        // A row number that is not written keeps its bytes, which as a value they would not.
        if (operand.storage == Storage::Index)
            problem.operands[n].elements.assign(problem.operands[n].elements.size(),
                                                std::numeric_limits<T>::quiet_NaN());
        else
            forEach(n, [](char* p, T& x) { std::memcpy(&x, p, sizeof x); });
    }
    std::get<Reference<T>>(function.reference)(problem);
    wantedStatus = problem.status;
    expected.resize(images.size());
    for (size_t n = 0; n < images.size(); ++n)
    {
        const Operand& operand = function.operands[n];
        if (!operand.isDst) continue;
        const size_t sz = images[n].elementSize();
        expected[n].resize(problem.operands[n].elements.size() * sz);
        char* to = expected[n].data();
        forEach(n, [&](char* p, T& x) {
            if (operand.storage == Storage::Index && std::isnan(x))
                std::memcpy(to, p, sz);
            else
                write(operand, to, x);
            to += sz;
        });
    }
}

void Trial::prepare(const Case& chosen)
{
    count = chosen.count;
    sizes = chosen.sizes;
    inPlace = chosen.inPlace;
    isFar = check::isFar(chosen.strides);
    for (size_t n = 0; n < images.size(); ++n)
    {
        if (function.operands[n].isNumber()) continue;
        const auto [rows, cols] = function.shape(function.operands[n], chosen.sizes);
        Placement placement = chosen.placement;
        if (!placement.atEnd && placement.offset > 0) placement.offset = (placement.offset + offsetStep * n) % 16;
        if (chosen.inPlace >= 0 && function.operands[n].name == "dst")
            images[n].placeAt(images[static_cast<size_t>(chosen.inPlace)]);
        else
            images[n].place(rows, cols, chosen.count, chosen.strides, placement);
    }
    if (function.isFloat32)
        fill<float32>(chosen);
    else
        fill<float64>(chosen);
    if (isFar) return;
    before.resize(images.size());
    for (size_t n = 0; n < images.size(); ++n)
    {
        const auto bytes = images[n].bytes();
        before[n].assign(bytes.begin(), bytes.end());
    }
    wanted = before;
    forEachResult([&](size_t n, int k, int i, int j, const char* from, size_t sz) {
        std::memcpy(wanted[n].data() + images[n].spanOffset(images[n].element(k, i, j)), from, sz);
    });
}

void Trial::restore()
{
    for (size_t n = 0; n < images.size() && !isFar; ++n)
        if (function.operands[n].isDst || function.operands[n].storage == Storage::Scratch)
            std::copy(before[n].begin(), before[n].end(), images[n].bytes().begin());
}

std::vector<NamedArg> Trial::args() const
{
    std::vector<NamedArg> list;
    for (const std::string& item : function.items)
    {
        bool isOperand = false;
        for (size_t n = 0; n < images.size(); ++n)
        {
            if (images[n].operand.name != item) continue;
            isOperand = true;
            if (images[n].operand.isNumber())
                list.push_back({NamedArg::Value, item, numbers[n]});
            else
                for (NamedArg& arg : images[n].args()) list.push_back(arg);
        }
        if (isOperand) continue;
        if (item == "count")
        {
            list.push_back({NamedArg::Count, item, count});
            continue;
        }
        for (size_t n = 0; n < function.sizeNames.size(); ++n)
            if (function.sizeNames[n] == item) list.push_back({NamedArg::Size, item, sizes[n]});
    }
    return list;
}

bool Trial::isPacked() const
{
    if (function.hasTables()) return false;
    for (const Image& image : images)
        for (const NamedArg& arg : image.args())
            if (arg.name == image.operand.name + "Stride2" &&
                static_cast<size_t>(std::get<int32>(arg.value)) != image.elementSize())
                return false;
    return true;
}

std::vector<Arg> Trial::values(const std::vector<NamedArg>& args)
{
    std::vector<Arg> list;
    for (const NamedArg& arg : args) list.push_back(arg.value);
    return list;
}

Status Trial::call(const std::vector<Arg>& args) const
{
    if (!isFar)
        for (const Image& image : images) image.forbidGaps();
    const Status status = function.call(args);
    if (!isFar)
        for (const Image& image : images) image.allowGaps();
    return status;
}

// Calls visit with the number of the operand, the object, row and column, and the expected bytes of each result.
template <class Visit>
void Trial::forEachResult(Visit visit) const
{
    for (size_t n = 0; n < images.size(); ++n)
    {
        if (!function.operands[n].isDst) continue;
        const size_t sz = images[n].elementSize();
        const auto [rows, cols] = function.shape(function.operands[n], sizes);
        const char* from = expected[n].data();
        for (int k = 0; k < (function.operands[n].isArray ? count : 1); ++k)
            for (int i = 0; i < rows; ++i)
                for (int j = 0; j < cols; ++j, from += sz) visit(n, k, i, j, from, sz);
    }
}

// Whether the destination of the case lies in this source.
bool Trial::isAlias(size_t n) const { return static_cast<int>(n) == inPlace; }

// Whether a result is as it must be; of NaNs the bytes may differ where the function leaves them open.
bool Trial::isAlike(size_t n, const char* p, const char* from) const
{
    const size_t sz = images[n].elementSize();
    if (std::memcmp(p, from, sz) == 0) return true;
    if (!function.nansAlike || function.operands[n].storage == Storage::Index) return false;
    if (sz == sizeof(float32)) return std::isnan(zepm::load<float32>(p)) && std::isnan(zepm::load<float32>(from));
    return std::isnan(zepm::load<float64>(p)) && std::isnan(zepm::load<float64>(from));
}

namespace
{

std::string firstDifference(const Image& image, const std::vector<char>& wanted)
{
    const std::span<const char> now = image.bytes();
    if (now.empty()) return ""; // passed by value
    if (std::memcmp(now.data(), wanted.data(), wanted.size()) == 0) return "";
    const auto at = static_cast<size_t>(std::mismatch(now.begin(), now.end(), wanted.begin()).first - now.begin());
    return image.operand.name + ": " + image.describe(at) + " differs";
}

} // namespace

std::string Trial::difference() const
{
    for (size_t n = 0; n < images.size(); ++n)
    {
        const Image& image = images[n];
        if (isAlias(n)) continue;
        if (firstDifference(image, wanted[n]).empty()) continue;
        // What may differ is made equal.
        std::vector<char> allowed = wanted[n];
        if (image.operand.storage == Storage::Scratch)
        {
            const auto [rows, cols] = function.shape(image.operand, sizes);
            const char* const p = image.element(0, 0, 0);
            std::memcpy(allowed.data() + image.spanOffset(p), p,
                        static_cast<size_t>(rows * cols) * image.elementSize());
        }
        forEachResult([&](size_t of, int k, int i, int j, const char* from, size_t sz) {
            if (of != n) return;
            const char* const p = image.element(k, i, j);
            if (isAlike(n, p, from)) std::memcpy(allowed.data() + image.spanOffset(p), p, sz);
        });
        const std::string difference = firstDifference(image, allowed);
        if (!difference.empty()) return difference;
    }
    return "";
}

std::string Trial::change() const
{
    for (size_t n = 0; n < images.size(); ++n)
        if (const std::string difference = firstDifference(images[n], before[n]); !difference.empty())
            return difference;
    return "";
}

std::string Trial::differenceOfElements() const
{
    std::string difference;
    forEachResult([&](size_t n, int k, int i, int j, const char* from, size_t) {
        if (difference.empty() && !isAlike(n, images[n].element(k, i, j), from))
            difference = images[n].operand.name + ": object " + std::to_string(k) + " element (" + std::to_string(i) +
                         ", " + std::to_string(j) + ") differs";
    });
    return difference;
}

std::vector<std::vector<char>> Trial::outputs() const
{
    std::vector<std::vector<char>> list;
    for (size_t n = 0; n < images.size(); ++n)
        if (function.operands[n].isDst) list.emplace_back(images[n].bytes().begin(), images[n].bytes().end());
    return list;
}

} // namespace check
