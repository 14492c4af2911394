// Destinations that overlap a source in part, or themselves, where that is promised.

#include <gtest/gtest.h>

#include "harness.hpp"

namespace {

// Sums and products of single vectors are loops over ascending elements beyond the small sizes.
bool isLoop(const Function& f)
{
    const bool isProduct = f.family == "Mul" && f.shape == "vc";
    return (f.family == "Add" || f.family == "Sub" || f.family == "Saxpy" || f.family == "LComb" || isProduct) &&
           !f.isArray() && !f.isFixed() && f.layout.empty() && f.shape.find_first_of("mt") == f.shape.npos;
}

template <class T>
T combined(const Function& f, T first, T second)
{
    const T val = T(0.5);
    if (f.family == "Add") return first + second;
    if (f.family == "Sub") return first - second;
    if (f.family == "Mul") return first * second;
    const T scaled = first * val;
    return scaled + (f.family == "Saxpy" ? second : second * val);
}

template <class T>
void checkOverlaps(const Function& f, std::size_t overlapped, Random& random)
{
    for (int ahead = -20; ahead <= 20; ++ahead)
        for (int len : {7, 8, 15, 16, 17, 33, 64}) {
            std::vector<T> memory(112), other(64), model;
            for (auto* values : {&memory, &other})
                for (T& value : *values) value = T(uniform(random, -1, 1));
            model = memory;
            constexpr std::size_t at = 24;
            const std::size_t to = at + std::size_t(ahead);
            std::vector<Argument> arguments;
            for (const Parameter& p : f.parameters) {
                T* const place = p.operand == "dst"                         ? &memory[to]
                                 : p.operand == f.operands[overlapped].name ? &memory[at]
                                                                            : other.data();
                arguments.push_back(p.role == Role::pointer  ? Argument{reinterpret_cast<std::intptr_t>(place)}
                                    : p.role == Role::value  ? Argument{0, 0.5}
                                    : p.role == Role::stride ? Argument{sizeof(T)}
                                                             : Argument{len});
            }
            for (std::size_t i = 0; i < std::size_t(len); ++i) {
                const T x = model[at + i], y = f.shape == "vv" ? other[i] : T(0.5);
                const bool isFirst = overlapped == 0 && f.shape[0] != 'c';
                model[to + i] = isFirst ? combined(f, x, y) : combined(f, y, x);
            }
            ASSERT_EQ(f.call(arguments), StatusOk);
            ASSERT_EQ(memory, model) << f.name << ", " << ahead << " ahead, len " << len;
        }
}

TEST(Overlap, SingleVectors)
{
    Random random(20120924);
    for (const Function& f : catalogue())
        for (std::size_t k = 0; k + 1 < f.operands.size() && isLoop(f); ++k)
            if (f.operands[k].kind == 'v')
                f.type == "32f" ? checkOverlaps<float>(f, k, random) : checkOverlaps<double>(f, k, random);
}

// Rows of a destination that share memory: the last one wins, as in a loop over ascending rows and columns.
template <class T>
void checkRows(const Function& f, int height, int width, int stride1, int stride2, Random& random)
{
    constexpr int pitch = 9;
    std::vector<T> sources[2], dst(200), model;
    for (auto& source : sources)
        for (int i = 0; i < pitch * pitch; ++i) source.push_back(T(uniform(random, -1, 1)));
    model = dst;
    const auto from = [&](std::size_t source, int r, int c) {
        const char kind = f.operands[source].kind;
        return kind == 'c' ? T(0.5) : sources[source][std::size_t(kind == 't' ? c * pitch + r : r * pitch + c)];
    };
    for (int r = 0; r < height; ++r)
        for (int c = 0; c < width; ++c)
            model[std::size_t(r * stride1 + c * stride2)] = combined(f, from(0, r, c), from(1, r, c));
    std::vector<Argument> arguments;
    for (const Parameter& p : f.parameters) {
        T* const place = p.operand == "dst" ? dst.data() : sources[p.operand == "src2"].data();
        const int elements = p.operand == "dst"     ? (p.name.back() == '1' ? stride1 : stride2)
                             : p.name.back() == '1' ? pitch
                                                    : 1;
        arguments.push_back(p.role == Role::pointer  ? Argument{reinterpret_cast<std::intptr_t>(place)}
                            : p.role == Role::value  ? Argument{0, 0.5}
                            : p.role == Role::stride ? Argument{elements * int(sizeof(T))}
                                                     : Argument{p.name == "width" ? width : height});
    }
    ASSERT_EQ(f.call(arguments), StatusOk);
    ASSERT_EQ(dst, model) << f.name << " " << height << "x" << width << ", strides " << stride1 << " " << stride2;
}

TEST(Overlap, RowsOfMatrices)
{
    Random random(20120924);
    for (const Function& f : catalogue()) {
        const bool isScaling = f.family == "Mul" && f.shape.find('c') != f.shape.npos;
        const bool isOfMatrices = !f.isArray() && !f.isFixed() && f.shape.find('v') == f.shape.npos;
        if (!isOfMatrices || !f.layout.empty() || !(f.family == "Add" || f.family == "Sub" || isScaling)) continue;
        for (int height = 1; height <= 9; ++height)
            for (int width = 1; width <= 9; ++width)
                for (const auto& [stride1, stride2] : {std::pair{1, 1}, {2, 1}, {5, 1}, {1, 2}, {1, 5}, {2, 3}})
                    f.type == "32f" ? checkRows<float>(f, height, width, stride1, stride2, random)
                                    : checkRows<double>(f, height, width, stride1, stride2, random);
    }
}

// All of an object of vormCrossProduct is read before its first element is written: its sources and its result lie
// anywhere over each other, byte by byte, in a window of the object's own.
template <class T>
void checkCrossProduct(const Function& f, bool inPlanes, Random& random)
{
    constexpr int e = sizeof(T), window = 16 * e, count = 21;
    const int step = inPlanes ? e : window;  // from object to object
    std::vector<char> memory(9 * count * window);
    for (std::size_t i = 0; i < memory.size(); i += e) {
        const T value = T(uniform(random, -1, 1));
        std::memcpy(&memory[i], &value, e);
    }
    std::vector<char> model = memory;
    const auto element = [](std::vector<char>& in, std::ptrdiff_t at, const T* value) {
        T found;
        value ? std::memcpy(&in[std::size_t(at)], value, e) : std::memcpy(&found, &in[std::size_t(at)], e);
        return value ? *value : found;
    };

    // Where the elements of object 0 begin; those of a common operand in a window that is nobody's.
    std::ptrdiff_t at[3][3];
    int stride2[3];
    std::vector<int> planes = {0, 1, 2, 3, 4, 5};
    for (int k = 0; k < 3; ++k) {
        shuffle(planes, random);
        stride2[k] = e * pick(random, 1, 4);
        const int first = pick(random, 0, window - 2 * stride2[k] - e);
        const std::ptrdiff_t common = f.operands[std::size_t(k)].isArray ? 0 : 8 * count * window;
        for (int i = 0; i < 3; ++i)
            at[k][i] = common + (inPlanes && !common ? planes[std::size_t(i)] * (count * e) : first + i * stride2[k]);
    }
    for (int n = 0; n < (f.isArray() ? count : 1); ++n) {
        T a[2][3];
        for (int k = 0; k < 2; ++k)
            for (int i = 0; i < 3; ++i)
                a[k][i] = element(model, at[k][i] + (f.operands[std::size_t(k)].isArray ? n * step : 0), nullptr);
        for (int i = 0; i < 3; ++i) {
            const int j = (i + 1) % 3, k = (i + 2) % 3;
            const T result = a[0][j] * a[1][k] - a[0][k] * a[1][j];
            element(model, at[2][i] + n * step, &result);
        }
    }

    std::vector<char*> tables[3];
    for (std::size_t k = 0; k < 3; ++k)
        for (int i = 0; i < (f.layout == "L" ? count : 3); ++i)
            tables[k].push_back(&memory[std::size_t(f.layout == "L" ? at[k][0] + i * step : at[k][i])]);
    std::vector<Argument> arguments;
    for (const Parameter& p : f.parameters) {
        const std::size_t k = p.role == Role::count ? 0 : f.operandNamed(p.operand);
        arguments.push_back(p.role == Role::pointer  ? Argument{reinterpret_cast<std::intptr_t>(tables[k][0])}
                            : p.role == Role::table  ? Argument{reinterpret_cast<std::intptr_t>(tables[k].data())}
                            : p.role == Role::shift  ? Argument{0}
                            : p.role == Role::stride ? Argument{p.stride == 0 ? step : stride2[k]}
                                                     : Argument{count});
    }
    ASSERT_EQ(f.call(arguments), StatusOk);
    ASSERT_EQ(memory, model) << f.name << (inPlanes ? " in planes" : "");
}

TEST(Overlap, CrossProducts)
{
    Random random(20120924);
    for (const Function& f : catalogue())
        for (int repeat = 0; f.family == "CrossProduct" && !f.isFixed() && repeat < 200; ++repeat) {
            const bool inPlanes = f.layout == "P" && f.isArray() && repeat % 2;
            f.type == "32f" ? checkCrossProduct<float>(f, inPlanes, random)
                            : checkCrossProduct<double>(f, inPlanes, random);
            if (HasFatalFailure()) return;
        }
}

TEST(Overlap, FixedProduct)
{
    float source[48], a[16], b[16], wanted[16];
    for (int k = 0; k < 48; ++k) source[k] = static_cast<float>(k * k % 17) - 8;
    EXPECT_EQ(vormMul_mm4x4_32f(nullptr, source, source), StatusNullPointer);
    EXPECT_EQ(vormMul_mm4x4_32f(source, nullptr, source), StatusNullPointer);
    EXPECT_EQ(vormMul_mm4x4_32f(source, source, nullptr), StatusNullPointer);

    // The destination anywhere over the sources, apart, in place or overlapping in part.
    for (int to = 0; to <= 32; ++to) {
        float memory[48];
        std::memcpy(memory, source, sizeof memory);
        std::memcpy(a, memory + 1, sizeof a), std::memcpy(b, memory + 17, sizeof b);
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 4; ++j)
                wanted[4 * i + j] =
                    a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j] + a[4 * i + 2] * b[8 + j] + a[4 * i + 3] * b[12 + j];
        ASSERT_EQ(vormMul_mm4x4_32f(memory + 1, memory + 17, memory + to), StatusOk);
        EXPECT_EQ(std::memcmp(memory + to, wanted, sizeof wanted), 0) << to;
    }
}

}  // namespace
