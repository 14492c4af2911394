// vormAdd and vormSub of single vectors: beyond the small sizes a loop over ascending elements, so that the
// destination may overlap either source.

#include <gtest/gtest.h>

#include "harness.hpp"

namespace {

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
                model[to + i] = f.family == "Add" ? x + y : isFirst ? x - y : y - x;
            }
            ASSERT_EQ(f.call(arguments), StatusOk);
            ASSERT_EQ(memory, model) << f.name << ", " << ahead << " ahead, len " << len;
        }
}

TEST(VectorSums, SingleVectorsMayOverlap)
{
    Random random(20120924);
    for (const Function& f : catalogue())
        for (std::size_t k = 0; k < 2 && (f.family == "Add" || f.family == "Sub"); ++k)
            if (!f.isArray() && !f.isFixed() && f.layout.empty() && f.operands[k].kind == 'v')
                f.type == "32f" ? checkOverlaps<float>(f, k, random) : checkOverlaps<double>(f, k, random);
}

}  // namespace
