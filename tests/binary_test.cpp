// The built library as a file: what it exports, which layers each function has, and their machine code.

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <set>
#include <sstream>

#include "catalogue.hpp"

namespace {

std::string outputOf(const std::string& command, const std::string& library = VORM_LIBRARY)
{
    std::string text;
    FILE* const pipe = popen((command + " " + library).c_str(), "r");
    if (!pipe) return text;
    char block[65536];
    for (std::size_t n; (n = std::fread(block, 1, sizeof block, pipe)) > 0;) text.append(block, n);
    EXPECT_EQ(pclose(pipe), 0) << command;
    return text;
}

// The names defined in the output of nm, by the class letters given.
std::set<std::string> symbols(const std::string& command, const std::string& classes)
{
    std::set<std::string> names;
    std::istringstream lines(outputOf(command));
    for (std::string address, kind, name; lines >> address >> kind >> name;)
        if (classes.find(kind) != std::string::npos) names.insert(name);
    return names;
}

TEST(Binary, ExportsExactlyTheLists)
{
    std::set<std::string> wanted = {"vormGetLibVersion"};
    for (const Function& f : catalogue()) wanted.insert(f.name);
    EXPECT_EQ(wanted.size(), catalogue().size() + 1);
    EXPECT_EQ(symbols("nm -D --defined-only", "TtWwVvDdBbRri"), wanted);
}

// The whole surface: functions and drivers of each family.
struct FamilyCount {
    const char* family;
    int functions, drivers = 0;
};
constexpr FamilyCount surface[] = {
    {"Add", 95, 72},
    {"AffineTransform", 6},
    {"AffineTransform3DH", 1, 1},
    {"AffineTransformCoord", 4},
    {"AffineTransformNormal", 4},
    {"BaryCentric", 3},
    {"CholeskyBackSubst", 16, 12},
    {"CholeskyDecomp", 10, 6},
    {"Copy", 36},
    {"CrossProduct", 25, 17},
    {"Det", 11, 6},
    {"DotProduct", 19, 12},
    {"EigenValues", 10, 6},
    {"EigenValuesGetBufSize", 2},
    {"EigenValuesSym", 10, 6},
    {"EigenValuesVectors", 10, 6},
    {"EigenValuesVectorsGetBufSize", 2},
    {"EigenValuesVectorsLeft", 10, 6},
    {"EigenValuesVectorsRight", 10, 6},
    {"EigenValuesVectorsSym", 10, 6},
    {"Extract", 30},
    {"FrobNorm", 10, 6},
    {"Gaxpy", 16, 12},
    {"GetLibVersion", 1},
    {"Hermite", 3},
    {"Identity", 1},
    {"InterpolationCatmullRom", 3},
    {"InterpolationLinear", 3},
    {"Invert", 11, 6},
    {"IsIdentity", 1},
    {"L2Norm", 10, 6},
    {"LComb", 16, 12},
    {"LUBackSubst", 16, 12},
    {"LUDecomp", 10, 6},
    {"Len", 3},
    {"LenSqr", 3},
    {"LoadIdentity", 6},
    {"LookAtLH", 1},
    {"LookAtRH", 1},
    {"Max", 3},
    {"Min", 3},
    {"Mul", 175, 138},
    {"MulC", 3},
    {"MulTranspose", 1},
    {"Normalize", 3},
    {"OrthoLH", 1},
    {"OrthoOffCenterLH", 1},
    {"OrthoOffCenterRH", 1},
    {"OrthoRH", 1},
    {"PerspectiveFovLH", 1},
    {"PerspectiveFovRH", 1},
    {"PerspectiveLH", 1},
    {"PerspectiveOffCenterLH", 1},
    {"PerspectiveOffCenterRH", 1},
    {"PerspectiveRH", 1},
    {"Project", 2},
    {"QRBackSubst", 16, 12},
    {"QRDecomp", 10, 6},
    {"RotationAxis", 1},
    {"RotationX", 1},
    {"RotationY", 1},
    {"RotationYawPitchRoll", 1},
    {"RotationZ", 1},
    {"Saxpy", 22, 18},
    {"Scaling", 1},
    {"Sub", 157, 125},
    {"Trace", 10, 6},
    {"Translation", 1},
    {"Transpose", 11},
    {"Unproject", 2},
};
constexpr int total(int FamilyCount::*part)
{
    int sum = 0;
    for (const FamilyCount& f : surface) sum += f.*part;
    return sum;
}
static_assert(total(&FamilyCount::functions) == 874 && total(&FamilyCount::drivers) == 527);

TEST(Binary, FunctionsAndDriversOfEveryFamily)
{
    struct Found {
        int functions, drivers;
    };
    std::map<std::string, Found> found = {{"GetLibVersion", {1, 0}}};
    for (const Function& f : catalogue()) ++found[f.family].functions;
    for (const std::string& name : symbols("nm --defined-only", "tT"))
        if (name.starts_with("n8_ownOMP_vorm")) ++found[name.substr(14, name.find('_', 14) - 14)].drivers;
    for (const FamilyCount& f : surface) {
        const Found counts = found[f.family];
        found.erase(f.family);
        EXPECT_EQ(counts.functions, f.functions) << f.family;
        EXPECT_EQ(counts.drivers, f.drivers) << f.family;
    }
    for (const auto& [family, counts] : found) ADD_FAILURE() << family << " is no family";
}

TEST(Binary, NamesAndStartUp)
{
    const std::string dynamic = outputOf("readelf -d");
    EXPECT_NE(dynamic.find("soname: [libvormu8.so.7.1]"), std::string::npos);
    EXPECT_NE(dynamic.find("Shared library: [libvorcore.so.7.1]"), std::string::npos);
    EXPECT_EQ(std::string(VORM_LIBRARY).substr(std::string(VORM_LIBRARY).rfind('/') + 1), "libvormu8.so.7.1");
    // The loader's initialisation function is ours.
    std::map<std::string, std::string> addresses;
    std::istringstream lines(outputOf("nm"));
    for (std::string line; std::getline(lines, line);)
        if (line.size() > 19) addresses[line.substr(19)] = line.substr(0, 16);
    const auto init = dynamic.find("(INIT)");
    ASSERT_NE(init, std::string::npos);
    EXPECT_EQ(std::stoull(dynamic.substr(init + 6), nullptr, 16),
              std::stoull(addresses["vormInitialise"], nullptr, 16));
    EXPECT_TRUE(addresses.contains("vorJumpIndexForMergedDLL"));
    for (const char* internal : {"vormMul_v3_32f", "n8_own3dvormInvert_m_32f_4x4", "n8_own3dConvert64f32f_16"})
        EXPECT_TRUE(addresses.contains(internal)) << internal;
}

// What the library may grow to before somebody has to look.
TEST(Binary, SizeOfTheCode)
{
#ifndef VORM_OPTIMISED
    GTEST_SKIP() << "not an optimised build without sanitizers";
#endif
#ifdef __clang__
    constexpr long budget = 5600000;
#else
    constexpr long budget = 5800000;
#endif
    std::istringstream lines(outputOf("size"));
    std::string heading;
    std::getline(lines, heading);
    long text = 0;
    lines >> text;
    EXPECT_GT(text, 0) << heading;
    EXPECT_LT(text, budget);
    std::printf("%ld bytes, %.0f %% of the budget\n", text, 100.0 * double(text) / budget);
}

// Families with a kernel for each layout, whatever the strides.
bool hasOneKernel(const Function& f)
{
    return f.family == "EigenValues" || (f.family.starts_with("EigenValuesVectors") && !f.family.ends_with("Sym"));
}

TEST(Binary, LayersOfEveryFunction)
{
    const auto names = symbols("nm --defined-only", "tTdD");
    for (const Function& f : catalogue()) {
        std::set<std::string> layers = {f.name + "_arraddr", "n8_" + f.name};
        if (!f.isFixed() && !f.shape.empty()) {
            layers.insert("n8_own" + f.name);
            if (f.layout.empty() && !hasOneKernel(f)) layers.insert("n8_own" + f.name + "_S2");
            if (f.layout == "L" && !hasOneKernel(f)) layers.insert("n8_own" + f.name + "S2");
        }
        for (const std::string& layer : layers) EXPECT_TRUE(names.contains(layer)) << layer;
        EXPECT_EQ(names.contains("n8_ownOMP_" + f.name), f.hasDriver()) << f.name;
    }
}

// What fixed forms may call.
bool isShared(const std::string& call)
{
    return call.find("<sincosf@plt>") != call.npos || call.find("<n8_ownvormInvert_m_64f>") != call.npos ||
           call.find("<n8_own3dConvert64f32f_16>") != call.npos;
}

TEST(Binary, MachineCode)
{
#ifndef VORM_OPTIMISED
    GTEST_SKIP() << "not an optimised build without sanitizers";
#endif
    std::istringstream lines(outputOf("objdump -d --no-show-raw-insn"));
    std::map<std::string, std::vector<std::string>> functions;
    std::vector<std::string>* current = nullptr;
    for (std::string line; std::getline(lines, line);) {
        const auto open = line.find('<');
        if (line.ends_with(">:") && open != std::string::npos)
            current = &functions[line.substr(open + 1, line.size() - open - 3)];
        else if (current && line.find('\t') != std::string::npos)
            current->push_back(line.substr(line.find('\t') + 1));
    }
    const auto instruction = [](const std::string& line) { return line.substr(0, line.find_first_of(" \t")); };
    for (const auto& [name, code] : functions)
        for (const std::string& line : code) {
            // AVX and its kin: mnemonics in v (verr and verw aside), and the wider registers.
            EXPECT_FALSE(instruction(line)[0] == 'v' || line.find("%ymm") != line.npos ||
                         line.find("%zmm") != line.npos)
                << name << ": " << line;
        }
    for (const Function& f : catalogue()) {
        const auto& stub = functions[f.name];
        ASSERT_GE(stub.size(), 3u) << f.name;
        EXPECT_TRUE(stub[0].starts_with("mov ") && stub[0].find("<vorJumpIndexForMergedDLL>") != std::string::npos &&
                    stub[1].starts_with("lea ") && stub[1].find("<" + f.name + "_arraddr>") != std::string::npos &&
                    stub[2].starts_with("jmp "))
            << f.name << ": " << stub[0] << "; " << stub[1] << "; " << stub[2];
        for (std::size_t i = 3; i < stub.size(); ++i)
            EXPECT_TRUE(stub[i].find("nop") != std::string::npos || stub[i].starts_with("xchg") ||
                        stub[i].starts_with("int3"))
                << f.name << ": " << stub[i];
        const auto& layer = functions["n8_" + f.name];
        EXPECT_GT(layer.size(), 1u) << f.name;
        for (const std::string& line : layer)
            EXPECT_TRUE(!line.starts_with("call") || (f.isFixed() && isShared(line))) << f.name << ": " << line;
    }
}

// The variants for higher levels have the instructions that round once for a product and a sum, and must not use them.
TEST(Binary, VariantsFuseNothing)
{
    std::istringstream variants(VORM_VARIANTS);
    for (std::string variant; variants >> variant;) {
        std::istringstream lines(outputOf("objdump -d --no-show-raw-insn", variant));
        std::string function;
        std::size_t wide = 0;
        for (std::string line; std::getline(lines, line);) {
            if (line.ends_with(">:")) function = line.substr(line.find('<'));
            wide += line.find("%ymm") != line.npos;
            for (const char* fused : {"\tvfmadd", "\tvfmsub", "\tvfnmadd", "\tvfnmsub"})
                EXPECT_EQ(line.find(fused), line.npos) << variant << ' ' << function << line;
        }
        EXPECT_GT(wide, 0u) << variant;
    }
}

}  // namespace
