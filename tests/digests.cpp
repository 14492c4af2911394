// Prints a line "name hash" for every function of the catalogue: what many calls, the same in every run,
// left in memory and returned. Two builds of the library give the same results exactly if they give the
// same lines, whatever compiler or instruction set made them. With names as arguments, only those functions.

#include <cstdio>
#include <cstdlib>

#include "harness.hpp"

namespace {

class Hash {
public:
    void add(std::uint64_t word)
    {
        state_ = (state_ ^ word) * 0x9fb21c651e98df25;
        state_ ^= state_ >> 32;
    }
    void add(const char* bytes, std::size_t size)
    {
        for (std::size_t i = 0; i < size; i += 8) {
            std::uint64_t word;
            std::memcpy(&word, bytes + i, 8);
            add(word);
        }
    }
    std::uint64_t value() const { return state_; }

private:
    std::uint64_t state_ = 0x243f6a8885a308d3;
};

// Sign and payload of a NaN are free.
template <class T>
void withoutNans(const Placed& p)
{
    for (int n = 0; n < p.count(); ++n)
        for (int e = 0; e < p.size(); ++e)
            if (std::isnan(p.found<T>(n, e))) p.put(n, e, std::numeric_limits<T>::quiet_NaN());
}

void addCall(Hash& hash, const Function& f, const Problem& problem, Random& random)
{
    const Call call(f, problem, random);
    const int status = call.make();
    // Eigenproblems fail in two ways. Where chunks of a team do, the status is that of the first to report.
    const bool isAnyFailure = problem.threads != 1 && f.family.starts_with("EigenValues");
    hash.add(std::uint64_t(isAnyFailure ? status != StatusOk : status));
    for (std::size_t k = 0; k < f.operands.size(); ++k) {
        const Operand& o = f.operands[k];
        if (!o.isWritten || o.isScratch) continue;
        const Placed& p = call.operands[k];
        if (!o.isInteger) f.type == "32f" ? withoutNans<float>(p) : withoutNans<double>(p);
        hash.add(p.room->data(), p.room->size());
    }
}

int someSize(Random& random)
{
    constexpr int sizes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17, 31};
    return chance(random, 60) ? pick(random, 3, 6) : sizes[pick(random, 0, 12)];
}

// Products of matrices and sums of them, of any sizes.
bool isRectangular(const Function& f)
{
    const bool anySizes =
        f.family == "Add" || f.family == "Sub" || f.family == "Mul" || f.family == "FrobNorm" || f.isMovement();
    return f.isProduct() || (f.indexOf("height") >= 0 && anySizes);
}

// So many objects that the work of a call pays for a team, some hundred microseconds.
int largeCount(const Function& f, const Sizes& s)
{
    const bool isCubic = !isRectangular(f) && f.operands[0].kind == 'm';
    const int steps = f.isProduct()      ? s.rows * s.columns * s.terms
                      : isCubic          ? s.rows * s.rows * s.rows
                      : isRectangular(f) ? s.rows * s.columns
                                         : s.columns;
    return std::max(20, 400000 / (steps + 5));
}

// Where a team's chunks begin shows in what failing objects leave, so the numbers of threads are part of it.
std::uint64_t digestOf(const Function& f)
{
    Hash hash;
    Random random(f.name.size() * 2654435761u + f.parameters.size());
    for (int call = 0; call < (f.isArray() ? 1200 : 600); ++call) {
        const int n = someSize(random);
        const bool isCube = !isRectangular(f) || chance(random, 50), isLong = f.isArray() && call % 40 == 39;
        Sizes sizes = isCube ? Sizes{n, n, n} : Sizes{n, someSize(random), someSize(random)};
        if (isLong && sizes.rows * sizes.columns * sizes.terms > 216) sizes = {3, 3, 3};
        Problem p = someProblem(f, sizes, random);
        if (f.isArray()) {
            constexpr int teams[] = {1, 1, 1, 2, 3, 8};
            p.count = call == 0 ? largeCount(f, sizes) : isLong ? pick(random, 100, 900) : pick(random, 1, 40);
            p.threads = call == 0 ? 3 : teams[pick(random, 0, 5)];
            // Results that overlap each other are written in ascending order on one thread.
            if (!f.isMovement() && chance(random, 15)) {
                p.threads = 1;
                letResultsOverlap(f, p, pick(random, f.layout == "P" ? 0 : 1, 4), random);
            }
            if (familyOf(f) && familyOf(f)->spoil && chance(random, 25)) p.failing = {pick(random, 0, p.count - 1)};
        }
        addCall(hash, f, p, random);
    }
    return hash.value();
}

}  // namespace

int main(int argc, char** argv)
{
    for (const Function& f : catalogue()) {
        bool isWanted = argc == 1;
        for (int i = 1; i < argc; ++i) isWanted = isWanted || f.name == argv[i];
        if (isWanted) std::printf("%s %016llx\n", f.name.c_str(), static_cast<unsigned long long>(digestOf(f)));
    }
}
