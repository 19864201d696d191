// What the test driver knows of an exported function: how it is called, and what it must do.
//
// A family joins by a line in families.h and by a source with one Function for each exported name (see vectors.cpp).
// The name's grammar gives the operands and the argument list; the family adds the order of validation, the limits and
// a plain reference.
#pragma once

#include "zepm.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace check
{

enum class Layout
{
    S,
    L,
    P
};

// How an operand lies in memory: in its layout, or, whatever the layout, without gaps behind a pointer of its own:
// elements, row numbers (int32), or room whose contents after the call do not matter.
enum class Storage
{
    Laid,
    Dense,
    Index,
    Scratch
};

struct Operand
{
    std::string name; // as in the argument names: src1, dst, val
    char letter;      // v, m, t or c
    bool isArray;
    bool isDst;
    Storage storage = Storage::Laid;
    std::optional<Layout> layout = {}; // where it is not the function's

    bool isNumber() const { return letter == 'c' && !isArray; } // passed by value
};

using Sizes = std::vector<int>; // in the order of the arguments

// The elements of one operand by value, rows and columns as stored.
template <class T>
struct Tensor
{
    int count = 1, rows = 1, cols = 1;
    std::vector<T> elements = {};
    // Where the first element of each object lies, and how far apart rows and elements are, for sums that depend on it.
    std::vector<const void*> addresses = {};
    ptrdiff_t stride1 = 0, stride2 = 0;

    T& at(int k, int i, int j) { return elements[index(k, i, j)]; }
    const T& at(int k, int i, int j) const { return elements[index(k, i, j)]; }

private:
    size_t index(int k, int i, int j) const
    {
        const int object = count == 1 ? 0 : k;
        return (static_cast<size_t>(object) * static_cast<size_t>(rows) + static_cast<size_t>(i)) *
                   static_cast<size_t>(cols) +
               static_cast<size_t>(j);
    }
};

// One call by value: the operands in the order of the arguments. A destination holds what stands there before the call,
// and what a failure leaves alone stays; row numbers are values like any other here.
template <class T>
struct Problem
{
    Sizes sizes;
    int count = 1;
    std::vector<Tensor<T>> operands;
    Status status = stsOk; // what the call returns
    bool mayFail = false;  // whether the values may hold an object that fails
    bool isPacked = false; // no operand is a table of elements, and every stride2 is the element size
};

// Random 32-bit numbers. A case has its own seed and few elements: the standard engines of this quality take longer to
// seed than a case to run.
class Random
{
public:
    using result_type = uint32_t;
    explicit Random(uint64_t seed) : state(seed) {}
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return UINT32_MAX; }
    result_type operator()() // splitmix64
    {
        uint64_t x = state += 0x9e3779b97f4a7c15;
        x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9;
        x = (x ^ (x >> 27)) * 0x94d049bb133111eb;
        return static_cast<result_type>(x >> 32);
    }

private:
    uint64_t state;
};

template <class T>
using Reference = std::function<void(Problem<T>&)>;
template <class T>
using Values = std::function<void(Problem<T>&, Random&)>;

// An argument as it is passed.
using Arg = std::variant<const void*, int32, double>;

template <class Parameter>
Parameter pass(const Arg& arg)
{
    if constexpr (std::is_pointer_v<Parameter>)
        return static_cast<Parameter>(const_cast<void*>(std::get<const void*>(arg)));
    else if constexpr (std::is_floating_point_v<Parameter>)
        return static_cast<Parameter>(std::get<double>(arg));
    else
        return std::get<int32>(arg);
}

// An exported function as a table of rows has it: plain data, of which the compiler makes many in no time.
struct Named
{
    const char* name;
    void (*function)();
    Status (*caller)(void (*function)(), const std::vector<Arg>&);
    size_t parameterCount;
};

template <class... Parameter>
Named named(const char* name, Status (*function)(Parameter...))
{
    auto caller = [](void (*untyped)(), const std::vector<Arg>& args) {
        const auto typed = reinterpret_cast<Status (*)(Parameter...)>(untyped);
        return [&]<size_t... N>(std::index_sequence<N...>) { return typed(pass<Parameter>(args.at(N))...); }
        (std::index_sequence_for<Parameter...>{});
    };
    return {name, reinterpret_cast<void (*)()>(function), caller, sizeof...(Parameter)};
}

struct Limits
{
    int32 packed = 0, general = 0; // the smallest estimate that takes the driver
};

struct Function
{
    std::string name, operation, form;
    bool isFloat32 = true;
    Layout layout = Layout::S;
    Named exported{};

    std::vector<Operand> operands;  // in the order of the arguments
    std::vector<std::string> items; // the argument list: operands, sizes and "count" by name

    std::vector<std::string> sizeNames;
    std::vector<Sizes> sizesToTry;
    Sizes written, looped; // sizes with code of their own, and sizes that a loop serves
    Sizes typical;         // for lanes that take one alone; rows and columns differ where they may
    std::function<std::pair<int, int>(const Operand&, const Sizes&)> shape; // rows and columns as stored
    std::function<bool(const Sizes&)> sizesMatch;                           // where validation has a step M

    std::string order; // steps of validation: N C Z M T R, and O where stride0 has a step of its own, above one object
    std::vector<std::string> untested; // strides and shifts that validation leaves out, by argument name
    Limits limits;
    std::function<int32(const Sizes&, int32)> estimate; // of the sizes and the count

    std::variant<std::monostate, Reference<float32>, Reference<float64>> reference;
    // Instead of values over many orders of magnitude in the sources, where the family needs others.
    std::variant<std::monostate, Values<float32>, Values<float64>> values;
    bool worksInPlace = false;                                    // the destination may be any source of its shape
    std::function<bool(const Sizes&, bool isPacked)> onlyInPlace; // if set, for these calls alone
    bool nansAlike = false; // sums of several terms: which of two NaNs survives is not fixed

    Status call(const std::vector<Arg>& args) const { return exported.caller(exported.function, args); }
    bool isArray() const;
    bool hasTables() const; // of elements
    bool hasDriver() const { return limits.general > 0; }
};

// Operation, form, type and layouts from the name, and the operands of the form's letters. Throws where a part of the
// name is unknown.
Function parsed(const std::string& name);

// All names of a form: of single objects, of arrays.
#define CHECK_NAME(name) check::named(#name, name)
#define SINGLE_FORM(form)                                                                                              \
    CHECK_NAME(form##_32f), CHECK_NAME(form##_32f_P), CHECK_NAME(form##_64f), CHECK_NAME(form##_64f_P)
#define ARRAY_FORM(form)                                                                                               \
    CHECK_NAME(form##_32f), CHECK_NAME(form##_32f_L), CHECK_NAME(form##_32f_P), CHECK_NAME(form##_64f),                \
        CHECK_NAME(form##_64f_L), CHECK_NAME(form##_64f_P)

// ---- What families have in common -----------------------------------------------------------------------------------

// The rows of a family from its names.
std::vector<Function> rows(std::initializer_list<Named> names, Function (*completed)(Function));

// Pointers, the count, sizes, strides, shifts, as far as the layout has them.
std::string standardOrder(const Function& f);

// All operands, the sizes, the count.
std::vector<std::string> standardItems(const Function& f);

// A size for each of the numbers.
std::vector<Sizes> lengths(std::initializer_list<int> list);

// Calls serve with a zero of the function's element type.
template <class Serve>
void forElementType(const Function& f, Serve serve)
{
    f.isFloat32 ? serve(float32{}) : serve(float64{});
}

// ---- The families ---------------------------------------------------------------------------------------------------

namespace families
{
#define FAMILY(name) std::vector<Function> name();
#include "tests/check/families.h"
#undef FAMILY
} // namespace families

// Every exported function that takes arguments. Throws where a family has left something out.
const std::vector<Function>& allFunctions();

} // namespace check
