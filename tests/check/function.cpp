#include "tests/check/function.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace check
{

namespace
{

Layout layoutOf(const std::string& name, char letter)
{
    switch (letter)
    {
    case 'S': return Layout::S;
    case 'L': return Layout::L;
    case 'P': return Layout::P;
    default: throw std::invalid_argument(name + ": no such layout");
    }
}

void require(const Function& f, bool isGiven, const char* what)
{
    if (!isGiven) throw std::invalid_argument(f.name + " lacks " + what);
}

// What a lane would miss only when it comes to it.
void checkComplete(const Function& f)
{
    const size_t sizes = f.sizeNames.size();
    auto isSizes = [&](const Sizes& given) { return given.size() == sizes; };
    require(f, !f.sizesToTry.empty() && std::all_of(f.sizesToTry.begin(), f.sizesToTry.end(), isSizes), "sizesToTry");
    require(f, isSizes(f.typical), "typical");
    require(f, isSizes(f.written), "written");
    require(f, isSizes(f.looped), "looped");
    require(f, !f.items.empty(), "items");
    require(f, !f.order.empty(), "order");
    require(f, f.shape != nullptr, "shape");
    require(f, f.estimate != nullptr || !f.hasDriver(), "estimate");
    require(f, f.reference.index() == (f.isFloat32 ? 1 : 2), "reference of its type");
    require(f, f.values.index() == 0 || f.values.index() == f.reference.index(), "values of its type");
}

} // namespace

bool Function::isArray() const
{
    return std::any_of(operands.begin(), operands.end(), [](const Operand& o) { return o.isArray; });
}

bool Function::hasTables() const
{
    return std::any_of(operands.begin(), operands.end(),
                       [&](const Operand& o) { return o.layout.value_or(layout) == Layout::P; });
}

Function parsed(const std::string& name)
{
    Function f;
    f.name = name;
    std::vector<std::string> parts;
    std::istringstream words(name.substr(4)); // behind "zepm"
    for (std::string part; std::getline(words, part, '_');) parts.push_back(part);
    if (parts.size() < 3 || parts.size() > 4) throw std::invalid_argument(name);
    f.operation = parts[0];
    f.form = parts[1];
    if (parts[2] != "32f" && parts[2] != "64f") throw std::invalid_argument(name + ": no such type");
    f.isFloat32 = parts[2] == "32f";
    // One letter, where S is left out, or those of source and destination.
    const std::string suffix = parts.size() > 3 ? parts[3] : "";
    if (suffix.size() > 2 || suffix == "S") throw std::invalid_argument(name + ": no such layout");
    if (!suffix.empty()) f.layout = layoutOf(name, suffix[0]);

    bool anyArray = false;
    for (size_t n = 0; n < f.form.size(); ++n)
    {
        if (std::string("vmtc").find(f.form[n]) == std::string::npos)
            throw std::invalid_argument(name + ": no such operand");
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
    if (suffix.size() == 2) f.operands.back().layout = layoutOf(name, suffix[1]);
    return f;
}

std::vector<Function> rows(std::initializer_list<Named> names, Function (*completed)(Function))
{
    std::vector<Function> functions;
    for (const Named& name : names)
    {
        Function f = parsed(name.name);
        f.exported = name;
        functions.push_back(completed(f));
    }
    return functions;
}

std::string standardOrder(const Function& f)
{
    if (f.isArray()) return f.layout == Layout::S ? "NCZT" : "NCZTR";
    return f.layout == Layout::S ? "NZT" : "NZR";
}

std::vector<std::string> standardItems(const Function& f)
{
    std::vector<std::string> items;
    for (const Operand& operand : f.operands) items.push_back(operand.name);
    items.insert(items.end(), f.sizeNames.begin(), f.sizeNames.end());
    if (f.isArray()) items.push_back("count");
    return items;
}

std::vector<Sizes> lengths(std::initializer_list<int> list)
{
    std::vector<Sizes> sizes;
    for (const int n : list) sizes.push_back({n});
    return sizes;
}

const std::vector<Function>& allFunctions()
{
    static const std::vector<Function> functions = [] {
        std::vector<Function> all;
        auto add = [&](const std::vector<Function>& family) { all.insert(all.end(), family.begin(), family.end()); };
#define FAMILY(name) add(families::name());
#include "tests/check/families.h"
#undef FAMILY
        std::for_each(all.begin(), all.end(), checkComplete);
        return all;
    }();
    return functions;
}

} // namespace check
