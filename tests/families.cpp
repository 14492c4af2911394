#include "harness.hpp"
const std::vector<Family>& families()
{
    static const std::vector<Family> all = {
        {"vector sums", [](const Function& f) { return !f.isFixed() && (f.family == "Add" || f.family == "Sub"); },
         nullptr, nullptr, nullptr,
         [](const Function& f, const Sizes&) -> const char* {
             for (const Operand& o : f.operands)
                 if (o.name != "dst" && o.kind == 'v' && o.isArray == f.isArray())
                     return o.name == "src" ? "src" : o.name == "src1" ? "src1" : "src2";
             return nullptr;
         }},
        {"lu", [](const Function& f) { return f.family == "LUDecomp" || f.family == "LUBackSubst"; }, nullptr, nullptr,
         nullptr,
         [](const Function& f, const Sizes& s) -> const char* {
             if (f.family == "LUDecomp") return "src";
             return s.rows >= 3 && s.rows <= 6 ? "src2" : nullptr;
         }},
    };
    return all;
}
