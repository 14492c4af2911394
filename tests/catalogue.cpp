// The catalogue, made from the function lists.

#include "catalogue.hpp"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace {

template <class A>
A as(const Argument& argument)
{
    if constexpr (std::is_pointer_v<A>)
        return reinterpret_cast<A>(argument.bits);
    else if constexpr (std::is_floating_point_v<A>)
        return static_cast<A>(argument.value);
    else
        return static_cast<A>(argument.bits);
}

template <class... A>
auto callerOf(VormStatus (*f)(A...))
{
    return [f](const std::vector<Argument>& arguments) {
        return [&]<std::size_t... I>(std::index_sequence<I...>) { return f(as<A>(arguments.at(I))...); }
        (std::index_sequence_for<A...>{});
    };
}

// "src1Stride0" of operand "src1" and so on; pointers are named pSrc1 or ppSrc1, or src, srcPointers,
// srcList.
Parameter parameterFrom(const std::string& declaration)
{
    Parameter p{};
    const auto nameAt = declaration.find_last_of(" *") + 1;
    p.name = declaration.substr(nameAt);
    const auto stars = std::count(declaration.begin(), declaration.end(), '*');
    const auto endsIn = [&](std::string_view end) { return std::string_view(p.name).ends_with(end); };
    std::string operand = p.name;
    const auto without = [&](std::size_t tail) { operand.resize(operand.size() - tail); };
    if (stars > 0) {
        p.role = stars == 1 ? Role::pointer : Role::table;
        if (operand.size() > 1 && operand[0] == 'p' && (std::isupper(operand[1]) || operand[1] == 'p'))
            operand.erase(0, static_cast<std::size_t>(stars));
        if (endsIn("Pointers")) without(8);
        if (endsIn("List")) without(4);
        operand[0] = static_cast<char>(std::tolower(operand[0]));
    } else if (declaration.starts_with("float") || declaration.starts_with("double")) {
        p.role = Role::value;
    } else if (endsIn("Shift")) {
        p.role = Role::shift, without(5);
    } else if (p.name.find("Stride") != std::string::npos) {
        p.role = Role::stride, p.stride = p.name.back() - '0', without(7);
    } else {
        p.role = p.name == "count" ? Role::count : Role::size;
        operand.clear();
    }
    p.operand = operand;
    return p;
}

Function functionFrom(std::string name, std::string text, std::function<VormStatus(const std::vector<Argument>&)> call)
{
    Function f;
    f.name = name;
    f.call = std::move(call);
    std::istringstream parts(name.substr(4));
    std::getline(parts, f.family, '_');
    std::getline(parts, f.shape, '_');
    std::getline(parts, f.type, '_');
    std::getline(parts, f.layout, '_');
    std::istringstream list(text.substr(1, text.size() - 2));
    for (std::string declaration; std::getline(list, declaration, ',');)
        f.parameters.push_back(parameterFrom(declaration.substr(declaration.find_first_not_of(' '))));
    return f;
}

}  // namespace

std::vector<std::string> Function::operands() const
{
    std::vector<std::string> kinds;
    for (char c : shape) {
        if (c == 'a')
            kinds.back() += c;
        else
            kinds.emplace_back(1, c);
    }
    return kinds;
}

int Function::indexOf(std::string_view parameter) const
{
    for (std::size_t i = 0; i < parameters.size(); ++i)
        if (parameters[i].name == parameter) return static_cast<int>(i);
    return -1;
}

const std::vector<Function>& catalogue()
{
    static const std::vector<Function> functions = {
#define VORM_FUNCTION(name, parameters) functionFrom(#name, #parameters, callerOf(name)),
#include "vorm/elementwise.inc"
#include "vorm/factor.inc"
#include "vorm/math3d.inc"
#include "vorm/products.inc"
#undef VORM_FUNCTION
    };
    return functions;
}

const Function& functionNamed(std::string_view name)
{
    for (const Function& f : catalogue())
        if (f.name == name) return f;
    throw std::out_of_range(std::string(name));
}
