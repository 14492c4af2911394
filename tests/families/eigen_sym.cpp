// vormEigenValuesSym and vormEigenValuesVectorsSym, bit by bit as their list says, also what a singular matrix and one
// that does not converge leave. The two directions of the iteration are written out, as the list has them.

#include "harness.hpp"
#include "square_matrix.hpp"

namespace {

template <class T>
struct Solver {
    static constexpr T eps = std::numeric_limits<T>::epsilon();
    int n;
    bool wantsVectors;
    Matrix<T> w{n}, v{n};
    std::vector<T> values = std::vector<T>(std::size_t(n));

    T& value(int i) { return values[std::size_t(i)]; }
    T& d(int i) { return w(i, i); }
    T& e(int i) { return w(i + 1, i); }
    bool isSmall(int i) { return 0.5 * double(std::fabs(e(i))) <= double(eps); }

    // Sums have two terms or more and begin with the first products.
    static T paired(int first, int end, auto term)
    {
        T even = term(first), odd = term(first + 1);
        int i = first + 2;
        for (; i + 2 <= end; i += 2) even += term(i), odd += term(i + 1);
        return i < end ? even + odd + term(i) : even + odd;
    }
    static T inEights(int first, int end, auto term)
    {
        const int eights = (end - first) / 8;
        T s[8];
        for (int l = 0; l < 8 && eights > 0; ++l) s[l] = term(first + l);
        for (int k = 1; k < eights; ++k)
            for (int l = 0; l < 8; ++l) s[l] += term(first + 8 * k + l);
        int i = first + std::max(1, 8 * eights);
        T sum = eights > 0 ? ((s[0] + s[1]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7])) : term(first);
        for (; i < end; ++i) sum += term(i);
        return sum;
    }

    VormStatus orderTwo()
    {
        const T a = w(0, 0), b = w(0, 1), c = w(1, 1);
        if (std::fabs(c * a - b * b) <= eps) return StatusSingular;
        const T t = a + c, difference = a - c, s = std::sqrt(difference * difference + (2 * b) * (2 * b));
        if (t > eps || t < -eps) {
            value(0) = (t > eps ? t + s : t - s) * T(0.5);
            value(1) = (a * c - b * b) / value(0);
        } else {
            value(0) = T(0.5) * s, value(1) = T(-0.5) * s;
        }
        const int sign1 = t < -eps ? -1 : 1, sign2 = difference < -eps ? -1 : 1;
        const T x = sign2 < 0 ? difference - s : difference + s, q2 = 2 * b;
        T p = 1, q = 0;
        if (std::fabs(x) > std::fabs(q2)) {
            const T r = -q2 / x, h = 1 / std::sqrt(r * r + 1);
            p = r * h, q = h;
        } else if (!(std::fabs(q2) <= eps)) {
            const T r = -x / q2, h = 1 / std::sqrt(r * r + 1);
            p = h, q = r * h;
        }
        if (sign1 == sign2) {
            const T before = p;
            p = -q, q = before;
        }
        v(0, 0) = p, v(0, 1) = -q, v(1, 0) = q, v(1, 1) = p;
        return StatusOk;
    }

    void reduce()
    {
        std::vector<T> store(std::size_t(n), 0);
        const auto u = [&](int i) -> T& { return store[std::size_t(i)]; };
        for (int k = 0; k < n - 2; ++k) {
            const T sum = paired(k + 1, n, [&](int i) { return w(i, k) * w(i, k); });
            const T norm = std::sqrt(sum), a = w(k + 1, k);
            for (int i = k + 2; i < n; ++i) u(i) = w(i, k);
            if (wantsVectors && std::fabs(norm - a) <= eps) continue;
            T h;
            if (a > eps)
                u(k + 1) = a + norm, h = (sum + a * norm) * 2;
            else if (std::fabs(a) <= eps)
                u(k + 1) = norm, h = sum + sum;
            else
                u(k + 1) = a - norm, h = (sum - a * norm) * 2;
            if (h <= eps) continue;
            const T beta = 2 / h;
            for (int c = k; c < n; ++c) {
                const T tau = beta * paired(k + 1, n, [&](int i) { return w(i, c) * u(i); });
                for (int i = k + 1; i < n; ++i) w(i, c) -= tau * u(i);
            }
            for (int r = k; r < n; ++r) {
                const T tau = beta * inEights(k + 1, n, [&](int j) { return w(r, j) * u(j); });
                for (int j = k + 1; j < n; ++j) w(r, j) -= tau * u(j);
            }
            for (int r = 1; r < n && k > 0; ++r) {
                const T tau = beta * paired(k + 1, n, [&](int j) { return v(r, j) * u(j); });
                for (int j = k + 1; j < n; ++j) v(r, j) -= tau * u(j);
            }
            for (int i = 1; i < n && k == 0; ++i)
                for (int j = i; j < n; ++j) v(i, j) = v(j, i) = i == j ? 1 - beta * u(i) * u(j) : -(beta * u(i) * u(j));
        }
    }

    // Where a sweep begins: the last argument of step f.
    T shifted(int l, int towards, int m, T element)
    {
        T g = (d(towards) - d(l)) / (2 * element);
        const T r = std::sqrt(g * g + 1);
        g = g > eps ? g + r : g - r;
        return d(m) - d(l) + element / g;
    }

    bool downward()
    {
        for (int l = 0; l < n; ++l)
            for (int sweeps = 0;; ++sweeps) {
                int m = l;
                while (m < n - 1 && !isSmall(m)) ++m;
                if (m == l) break;
                if (sweeps == 30) return false;
                T g = shifted(l, l + 1, m, e(l)), s = 1, c = 1, p = 0, rho = 0;
                bool ended = false;
                for (int i = m - 1; i >= l; --i) {
                    const T f = s * e(i), b = c * e(i), r = std::sqrt(f * f + g * g);
                    if (i < m - 1) e(i + 1) = r;
                    if (r <= eps) {
                        d(i + 1) -= p;
                        if (m < n - 1) e(m) = 0;
                        ended = true;
                        break;
                    }
                    s = f / r, c = g / r, g = d(i + 1) - p;
                    rho = (d(i) - g) * s + 2 * c * b;
                    p = rho * s, d(i + 1) = g + p, g = c * rho - b;
                    for (int row = 0; row < n; ++row) {
                        const T x = v(row, i), y = v(row, i + 1);
                        v(row, i) = c * x - s * y, v(row, i + 1) = c * y + s * x;
                    }
                }
                if (!ended && (std::fabs(rho) > eps || l == 0)) d(l) -= p, e(l) = g;
            }
        return true;
    }

    bool upward(T& product)
    {
        for (int l = n - 1; l >= 0; --l)
            for (int sweeps = 0;; ++sweeps) {
                int m = l;
                while (m > 0 && !isSmall(m - 1)) --m;
                if (m > 0) product *= d(m);
                if (m == l) break;
                if (sweeps == 30) return false;
                T g = shifted(l, l - 1, m, e(l - 1)), s = 1, c = 1, p = 0, rho = 0;
                bool ended = false;
                for (int i = m; i < l; ++i) {
                    const T f = s * e(i), b = c * e(i), r = std::sqrt(f * f + g * g);
                    if (i > m) e(i - 1) = r;
                    if (r <= eps) {
                        d(i) -= p, e(m) = 0;
                        ended = true;
                        break;
                    }
                    s = f / r, c = g / r, g = d(i) - p;
                    rho = (d(i + 1) - g) * s + 2 * c * b;
                    p = rho * s, d(i) = g + p, g = c * rho - b;
                    for (int row = 0; row < n; ++row) {
                        const T x = v(row, i), y = v(row, i + 1);
                        v(row, i) = c * x + s * y, v(row, i + 1) = c * y - s * x;
                    }
                }
                if (!ended && std::fabs(rho) > eps) d(l) -= p, e(l - 1) = g;
            }
        product *= d(0);
        return true;
    }

    void sort()
    {
        for (int i = 0; i < n - 1; ++i) {
            int best = i;
            for (int j = i + 1; j < n; ++j)
                if (value(j) > value(best)) best = j;
            if (best == i) continue;
            std::swap(value(i), value(best));
            for (int row = 0; row < n; ++row) std::swap(v(row, i), v(row, best));
        }
    }

    VormStatus solve(bool sortsFirst)
    {
        for (int i = 0; i < n; ++i) v(i, i) = 1;
        if (n == 1) return value(0) = w(0, 0), VormStatus{StatusOk};
        if (n == 2) return orderTwo();
        reduce();
        T product = 1;
        const bool isDownward = std::fabs(w(n - 1, n - 1)) > std::fabs(w(0, 0));
        const bool converged = isDownward ? downward() : upward(product);
        for (int i = 0; i < n; ++i) value(i) = d(i);
        if (!converged) return StatusNoConvergence;
        for (int i = 0; i < n && isDownward; ++i) product *= value(i);
        const bool isSingular = std::fabs(product) <= eps;
        if (!isSingular || sortsFirst) sort();
        return isSingular ? StatusSingular : StatusOk;
    }
};

template <class T>
VormStatus model(const Call& call, int n)
{
    const Placed &src = call["src"], &values = call["dstValues"];
    const bool wantsVectors = call.f.family == "EigenValuesVectorsSym";
    const int order = src.columns;
    Solver<T> solver{order, wantsVectors};
    for (int e = 0; e < src.size(); ++e) solver.w.a[std::size_t(e)] = src.get<T>(n, e);
    const VormStatus status = solver.solve(wantsVectors && !call.f.isArray());
    if (order == 2 && status != StatusOk) return status;
    for (int i = 0; i < order; ++i) values.set(n, i, solver.value(i));
    for (int e = 0; e < src.size() && wantsVectors; ++e) call["dst"].set(n, e, solver.v.a[std::size_t(e)]);
    return status;
}

// Most matrices are symmetric; some are diagonal, block by block or but for small elements, some so small
// that steps are left out.
template <class T>
void put(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int order = src.columns, kind = pick(random, 0, 9);
    const double scale = chance(random, 10) ? std::sqrt(double(std::numeric_limits<T>::epsilon())) : 1;
    for (int r = 0; r < order; ++r)
        for (int c = 0; c <= r; ++c) {
            T x = T(double(src.found<T>(n, r * order + c)) * scale);
            if (r > c && kind == 1) x = T(x * T(chance(random, 50) ? 0 : 1e-7));
            if (r > c && kind == 2 && chance(random, 60)) x = 0;
            src.put(n, r * order + c, x);
            if (kind > 0) src.put(n, c * order + r, x);
        }
}
void fill(const Call& call, Values, Random& random)
{
    for (int n = 0; n < call["src"].count(); ++n)
        call.f.type == "32f" ? put<float>(call, n, random) : put<double>(call, n, random);
}

// Zeros, a column of them, or a matrix that never converges.
template <class T>
void makeFail(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int order = src.columns, column = pick(random, 0, order - 1), kind = pick(random, 0, 3);
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) {
            const bool isIn = kind == 0 || r == column || c == column;
            if (kind == 3 && r != c && order > 2)
                src.put(n, r * order + c, std::numeric_limits<T>::quiet_NaN());
            else if (isIn && kind < 3)
                src.put(n, r * order + c, T(0));
        }
}

Stored stored(const Operand& o, const Function&, const Problem& p)
{
    return o.isScratch ? Stored{1, p.sizes.rows * p.sizes.rows} : Stored{0, 0};
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 16, 17, 18, 25, 40, 64, 65, 70})
        all.insert(all.end(), order <= 6 ? 25 : order <= 12 ? 10 : order < 20 ? 5 : 1, {order, order, 1});
    return all;
}

void spoil(const Call& call, int n, Random& random)
{
    call.f.type == "32f" ? makeFail<float>(call, n, random) : makeFail<double>(call, n, random);
}

}  // namespace

extern const Family symmetricEigenproblems;
const Family symmetricEigenproblems = {
    .name = "SymmetricEigenproblems",
    .has = [](const Function& f) { return f.family == "EigenValuesSym" || f.family == "EigenValuesVectorsSym"; },
    .sizes = sizes,
    .model32f = model<float>,
    .model64f = model<double>,
    .fill = fill,
    .spoil = spoil,
    .stored = stored,
    .largest = 100};
