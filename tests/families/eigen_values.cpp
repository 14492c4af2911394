// vormEigenValues, bit by bit as its list says: sums in ascending order, and of an object that does not converge the
// values that had left. The matrix is the transpose of the source.

#include "harness.hpp"

namespace {

template <class T>
struct Solver {
    static constexpr T ulp = std::numeric_limits<T>::epsilon(), tiny = 2 * std::numeric_limits<T>::min();
    int n;
    std::vector<T> elements = std::vector<T>(std::size_t(n * n));
    std::vector<T> re = std::vector<T>(std::size_t(n)), im = re;

    T& m(int i, int j) { return elements[std::size_t(j * n + i)]; }

    static T hypot(T p, T q)
    {
        const T a = std::fabs(p), b = std::fabs(q), w = a > b ? a : b, z = a < b ? a : b;
        return z < tiny ? w : w * std::sqrt(1 + (z * z) / (w * w));
    }
    // Turns (alpha, x) to (beta, 0): leaves beta in alpha, v in x, and returns tau.
    static T reflect(T& alpha, std::vector<T*> x)
    {
        T sum = *x[0] * *x[0];
        for (std::size_t i = 1; i < x.size(); ++i) sum += *x[i] * *x[i];
        const T norm = std::sqrt(sum);
        if (norm < tiny) return 0;
        T length = hypot(alpha, norm);
        if (length < tiny) length = 2 * tiny;
        const T beta = alpha >= 0 ? -length : length, tau = (beta - alpha) / beta, scale = 1 / (alpha - beta);
        for (T* one : x) *one *= scale;
        alpha = beta;
        return tau;
    }

    void reduce()
    {
        for (int k = 0; k < n - 2; ++k) {
            std::vector<T*> x;
            for (int i = k + 2; i < n; ++i) x.push_back(&m(i, k));
            const T tau = reflect(m(k + 1, k), x), beta = m(k + 1, k);
            if (!(std::fabs(tau) > tiny)) continue;
            m(k + 1, k) = 1;
            const auto v = [&](int i) { return m(i, k); };
            for (int r = 0; r < n; ++r) {
                T w = m(r, k + 1);
                for (int c = k + 2; c < n; ++c) w += m(r, c) * v(c);
                for (int c = k + 1; c < n; ++c) m(r, c) -= w * (tau * v(c));
            }
            for (int c = k + 1; c < n; ++c) {
                T w = m(k + 1, c);
                for (int r = k + 2; r < n; ++r) w += v(r) * m(r, c);
                for (int r = k + 1; r < n; ++r) m(r, c) -= v(r) * (tau * w);
            }
            m(k + 1, k) = beta;
        }
        for (int c = 0; c < n; ++c)
            for (int r = c + 2; r < n; ++r) m(r, c) = 0;
    }

    void sweep(int first, int last, int number)
    {
        T h44 = m(last, last), h33 = m(last - 1, last - 1), h43h34 = m(last, last - 1) * m(last - 1, last);
        const T disc = ((h33 - h44) * T(0.5)) * ((h33 - h44) * T(0.5)) + h43h34;
        if (number == 10 || number == 20) {
            const T s = std::fabs(m(last, last - 1)) + std::fabs(m(last - 1, last - 2));
            h44 = h33 = T(0.75) * s + h44, h43h34 = T(-0.4375) * s * s;
        } else if (disc > 0) {
            const T root = std::sqrt(disc), ave = T(0.5) * (h33 + h44), sum = (ave < 0 ? -root : root) + ave;
            h44 = std::fabs(h33) - std::fabs(h44) > 0 ? (h33 * h44 - h43h34) / sum : sum;
            h33 = h44, h43h34 = 0;
        }
        int start = last - 2;
        T q1, q2, q3;
        for (;; --start) {
            const T h11 = m(start, start), h22 = m(start + 1, start + 1), h44s = h44 - h11, h33s = h33 - h11;
            q1 = (h33s * h44s - h43h34) / m(start + 1, start) + m(start, start + 1);
            q2 = h22 - h11 - h33s - h44s, q3 = m(start + 2, start + 1);
            const T s = std::fabs(q1) + std::fabs(q2) + std::fabs(q3);
            q1 /= s, q2 /= s, q3 /= s;
            if (start == first) break;
            if (ulp * std::fabs(q1) * (std::fabs(m(start - 1, start - 1)) + std::fabs(h11) + std::fabs(h22)) >=
                std::fabs(m(start, start - 1)) * (std::fabs(q2) + std::fabs(q3)))
                break;
        }
        for (int k = start; k < last; ++k) {
            const bool three = k + 2 <= last;
            if (k > start) q1 = m(k, k - 1), q2 = m(k + 1, k - 1), q3 = three ? m(k + 2, k - 1) : 0;
            const T t1 = reflect(q1, three ? std::vector<T*>{&q2, &q3} : std::vector<T*>{&q2});
            if (k > start) {
                m(k, k - 1) = q1, m(k + 1, k - 1) = 0;
                if (three) m(k + 2, k - 1) = 0;
            } else if (start > first) {
                m(k, k - 1) = -m(k, k - 1);
            }
            const T t2 = t1 * q2, t3 = t1 * q3;
            for (int c = k; c <= last; ++c) {
                T sum = m(k, c) + q2 * m(k + 1, c);
                if (three) sum += q3 * m(k + 2, c);
                m(k, c) -= sum * t1, m(k + 1, c) -= sum * t2;
                if (three) m(k + 2, c) -= sum * t3;
            }
            for (int r = first; r <= std::min(k + 3, last); ++r) {
                T sum = m(r, k) + q2 * m(r, k + 1);
                if (three) sum += q3 * m(r, k + 2);
                m(r, k) -= sum * t1, m(r, k + 1) -= sum * t2;
                if (three) m(r, k + 2) -= sum * t3;
            }
        }
    }

    // The values of a block, the one with the positive imaginary part first.
    void standardise(int k)
    {
        T a = m(k, k), b = m(k, k + 1), c = m(k + 1, k), d = m(k + 1, k + 1);
        const T difference = a - d;
        if (std::fabs(c) <= tiny) {
        } else if (std::fabs(b) <= tiny) {
            std::swap(a, d), b = -c, c = 0;
        } else if (!(std::fabs(difference) <= tiny)) {
            const T p = T(0.5) * difference, most = std::fabs(b) > std::fabs(c) ? std::fabs(b) : std::fabs(c);
            const T least = (std::fabs(b) < std::fabs(c) ? std::fabs(b) : std::fabs(c)) *
                            (std::signbit(b) == std::signbit(c) ? 1 : -1);
            const T scale = std::fabs(p) > most ? std::fabs(p) : most;
            T z = (p / scale) * p + (most / scale) * least;
            if (z >= 4 * ulp) {
                const T root = std::sqrt(scale) * std::sqrt(z);
                z = p > 0 ? p + root : p - root;
                a = d + z, d -= (most / z) * least, c = 0;
            } else {
                const T sigma = b + c, tau = hypot(sigma, difference);
                const T cs = std::sqrt(T(0.5) * (1 + std::fabs(sigma) / tau)), q = p / (tau * cs);
                const T sn = sigma >= 0 ? -q : q;
                const T aa = a * cs + b * sn, bb = -a * sn + b * cs, cc = c * cs + d * sn, dd = -c * sn + d * cs;
                b = bb * cs + dd * sn, c = -aa * sn + cc * cs;
                const T mean = T(0.5) * ((aa * cs + cc * sn) + (-bb * sn + dd * cs));
                a = d = mean;
                if (std::fabs(b) <= tiny || std::fabs(c) <= tiny)
                    c = 0;
                else if (b >= 0 && c >= 0)
                    a = mean + p, d = mean - p, c = 0;
                else if (b < 0 && c < 0)
                    a = mean - p, d = mean + p, c = 0;
            }
        }
        const auto at = [&](int i) { return std::size_t(i); };
        re[at(k)] = a, re[at(k + 1)] = d, im[at(k)] = im[at(k + 1)] = 0;
        if (std::fabs(c) <= tiny) return;
        im[at(k)] = std::sqrt(std::fabs(b)) * std::sqrt(std::fabs(c)), im[at(k + 1)] = -im[at(k)];
    }

    // How many have not left.
    int iterate()
    {
        int budget = 30 * n;
        for (int last = n - 1; last >= 0;) {
            int first = 0, sweeps = 0;
            for (; sweeps < budget; ++sweeps) {
                for (int k = last; k > first; --k)
                    if (std::fabs(m(k, k - 1)) <= ulp) first = k;
                if (first > 0) m(first, first - 1) = 0;
                if (first >= last - 1) break;
                sweep(first, last, sweeps);
            }
            if (first < last - 1) return last + 1;
            if (first < last)
                standardise(first);
            else
                re[std::size_t(last)] = m(last, last), im[std::size_t(last)] = 0;
            budget -= sweeps, last = first - 1;
        }
        return 0;
    }
};

template <class T>
VormStatus model(const Call& call, int n)
{
    const Placed& src = call["src"];
    Solver<T> solver{src.columns};
    for (int e = 0; e < src.size(); ++e) solver.elements[std::size_t(e)] = src.get<T>(n, e);
    solver.reduce();
    const int left = solver.iterate();
    for (int k = left; k < src.columns; ++k) {
        call["dstValuesRe"].set(n, k, solver.re[std::size_t(k)]);
        call["dstValuesIm"].set(n, k, solver.im[std::size_t(k)]);
    }
    return left == 0 ? StatusOk : StatusNoConvergence;
}

// Matrices that are symmetric, triangular, of few numbers or of other scales now and then.
template <class T>
void put(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int order = src.columns, kind = pick(random, 0, 12);
    const T scale = kind == 5 ? T(1e-8) : kind == 6 ? T(1e8) : kind == 7 ? T(1e-20) : 1;
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) {
            const int e = r * order + c;
            const T value = src.found<T>(n, e);
            if (kind == 0 && c > r) src.put(n, e, src.found<T>(n, c * order + r));
            if ((kind == 1 && c > r) || (kind == 2 && c < r)) src.put(n, e, T(0));
            if (kind == 3 && r == c) src.put(n, e, T(1));
            if (kind == 4) src.put(n, e, T(c == (r + 1) % order));
            if (kind >= 5 && kind <= 7) src.put(n, e, T(value * scale));
            if (kind == 8 && std::abs(r - c) == 1) src.put(n, e, T(value * (chance(random, 50) ? 1e-7 : 1e-16)));
        }
}
void fill(const Call& call, Values, Random& random)
{
    for (int n = 0; n < call["src"].count(); ++n)
        call.f.type == "32f" ? put<float>(call, n, random) : put<double>(call, n, random);
}

// NaNs, which from order 3 on end in no convergence wherever they are; or only in a corner of two rows, so that values
// leave before and the object may pass.
template <class T>
void makeFail(const Call& call, int n, Random& random)
{
    const Placed& src = call["src"];
    const int order = src.columns, rows = chance(random, 50) ? order : std::min(order, pick(random, 2, 3));
    for (int r = 0; r < order; ++r)
        for (int c = 0; c < order; ++c) {
            if (rows < order && c > r) src.put(n, r * order + c, T(0));
            if (r < rows && c < rows) src.put(n, r * order + c, std::numeric_limits<T>::quiet_NaN());
        }
}

Stored stored(const Operand& o, const Function&, const Problem& p)
{
    return o.isScratch ? Stored{1, p.sizes.rows * (p.sizes.rows + 5)} : Stored{0, 0};
}

std::vector<Sizes> sizes(const Function&)
{
    std::vector<Sizes> all;
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 16, 17, 20, 40})
        all.insert(all.end(),
                   order <= 4    ? 40
                   : order <= 6  ? 25
                   : order <= 12 ? 10
                   : order < 20  ? 4
                                 : 1,
                   {order, order, 1});
    return all;
}

}  // namespace

extern const Family generalEigenvalues;
const Family generalEigenvalues = {.name = "GeneralEigenvalues",
                                   .has = [](const Function& f) { return f.family == "EigenValues"; },
                                   .sizes = sizes,
                                   .model32f = model<float>,
                                   .model64f = model<double>,
                                   .fill = fill,
                                   .spoil =
                                       [](const Call& call, int n, Random& random) {
                                           call.f.type == "32f" ? makeFail<float>(call, n, random)
                                                                : makeFail<double>(call, n, random);
                                       },
                                   .stored = stored,
                                   .largest = 40};
