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
    p.name = p.operand = declaration.substr(nameAt);
    p.isConst = declaration.starts_with("const");
    p.isInteger = declaration.find("int ") != std::string::npos;
    const auto stars = std::count(declaration.begin(), declaration.end(), '*');
    std::string& operand = p.operand;
    const auto endsIn = [&](std::string_view end) {
        if (!std::string_view(operand).ends_with(end)) return false;
        operand.resize(operand.size() - end.size());
        return true;
    };
    if (stars > 0) {
        p.role = stars == 1 ? Role::pointer : Role::table;
        if (operand.size() > 1 && operand[0] == 'p' && (std::isupper(operand[1]) || operand[1] == 'p'))
            operand.erase(0, static_cast<std::size_t>(stars));
        const bool isNumbered = operand.starts_with("dstVector") && std::isdigit(operand.back());
        const std::string number = isNumbered ? operand.substr(operand.size() - 1) : "";
        endsIn(number);
        if (stars > 1 && !endsIn("Pointers")) endsIn("List");
        if (!endsIn("Vectors")) endsIn("Vector");  // dstVectors, dstVectorList1: their strides are dst's, dst1's
        operand += number;
        operand[0] = static_cast<char>(std::tolower(operand[0]));
    } else if (declaration.starts_with("float") || declaration.starts_with("double")) {
        p.role = Role::value;
    } else if (endsIn("Shift")) {
        p.role = Role::shift;
    } else if (endsIn("Stride0") || endsIn("Stride1") || endsIn("Stride2")) {
        p.role = Role::stride, p.stride = p.name.back() - '0';
    } else {
        p.role = p.name == "count" ? Role::count : Role::size;
        if (!endsIn("Width") && !endsIn("Height")) endsIn("Len");
        if (!operand.starts_with("src")) operand.clear();
    }
    return p;
}

// The letters of a shape: "m4v3a" is an m of 4 and an array of v of 3, and "mm4x4" two m of 4.
std::vector<Operand> operandsOfShape(const std::string& shape)
{
    std::vector<Operand> all;
    for (char c : shape) {
        if (c == 'x') break;
        if (c == 'a')
            all.back().isArray = true;
        else if (std::isdigit(c))
            all.back().fixed = c - '0';
        else
            all.push_back({.kind = c});
    }
    for (std::size_t k = all.size(); k-- > 1;)
        if (all[k - 1].fixed == 0) all[k - 1].fixed = all[k].fixed;
    return all;
}

// The sources take the letters of the shape in order, and the destination is a vector where the last of
// them is one; what is not in the name is a vector of its own.
void findOperands(Function& f)
{
    const auto letters = operandsOfShape(f.shape);
    std::size_t next = 0;
    for (const Parameter& p : f.parameters) {
        if (p.role == Role::stride) f.operands[f.operandNamed(p.operand)].hasStride[p.stride] = true;
        if (p.role != Role::pointer && p.role != Role::table && p.role != Role::value) continue;
        Operand o;
        if (p.operand == "val" || p.role == Role::value) {
            for (const Operand& letter : letters)
                if (letter.kind == 'c') o = letter;
            o.kind = 'c';
        } else if (p.operand.starts_with("src")) {
            while (next < letters.size() && letters[next].kind == 'c') ++next;
            o = next < letters.size() ? letters[next++] : letters.back();
        } else if (p.operand == "dst" || p.operand == "dst1" || p.operand == "dst2") {
            for (const Operand& letter : letters)
                if (letter.kind != 'c') o = letter;
            if (o.kind == 't') o.kind = 'm';
            o.isArray = f.isArray();
        } else {
            o.isScratch = p.operand == "buffer";
            o.isArray = !letters.empty() && letters[0].isArray && !o.isScratch;
        }
        o.name = p.operand, o.isInteger = p.isInteger, o.isWritten = p.role != Role::value && !p.isConst;
        if (p.role == Role::table) o.layout = f.layout;
        if (p.role == Role::table && f.hasTwoLayouts()) o.layout = f.layout.substr(o.isWritten, 1);
        f.operands.push_back(o);
    }
    // Of the fixed forms the letters do not tell which operand is which.
    for (Operand& o : f.operands)
        if (f.isFixed()) o.isArray = o.hasStride[0];
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
    if (f.type.empty()) std::swap(f.shape, f.type);  // of no operands: the name has no shape
    std::istringstream list(text.substr(1, text.size() - 2));
    for (std::string declaration; std::getline(list, declaration, ',');)
        f.parameters.push_back(parameterFrom(declaration.substr(declaration.find_first_not_of(' '))));
    findOperands(f);
    return f;
}

}  // namespace

std::size_t Function::operandNamed(std::string_view operand) const
{
    for (std::size_t k = 0; k < operands.size(); ++k)
        if (operands[k].name == operand) return k;
    throw std::out_of_range(name + ": " + std::string(operand));
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
#include "vorm/eigen.inc"
#include "vorm/elementwise.inc"
#include "vorm/factor.inc"
#include "vorm/math3d.inc"
#include "vorm/measures.inc"
#include "vorm/movement.inc"
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
