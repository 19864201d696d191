#include "tests/check/function.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace check
{

Function parsed(const std::string& name)
{
    Function f;
    f.name = name;
    std::vector<std::string> parts;
    std::istringstream words(name.substr(4)); // behind "zepm"
    for (std::string part; std::getline(words, part, '_');) parts.push_back(part);
    if (parts.size() < 3) throw std::invalid_argument(name);
    f.operation = parts[0];
    f.form = parts[1];
    f.isFloat32 = parts[2] == "32f";
    if (parts.size() > 3) f.layout = parts[3] == "L" ? Layout::L : Layout::P;

    bool anyArray = false;
    for (size_t n = 0; n < f.form.size(); ++n)
    {
        const bool isArray = n + 1 < f.form.size() && f.form[n + 1] == 'a';
        f.operands.push_back({"", f.form[n], isArray, false});
        anyArray = anyArray || isArray;
        if (isArray) ++n;
    }
    // The argument list names a vector or matrix before a constant, whatever the order in the name.
    std::stable_partition(f.operands.begin(), f.operands.end(), [](const Operand& o) { return o.letter != 'c'; });
    const auto numbered =
        std::count_if(f.operands.begin(), f.operands.end(), [](const Operand& o) { return o.letter != 'c'; });
    for (size_t n = 0; n < f.operands.size(); ++n)
        f.operands[n].name = f.operands[n].letter == 'c' ? "val" : numbered > 1 ? "src" + std::to_string(n + 1) : "src";
    f.operands.push_back({"dst", f.operands[0].letter == 'v' ? 'v' : 'm', anyArray, true});
    return f;
}

const std::vector<Function>& allFunctions()
{
    static const std::vector<Function> functions = [] {
        std::vector<Function> all;
        for (auto family : {vectorFunctions, matrixFunctions, productFunctions, solverFunctions, symmetricFunctions,
                            geometryFunctions})
        {
            const std::vector<Function> rows = family();
            std::copy(rows.begin(), rows.end(), std::back_inserter(all));
        }
        return all;
    }();
    return functions;
}

} // namespace check
