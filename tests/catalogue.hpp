// Every exported function as data, read from the lists: its name taken apart by the naming grammar,
// its operands and parameters with their roles, and a way to call it with arguments chosen at run time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "vorm/vorm.h"

enum class Role { pointer, table, shift, stride, size, count, value };

struct Parameter {
    Role role;
    std::string name;     // as in the prototype: "src1Stride0"
    std::string operand;  // whose it is: "src1", "val", "dst"; empty for sizes of the call and count
    int stride = 0;       // 0, 1 or 2 of a stride
    bool isInteger = false, isConst = false;  // what a pointer leads to
};

struct Argument {  // an address or a 32-bit number, or the value of a constant
    std::intptr_t bits = 0;
    double value = 0;
};

// What name and parameters tell about an operand.
struct Operand {
    std::string name = {};  // "src1", "val", "dst", "pivotIndex", ...
    char kind = 'v';        // of the shape's letters: v, m, t or c; v for what is not in the name
    int fixed = 0;          // elements of a v3, rows of an m4
    bool isArray = false;   // of count objects
    bool isWritten = false, isInteger = false;
    bool isScratch = false;   // a buffer, whose contents nobody looks at
    std::string layout = {};  // "", "L" or "P": that of the function where the operand takes part in it
    bool hasStride[3] = {};   // those left out are packed
};

struct Function {
    // "vormAdd_vav_32f_L": "Add", "vav", "32f", "L". A copy has the layouts of source and destination: "SP".
    std::string name, family, shape, type, layout;
    std::vector<Parameter> parameters;
    std::vector<Operand> operands;  // in the order of the parameters
    std::function<VormStatus(const std::vector<Argument>&)> call;

    int elementSize() const { return type == "32f" ? 4 : 8; }
    std::size_t bytesOf(const Operand& o) const
    {
        return std::size_t(o.isInteger ? 4 : elementSize());
    }                                                                                 // of an element
    bool isFixed() const { return shape.find_first_of("234") != std::string::npos; }  // v3, m4 and the like
    bool isArray() const { return shape.find('a') != std::string::npos; }
    // All arrays but a member of two families, and what computes nothing.
    bool hasDriver() const
    {
        return isArray() && !isFixed() && !isMovement() && name != "vormSub_mat_32f_L" &&
               name != "vormCrossProduct_vav_32f_P";
    }
    bool hasTwoLayouts() const { return layout.size() == 2; }
    bool isInPointerLayout() const { return layout.find('P') != std::string::npos; }  // some operand of it
    // Moves elements without looking at them: on the calling thread, and what shares memory is the caller's fault.
    bool isMovement() const
    {
        return !isFixed() &&
               (family == "Copy" || family == "Extract" || family == "LoadIdentity" || family == "Transpose");
    }
    bool isProduct() const { return indexOf("src1Width") >= 0; }  // with sizes for each source
    int indexOf(std::string_view parameter) const;                // -1 where there is none
    std::size_t operandNamed(std::string_view operand) const;
};

const std::vector<Function>& catalogue();
const Function& functionNamed(std::string_view name);
