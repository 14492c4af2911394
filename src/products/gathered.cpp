// The bodies of the products of gathered matrices.

#include "products/gathered.hpp"

#include "products/matrix_fixed.hpp"

namespace vorm {

template <class T, int n>
void gatheredProduct(const Gathered<T, n>& a, const Gathered<T, n>& b, Gathered<T, n>& d)
{
    constexpr int stride1 = Gathered<T, n>::pitch * int{sizeof(T)};
    products<T, n>(Matrix{&a.rows[0][0], stride1, adjacent}, Matrix{&b.rows[0][0], stride1, adjacent},
                   Matrix{&d.rows[0][0], stride1, adjacent}, 0, 1);
}

VORM_EACH_GATHERED();

}  // namespace vorm
