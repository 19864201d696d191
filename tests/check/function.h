// What the test driver knows of an exported function: how it is called, and what it must do.
//
// A family joins by making one Function for each exported name (see vectors.cpp). The name's grammar gives the operands
// and the argument list; the family adds the order of validation, the limits and a plain reference.
#pragma once

#include "zepm.h"

#include <functional>
#include <random>
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

// How an operand lies in memory: in the layout of the function, or, whatever the layout, without gaps behind a pointer
// of its own: elements, row numbers (int32), or room whose contents after the call do not matter.
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
};

// The elements of one operand by value, rows and columns as stored.
template <class T>
struct Tensor
{
    int count = 1, rows = 1, cols = 1;
    std::vector<T> elements;

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
    std::vector<int> sizes;
    int count = 1;
    std::vector<Tensor<T>> operands;
    Status status = stsOk; // what the call returns
    bool mayFail = false;  // whether the values may hold an object that fails
    bool isPacked = false; // every stride2 is the element size
};

template <class T>
using Reference = std::function<void(Problem<T>&)>;
template <class T>
using Values = std::function<void(Problem<T>&, std::mt19937&)>;

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

using Call = std::function<Status(const std::vector<Arg>&)>;

template <class... Parameter>
Call callOf(Status (*function)(Parameter...))
{
    return [function](const std::vector<Arg>& args) {
        return [&]<size_t... N>(std::index_sequence<N...>) { return function(pass<Parameter>(args.at(N))...); }
        (std::index_sequence_for<Parameter...>{});
    };
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
    Call call;
    size_t parameterCount = 0;

    std::vector<Operand> operands;  // in the order of the arguments
    std::vector<std::string> items; // the argument list: operands, sizes and "count" by name
    std::vector<std::string> sizeNames;
    std::vector<std::vector<int>> sizesToTry;
    std::function<std::pair<int, int>(const Operand&, const std::vector<int>&)> shape; // rows and columns as stored
    std::function<bool(const std::vector<int>&)> sizesMatch;                           // where validation has a step M

    std::string order;                 // steps of validation: N C Z M T R
    std::vector<std::string> untested; // strides and shifts that validation leaves out, by argument name
    Limits limits;
    std::function<int32(const std::vector<int>&, int32)> estimate; // of the sizes and the count

    std::variant<std::monostate, Reference<float32>, Reference<float64>> reference;
    // Instead of values over many orders of magnitude in the sources, where the family needs others.
    std::variant<std::monostate, Values<float32>, Values<float64>> values;
    bool worksInPlace = false; // the destination may be any source of its shape
    bool nansAlike = false;    // sums of several terms: which of two NaNs survives is not fixed

    bool isArray() const
    {
        for (const Operand& operand : operands)
            if (operand.isArray) return true;
        return false;
    }
    bool hasDriver() const { return limits.general > 0; }
};

// Operation, form, type and layout from the name, and the operands of the form's letters.
Function parsed(const std::string& name);

template <class... Parameter>
Function described(const std::string& name, Status (*function)(Parameter...))
{
    Function f = parsed(name);
    f.call = callOf(function);
    f.parameterCount = sizeof...(Parameter);
    return f;
}

// Every exported function that takes arguments.
const std::vector<Function>& allFunctions();

// The families' rows.
std::vector<Function> vectorFunctions();
std::vector<Function> matrixFunctions();
std::vector<Function> productFunctions();
std::vector<Function> solverFunctions();
std::vector<Function> symmetricFunctions();
std::vector<Function> geometryFunctions();

} // namespace check
