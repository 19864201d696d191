#include "tests/check/run.h"

#include "frame/operands.h"

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
T element(std::mt19937& random, bool mayBeNan)
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
        images.emplace_back(operand, function.layout, function.isFloat32 ? 4 : 8, static_cast<int>(images.size()));
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
    std::mt19937 random(chosen.seed);
    Problem<T> problem{chosen.sizes, chosen.count, {}, stsOk, chosen.mayFail, isPacked()};
    auto forEach = [&](auto visit) {
        for (size_t n = 0; n < images.size(); ++n)
        {
            Tensor<T>& tensor = problem.operands[n];
            for (int k = 0; k < tensor.count; ++k)
                for (int i = 0; i < tensor.rows; ++i)
                    for (int j = 0; j < tensor.cols; ++j) visit(n, images[n].element(k, i, j), tensor.at(k, i, j));
        }
    };
    for (size_t n = 0; n < images.size(); ++n)
    {
        const Operand& operand = function.operands[n];
        const auto [rows, cols] = function.shape(operand, chosen.sizes);
        Tensor<T>& tensor = problem.operands.emplace_back();
        tensor = {operand.isArray ? chosen.count : 1, rows, cols, {}};
        tensor.elements.resize(static_cast<size_t>(tensor.count) * static_cast<size_t>(rows * cols));
        if (!operand.isDst && operand.storage != Storage::Scratch)
            for (T& x : tensor.elements) x = element<T>(random, n == 0);
    }
    if (const auto* const values = std::get_if<Values<T>>(&function.values)) (*values)(problem, random);
    forEach([&](size_t n, char* p, T& x) {
        const Operand& operand = function.operands[n];
        if (operand.letter == 'c' && !operand.isArray)
            constant = static_cast<double>(x);
        else if (!operand.isDst && operand.storage != Storage::Scratch)
            write(operand, p, x);
    });
    // A row number that is not written keeps its bytes, which as a value they would not.
    forEach([&](size_t n, char* p, T& x) {
        if (function.operands[n].isDst && !isFar)
        {
            if (function.operands[n].storage == Storage::Index)
                x = std::numeric_limits<T>::quiet_NaN();
            else
                std::memcpy(&x, p, sizeof x);
        }
    });
    std::get<Reference<T>>(function.reference)(problem);
    wantedStatus = problem.status;
    expected.assign(images.size(), {});
    forEach([&](size_t n, char* p, T& x) {
        const Operand& operand = function.operands[n];
        if (!operand.isDst) return;
        std::vector<char>& bytes = expected[n];
        bytes.resize(bytes.size() + images[n].elementSize());
        char* const to = bytes.data() + bytes.size() - images[n].elementSize();
        if (operand.storage == Storage::Index && std::isnan(x))
            std::memcpy(to, p, images[n].elementSize());
        else
            write(operand, to, x);
    });
}

void Trial::prepare(const Case& chosen)
{
    count = chosen.count;
    sizes = chosen.sizes;
    isFar = check::isFar(chosen.strides);
    for (size_t n = 0; n < images.size(); ++n)
    {
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
    before.clear();
    for (const Image& image : images) before.push_back(isFar ? std::vector<char>() : image.bytes());
}

std::vector<NamedArg> Trial::args() const
{
    std::vector<NamedArg> list;
    for (const std::string& item : function.items)
    {
        bool isOperand = false;
        for (const Image& image : images)
            if (image.operand.name == item)
            {
                isOperand = true;
                if (image.operand.letter == 'c' && !image.operand.isArray)
                    list.push_back({NamedArg::Value, "val", constant});
                else
                    for (NamedArg& arg : image.args()) list.push_back(arg);
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

std::string Trial::differenceFrom(const std::vector<std::vector<char>>& wanted) const
{
    for (size_t n = 0; n < images.size(); ++n)
    {
        const std::vector<char> now = images[n].bytes();
        for (size_t at = 0; at < now.size(); ++at)
            if (now[at] != wanted[n][at]) return images[n].operand.name + ": " + images[n].describe(at) + " differs";
    }
    return "";
}

namespace
{

bool isNan(const char* p, size_t sz)
{
    if (sz == sizeof(float32)) return std::isnan(zepm::load<float32>(p));
    return std::isnan(zepm::load<float64>(p));
}

} // namespace

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

std::string Trial::difference() const
{
    std::vector<std::vector<char>> wanted = before;
    forEachResult([&](size_t n, int k, int i, int j, const char* from, size_t sz) {
        const char* const p = images[n].element(k, i, j);
        const bool isAlike =
            function.nansAlike && function.operands[n].storage != Storage::Index && isNan(p, sz) && isNan(from, sz);
        for (size_t image = 0; image < images.size(); ++image) // in place, a source shows the results as well
            if (image == n || images[image].bytesBegin() == images[n].bytesBegin())
                std::memcpy(wanted[image].data() + images[image].spanOffset(p), isAlike ? p : from, sz);
    });
    for (size_t n = 0; n < images.size(); ++n)
    {
        if (function.operands[n].storage != Storage::Scratch) continue;
        const auto [rows, cols] = function.shape(function.operands[n], sizes);
        const char* const p = images[n].element(0, 0, 0);
        std::memcpy(wanted[n].data() + images[n].spanOffset(p), p,
                    static_cast<size_t>(rows * cols) * images[n].elementSize());
    }
    return differenceFrom(wanted);
}

std::string Trial::change() const { return differenceFrom(before); }

std::string Trial::differenceOfElements() const
{
    std::string difference;
    forEachResult([&](size_t n, int k, int i, int j, const char* from, size_t sz) {
        const char* const p = images[n].element(k, i, j);
        const bool isAlike = function.nansAlike && isNan(p, sz) && isNan(from, sz);
        if (difference.empty() && !isAlike && std::memcmp(p, from, sz) != 0)
            difference = images[n].operand.name + ": object " + std::to_string(k) + " element (" + std::to_string(i) +
                         ", " + std::to_string(j) + ") differs";
    });
    return difference;
}

std::vector<std::vector<char>> Trial::outputs() const
{
    std::vector<std::vector<char>> list;
    for (size_t n = 0; n < images.size(); ++n)
        if (function.operands[n].isDst) list.push_back(images[n].bytes());
    return list;
}

} // namespace check
