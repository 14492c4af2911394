// Lays out the operands of a call, makes it, and holds all that it touched against the model of its family.

#include "harness.hpp"

#include <set>
#include <sstream>

#include "limits.hpp"

namespace {

// The general rule: sums of products take their sizes from each other, everything else has the size of
// its result.
Stored storedAs(const Operand& o, const Function& f, const Problem& p)
{
    const Sizes& s = p.sizes;
    if (const Family* family = familyOf(f); family && family->stored) {
        const Stored special = family->stored(o, f, p);
        if (special.rows > 0) return special;
    }
    if (o.fixed) return o.kind == 'v' ? Stored{1, o.fixed} : Stored{o.fixed, o.fixed};
    if (o.kind == 'c') return {1, 1};
    if (f.isProduct() && o.name == "src1") return o.kind == 't' ? Stored{s.terms, s.rows} : Stored{s.rows, s.terms};
    if (f.isProduct() && o.kind == 'v') return {1, o.name == "src2" ? s.terms : s.rows};
    if (f.isProduct() && o.name == "src2")
        return o.kind == 't' ? Stored{s.columns, s.terms} : Stored{s.terms, s.columns};
    if (o.kind == 'v') return {1, s.columns};
    return o.kind == 't' ? Stored{s.columns, s.rows} : Stored{s.rows, s.columns};
}

template <class T>
T specialValue(Random& random)
{
    switch (pick(random, 0, 40)) {
    case 0: return T(0);
    case 1: return T(-0.0);
    case 2: return std::numeric_limits<T>::infinity();
    case 3: return -std::numeric_limits<T>::infinity();
    case 4: return std::numeric_limits<T>::quiet_NaN();
    case 5: return std::numeric_limits<T>::denorm_min() * T(pick(random, 1, 1000));
    case 6: return std::numeric_limits<T>::max();
    default: return T(uniform(random, -8, 8));
    }
}

template <class T>
T valueOf(Values values, bool isFirst, Random& random)
{
    switch (values) {
    case Values::special: return specialValue<T>(random);
    case Values::integers: return T(pick(random, -2, 2));
    case Values::negativeZeros: return isFirst ? T(-0.0) : T(1);
    default: return chance(random, 8) ? T(chance(random, 50) ? 0.0 : -0.0) : T(uniform(random, -2, 2));
    }
}

template <class T>
void fill(const Placed& p, Values values, bool isFirst, Random& random)
{
    for (int n = 0; n < p.count(); ++n)
        for (int e = 0; e < p.size(); ++e) p.put(n, e, valueOf<T>(values, isFirst, random));
}

// Row numbers that are read are a permutation for each object.
void fillRows(const Placed& p, Random& random)
{
    std::vector<int> rows(p.elements.size());
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = int(i);
    for (int n = 0; n < p.count(); ++n) {
        shuffle(rows, random);
        for (int i = 0; i < p.size(); ++i) p.put(n, i, rows[std::size_t(i)]);
    }
}

Argument argumentFor(const Parameter& p, const Function& f, const Sizes& s, int count, const Placed* o)
{
    switch (p.role) {
    case Role::pointer: return {o->address()};
    case Role::table: return {o->tableAddress};
    case Role::shift: return {o->shift};
    case Role::stride: return {o->stride[p.stride]};
    case Role::count: return {count};
    case Role::value: return {0, f.type == "32f" ? double(o->found<float>(0, 0)) : o->found<double>(0, 0)};
    case Role::size: break;
    }
    if (o) return {p.name.ends_with("Height") ? o->size() / o->columns : o->columns};
    return {p.name == "height" ? s.rows : s.columns};
}

}  // namespace

const Family* familyOf(const Function& f)
{
    static std::map<const Function*, const Family*> known;
    const auto [found, isNew] = known.try_emplace(&f, nullptr);
    if (isNew)
        for (const Family* family : families())
            if (family->has(f)) found->second = family;
    return found->second;
}

Call::Call(const Function& function, const Problem& problem_, Random& random) : f(function), problem(problem_)
{
    const Family* const family = familyOf(f);
    const char* const mould =
        problem.inPlace && family && family->inPlace ? family->inPlace(f, problem.sizes) : nullptr;
    problem.lies.resize(f.operands.size());
    problem.inPlace = mould != nullptr;
    for (std::size_t k = 0; k < f.operands.size(); ++k) {
        const Operand& o = f.operands[k];
        if (mould && o.name == "dst") {
            operands.push_back((*this)[mould]);
            continue;
        }
        operands.push_back(
            place(random, o, storedAs(o, f, problem), problem.count, int(f.bytesOf(o)), problem.lies[k]));
        if (o.isInteger && !o.isWritten)
            fillRows(operands[k], random);
        else if (!o.isInteger)
            f.type == "32f" ? fill<float>(operands[k], problem.values, k == 0, random)
                            : fill<double>(operands[k], problem.values, k == 0, random);
    }
    if (family && family->fill) family->fill(*this, problem.values, random);
    for (int n : problem.failing) family->spoil(*this, n, random);
    for (std::size_t k = 0; k < operands.size(); ++k) operands[k].shade(f.bytesOf(f.operands[k]));
    for (const Parameter& p : f.parameters)
        arguments.push_back(
            argumentFor(p, f, problem.sizes, problem.count, p.operand.empty() ? nullptr : &(*this)[p.operand]));
}

VormStatus Call::make() const
{
    VormStatus status = StatusOk;
    for (std::size_t k = 0; k < operands.size(); ++k) operands[k].close(f.bytesOf(f.operands[k]));
    asked_ = askedDuring(problem.threads, problem.later, [&] { status = f.call(arguments); });
    for (const Placed& operand : operands) operand.open();
    return status;
}

bool Call::isContiguous() const
{
    bool isContiguous = f.layout != "P";
    for (std::size_t k = 0; k < operands.size(); ++k)
        if (f.operands[k].hasStride[2]) isContiguous = isContiguous && operands[k].stride[2] == f.elementSize();
    return isContiguous;
}

Problem someProblem(const Function& f, const Sizes& sizes, Random& random)
{
    constexpr Values values[] = {Values::ordinary, Values::ordinary, Values::ordinary, Values::special,
                                 Values::special,  Values::integers, Values::integers, Values::negativeZeros};
    Problem p{.sizes = sizes, .values = values[pick(random, 0, 7)], .inPlace = chance(random, 15)};
    // Alike in one respect in many problems, so that kernels for contiguous and packed operands are met often.
    const bool isContiguous = chance(random, 60), isPacked = chance(random, 30), inPlanes = chance(random, 40);
    for (const Operand& o : f.operands) {
        Lie lie = someLie(random);
        if (isContiguous) lie.gap2 = 1;
        if (isPacked) lie.padObject = lie.padRow = lie.slot = 0;
        if (inPlanes) lie.planes = true;
        if (!o.isWritten && !p.inPlace && chance(random, 5)) lie.overlapping = pick(random, 1, 3);
        if (!o.isWritten && !p.inPlace && chance(random, 5)) lie.isRepeated = true;
        if (chance(random, 8)) lie.interleaved = chance(random, 50) ? 1 : sizes.rows;
        p.lies.push_back(lie);
    }
    return p;
}

void letResultsOverlap(const Function& f, Problem& p, int way, Random& random)
{
    p.inPlace = false;
    for (std::size_t k = 0; k < f.operands.size(); ++k) {
        const std::string& name = f.operands[k].name;
        if (name != "dst" && name != "dst1" && name != "dst2") continue;
        Lie& lie = p.lies[k];
        lie.planes = way == 0;
        if (way == 0) lie.padObject = -pick(random, 0, p.count - 1);  // planes share memory
        if (way == 1) lie.overlapping = pick(random, 1, 3);
        if (way == 2) lie.overlapping = p.sizes.columns * lie.gap2 + lie.padRow;  // by whole rows
        if (way == 3) lie.interleaved = 1, lie.among = pick(random, 2, 4);
        if (way == 4) lie.isRepeated = true;  // objects that are no neighbours
    }
}

namespace {

// Takes elements of object n over into the shadow: NaNs for NaNs, or all of them.
template <class T>
void accept(const Placed& p, int n, bool nansOnly)
{
    for (int e = 0; e < p.size(); ++e)
        if (!nansOnly || (std::isnan(p.get<T>(n, e)) && std::isnan(p.found<T>(n, e)))) p.set(n, e, p.found<T>(n, e));
}
void accept(const Call& call, std::size_t operand, int n, bool nansOnly)
{
    const Placed& p = call.operands[operand];
    call.f.bytesOf(call.f.operands[operand]) == 4 ? accept<float>(p, n, nansOnly) : accept<double>(p, n, nansOnly);
}

std::string described(const Call& call)
{
    std::ostringstream text;
    const Problem& p = call.problem;
    text << call.f.name << " of " << p.sizes.rows << " x " << p.sizes.columns << " x " << p.sizes.terms << ", count "
         << p.count << ", threads " << p.threads << (p.inPlace ? ", in place" : "") << ":";
    for (std::size_t k = 0; k < call.operands.size(); ++k)
        text << " " << call.f.operands[k].name << " " << call.operands[k].stride[0] << " " << call.operands[k].stride[1]
             << " " << call.operands[k].stride[2] << ";";
    return text.str();
}

}  // namespace

std::string check(const Call& call)
{
    const Function& f = call.f;
    const Family& family = *familyOf(f);
    const int count = f.isArray() ? call.problem.count : 1;
    const int threads = call.problem.threads, later = call.problem.later ? call.problem.later : threads;
    const bool drives = f.isArray() && limitOf(f, call.problem.sizes, count, call.isContiguous()).isReached();
    const bool forks = drives && threads > 1 && count >= threads;

    // Chunks stop for themselves, and any failure may come first.
    const int chunks = forks ? later : 1;
    std::set<VormStatus> expected;
    std::vector<int> done;
    for (int t = 0, n = 0; t < chunks; ++t) {
        const int end = n + count / chunks + (t < count % chunks);
        VormStatus status = StatusOk;
        for (; n < end && (status == StatusOk || family.goesOn); ++n) {
            const VormStatus own = f.type == "32f" ? family.model32f(call, n) : family.model64f(call, n);
            if (own != StatusOk) status = own;
            done.push_back(n);
        }
        if (status != StatusOk) expected.insert(status);
        if (status != StatusOk && !family.goesOn) done.pop_back();
        n = end;
    }
    if (expected.empty()) expected.insert(StatusOk);

    const VormStatus status = call.make();
    if (!expected.contains(status)) return described(call) + " status " + std::to_string(status);
    if (call.asked() != drives + forks) return described(call) + " asked " + std::to_string(call.asked()) + " times";
    bool isJudged = !call.problem.inPlace;
    for (std::size_t k = 0; k < call.operands.size(); ++k) {
        const Placed& p = call.operands[k];
        const Operand& o = f.operands[k];
        if (!o.isWritten) continue;
        isJudged = isJudged && (o.isScratch || !p.overlapsItself(int(f.bytesOf(o))));
        const bool isFree = o.isScratch || !(o.isInteger || family.movesBits);
        for (int n = 0; n < p.count() && isFree; ++n) accept(call, k, n, !o.isScratch);
        for (std::size_t i = 0; i < done.size() && !family.isExact; ++i) accept(call, k, done[i], false);
    }
    for (std::size_t k = 0; k < call.operands.size(); ++k)
        if (!call.operands[k].agrees(f.bytesOf(f.operands[k])))
            return described(call) + " differs in " + f.operands[k].name;
    const auto judge = f.type == "32f" ? family.judge32f : family.judge64f;
    for (std::size_t i = 0; i < done.size() && judge && isJudged; ++i)
        if (const std::string wrong = judge(call, done[i]); !wrong.empty()) return described(call) + " " + wrong;
    return {};
}
