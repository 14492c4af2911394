// The families that have a model. A new one stands in a file of its own in families/, and here.

#include "harness.hpp"

extern const Family vectorSums, vectorScaling, vectorProducts, matrixSums, matrixProducts, gaxpyProducts,
    luDecomposition, luSubstitution, fixedForms;

const std::vector<const Family*>& families()
{
    static const std::vector<const Family*> all = {&fixedForms,     &vectorSums,      &vectorScaling,
                                                   &vectorProducts, &matrixSums,      &matrixProducts,
                                                   &gaxpyProducts,  &luDecomposition, &luSubstitution};
    return all;
}
