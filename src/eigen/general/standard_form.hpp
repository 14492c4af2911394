// The standard form of a 2x2 block on the diagonal of a quasi-triangular matrix, over a number type: either
// triangular, or with equal diagonal elements and a complex pair. It has deliberate rules of its own where elements
// are tiny or a block turns out to be real only after its rotation.
#pragma once

#include "eigen/general/reflection.hpp"
#include "eigen/general/rounded.hpp"

namespace vorm::eigen {

template <class Number>
struct Block {
    Number a, b, c, d;  // by rows
};
// The rotation that brings a block to standard form: (x, y) becomes (cs x + sn y, cs y - sn x) in rows and columns.
template <class Number>
struct Turn {
    Number cs, sn;
};

// Brings the block to standard form. Without keeps nothing is known of the rotation.
template <bool keeps, class Number>
VORM_INLINE Turn<Number> standardise(Block<Number>& block)
{
    using T = Element<Number>;
    using Mask = decltype(block.a < block.b);
    const Number zero(T(0)), one(T(1)), half(T(0.5)), negligible(tiny<T>);
    const auto [a, b, c, d] = block;
    Turn<Number> turn{one, zero};

    const Mask triangular = abs(c) <= negligible;
    const Mask lower = without(abs(b) <= negligible, triangular);
    const Number difference = a - d;
    const Mask done = triangular | lower | (abs(difference) <= negligible);
    if (!all(done)) {
        const Number p = half * difference;
        const Number most = larger(abs(b), abs(c));
        const Number least = timesSignOf(timesSignOf(smaller(abs(b), abs(c)), b), c);
        const Number scale = larger(abs(p), most);
        const Number z = (p / scale) * p + (most / scale) * least;

        const Mask real = without(z >= Number(4 * ulp<T>), done);
        if (any(real)) {
            const Number root = sqrt(scale) * sqrt(z);
            const Number q = p + select(p > zero, root, -root);
            block = {select(real, d + q, a), select(real, b - c, b), select(real, zero, c),
                     select(real, d - (most / q) * least, d)};
            if constexpr (keeps) {
                const Number tau = hypotenuse(c, q);
                turn = {select(real, q / tau, one), select(real, c / tau, zero)};
            }
        }
        const Mask other = done | real;
        if (!all(other)) {
            const Number sigma = b + c;
            const Number tau = hypotenuse(sigma, difference);
            Number cs = sqrt(half * (one + abs(sigma) / tau));
            const Number quotient = p / (tau * cs);
            Number sn = select(sigma >= zero, -quotient, quotient);
            const Number aa = rounded(a * cs) + rounded(b * sn), bb = rounded(b * cs) - rounded(a * sn);
            const Number cc = rounded(c * cs) + rounded(d * sn), dd = rounded(d * cs) - rounded(c * sn);
            const Number b1 = rounded(bb * cs) + rounded(dd * sn), c1 = rounded(cc * cs) - rounded(aa * sn);
            const Number mean = half * ((aa * cs + rounded(cc * sn)) + (dd * cs - rounded(bb * sn)));

            const Mask noC = abs(c1) <= negligible, noB = without(abs(b1) <= negligible, noC);
            const Mask positive = (b1 >= zero) & (c1 >= zero), negative = (b1 < zero) & (c1 < zero);
            const Mask foundReal = without(without(positive | negative, noC), noB);
            // Half the difference before the rotation, not a product of roots of b and c: a rule of its own.
            const Number apart = select(positive, p, -p);
            const Number a1 = select(foundReal, mean + apart, mean), d1 = select(foundReal, mean - apart, mean);
            if constexpr (keeps) {
                if (any(foundReal)) {
                    const Number rootB = sqrt(abs(b1)), rootC = sqrt(abs(c1)), norm = sqrt(abs(b1 + c1));
                    const Number cs1 = rootB / norm, sn1 = rootC / norm;
                    const Number turned = rounded(cs * cs1) - rounded(sn * sn1);
                    sn = select(foundReal, rounded(cs * sn1) + rounded(sn * cs1), sn);
                    cs = select(foundReal, turned, cs);
                }
                const Number quarter = select(noB, -sn, cs);
                sn = select(noB, cs, sn);
                cs = quarter;
            }
            const Mask upper = noC | noB | foundReal;
            const Number corner = select(noB, -c1, select(foundReal, b1 - c1, b1));
            block = {select(other, block.a, a1), select(other, block.b, corner),
                     select(other, block.c, select(upper, zero, c1)), select(other, block.d, d1)};
            if constexpr (keeps) turn = {select(other, turn.cs, cs), select(other, turn.sn, sn)};
        }
    }
    if (any(triangular | lower)) {
        block = {select(lower, d, block.a), select(lower, -c, block.b), select(triangular | lower, zero, block.c),
                 select(lower, a, block.d)};
        if constexpr (keeps) turn = {select(lower, zero, turn.cs), select(lower, one, turn.sn)};
    }
    return turn;
}

// The imaginary part of the first value of a block in standard form; that of the second is its negative, or 0 as well.
template <class Number>
VORM_INLINE Number imaginaryOf(const Block<Number>& block)
{
    using T = Element<Number>;
    const Number zero(T(0));
    return select(abs(block.c) <= Number(tiny<T>), zero, sqrt(abs(block.b)) * sqrt(abs(block.c)));
}
template <class Number>
VORM_INLINE Number conjugateOf(const Block<Number>& block, const Number& imaginary)
{
    using T = Element<Number>;
    const Number zero(T(0));
    return select(abs(block.c) <= Number(tiny<T>), zero, -imaginary);
}

}  // namespace vorm::eigen
