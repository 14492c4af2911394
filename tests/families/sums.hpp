// Sums in the documented orders of additions.
#pragma once

// A sum of terms products, product(k) for k from 0.
template <class T, class Product>
struct Sum {
    Product product;
    int terms;

    T ascending(T sum, int from) const
    {
        for (int k = from; k < terms; ++k) sum += product(k);
        return sum;
    }
    T fromZero() const { return ascending(0, 0); }
    T fromFirstProduct() const { return ascending(product(0), 1); }
    T evenAndOdd() const
    {
        T even = 0, odd = 0;
        for (int k = 0; k + 2 <= terms; k += 2) even += product(k), odd += product(k + 1);
        return ascending(even + odd, terms & ~1);
    }
    // The first lead terms one by one, whole groups in registers of lanes, which are added to each other and
    // folded, and the rest one by one.
    T inLanes(int registers, int lead = 0) const
    {
        constexpr int width = 16 / sizeof(T);
        T total = 0, s[8] = {};
        int k = 0;
        for (; k < lead; ++k) total += product(k);
        for (; k + registers * width <= terms; k += registers * width)
            for (int l = 0; l < registers * width; ++l) s[l] += product(k + l);
        if (registers == 2)
            for (int l = 0; l < width; ++l) s[l] += s[l + width];
        return ascending(total + (width == 4 ? (s[0] + s[1]) + (s[2] + s[3]) : s[0] + s[1]), k);
    }
    // Eight sums, whatever the type.
    T inEights() const
    {
        T s[8] = {};
        int k = 0;
        for (; k + 8 <= terms; k += 8)
            for (int l = 0; l < 8; ++l) s[l] += product(k + l);
        return ascending(((s[0] + s[1]) + (s[2] + s[3])) + ((s[4] + s[5]) + (s[6] + s[7])), k);
    }
};
