// Products of matrices over arrays: which calls go to the drivers, seen from outside by the number of
// times a stand-in core library is asked for its threads. The results are checked in matrix_products_test.

#include <gtest/gtest.h>

#include <map>

#include "operands.hpp"
#include "standin_core.hpp"

namespace {

bool isMatrixProduct(const Function& f)
{
    const auto kinds = f.kinds();
    const auto isMatrix = [](const std::string& kind) { return kind[0] == 'm' || kind[0] == 't'; };
    return f.family == "Mul" && !f.isFixed() && kinds.size() == 2 && isMatrix(kinds[0]) && isMatrix(kinds[1]);
}

struct Sizes {
    int rows, columns, terms;  // of the result, and of its sums
};

// One function with operands for up to count objects.
class Product {
public:
    // spread is the operand with a gap between its elements: 1, 2, 3 for the destination, or 0.
    Product(const Function& f, Sizes s, int spread, int count, Random& random) : f_(f)
    {
        const auto kinds = f.kinds();
        const auto lay = [&](int number, bool isArray, int rows, int columns) {
            Lie lie{.rows = rows, .columns = columns, .count = isArray ? count : 0, .gap2 = spread == number ? 2 : 1};
            lie.layout = f.layout == "L" && !isArray ? "" : f.layout;
            lie.planes = true;
            operands_.push_back(lie);
            return f.type == "32f" ? Placement{place<float>(random, lie), {}}
                                   : Placement{{}, place<double>(random, lie)};
        };
        const bool turned1 = kinds[0][0] == 't', turned2 = kinds[1][0] == 't';
        placed_["src1"] = lay(1, kinds[0].size() > 1, turned1 ? s.terms : s.rows, turned1 ? s.rows : s.terms);
        placed_["src2"] = lay(2, kinds[1].size() > 1, turned2 ? s.columns : s.terms, turned2 ? s.terms : s.columns);
        placed_["dst"] = lay(3, f.isArray(), s.rows, s.columns);
    }

    // The number of times a call over so many objects asks for the threads.
    int asked(int threads, int count) const
    {
        std::vector<Argument> arguments;
        for (const Parameter& p : f_.parameters) {
            const Lie& lie = operands_[p.name.starts_with("src1") ? 0 : 1];
            if (p.role == Role::size)
                arguments.push_back({p.name.ends_with("Width") ? lie.columns : lie.rows});
            else if (p.role == Role::count)
                arguments.push_back({count});
            else
                arguments.push_back(f_.type == "32f" ? argumentFor(p, placed_.at(p.operand).single)
                                                     : argumentFor(p, placed_.at(p.operand).twice));
        }
        return askedDuring(threads, [&] { EXPECT_EQ(f_.call(arguments), StatusOk) << f_.name; });
    }

    // The measure that decides.
    std::int64_t work(std::int64_t count) const
    {
        const auto kinds = f_.kinds();
        const Lie &a = operands_[0], &b = operands_[1], &d = operands_[2];
        const std::int64_t m = d.rows, n = d.columns, k = kinds[0][0] == 't' ? a.rows : a.columns;
        if (kinds[1].size() == 1) return b.columns * b.rows + (n + k) * m * count;
        if (kinds[0].size() == 1) return a.columns * a.rows + (m + k) * n * count;
        return ((n + k) * m + b.columns * b.rows) * count;
    }

private:
    struct Placement {
        Placed<float> single;
        Placed<double> twice;
    };
    const Function& f_;
    std::vector<Lie> operands_;
    std::map<std::string, Placement> placed_;
};

TEST(MatrixTeams, AtTheLimitAndAbove)
{
    Random random{20160229};
    int members = 0;
    for (const Function& f : catalogue()) {
        if (!isMatrixProduct(f) || !f.isArray()) continue;
        ++members;
        for (int spread : {0, 1, 2, 3}) {
            if (spread > 0 && f.layout == "P") continue;
            const bool contiguous = spread == 0 && f.layout != "P";
            const int limit = !contiguous ? 1440 : f.layout == "L" || f.type == "64f" ? 3600 : 2500;
            bool exact = false;  // some sizes hit the limit itself
            for (const Sizes s : {Sizes{1, 1, 2}, {1, 2, 2}, {2, 1, 2}, {3, 3, 3}, {4, 5, 6}, {7, 2, 3}}) {
                constexpr int most = 1250;
                const Product product(f, s, spread, most, random);
                int count = 1;  // the first one above the limit
                while (product.work(count) <= limit) ++count;
                ASSERT_LE(count, most);
                exact = exact || product.work(count - 1) == limit;
                const auto place = [&] {
                    return testing::Message() << f.name << ", " << s.rows << " x " << s.columns << " of " << s.terms
                                              << ", spread " << spread << ", count " << count;
                };
                EXPECT_EQ(product.asked(2, count - 1), 0) << place();
                EXPECT_EQ(product.asked(1, count), 1) << place() << ", one thread";
                EXPECT_EQ(product.asked(count + 1, count), 1) << place() << ", fewer objects than threads";
                EXPECT_EQ(product.asked(2, count), 2) << place();
            }
            EXPECT_TRUE(exact) << f.name;
        }
        // With as many objects as threads there is a fork, with one object less there is none.
        const Product large(f, {40, 30, 50}, 0, 3, random);
        EXPECT_EQ(large.asked(3, 3), 2) << f.name;
        EXPECT_EQ(large.asked(3, 2), 1) << f.name;
    }
    EXPECT_EQ(members, 72);
}

TEST(MatrixTeams, SingleProductsNeverFork)
{
    Random random{20160229};
    int members = 0;
    for (const Function& f : catalogue()) {
        if (!isMatrixProduct(f) || f.isArray()) continue;
        ++members;
        for (int spread : {0, 1}) EXPECT_EQ(Product(f, {60, 70, 80}, spread, 1, random).asked(4, 1), 0) << f.name;
    }
    EXPECT_EQ(members, 16);
}

// A measure that wraps to a negative number stays serial. The objects lie over each other.
TEST(MatrixTeams, WrappedMeasureIsSerial)
{
    const int terms = 1 << 15, count = 1 << 15;
    const std::vector<float> src(terms + count, 0.5f);
    std::vector<float> dst(count);
    EXPECT_EQ(askedDuring(2,
                          [&] {
                              EXPECT_EQ(vormMul_mama_32f(src.data(), 4, 4 * terms, 4, terms, 1, src.data(), 4, 4, 4, 1,
                                                         terms, dst.data(), 4, 4, 4, count),
                                        StatusOk);
                          }),
              0);
    EXPECT_EQ(dst.back(), 0.25f * terms);
}

}  // namespace
