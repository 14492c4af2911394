// The families that have a model. A new one stands in a file of its own in families/, and here.

#include "harness.hpp"

extern const Family vectorSums, vectorProducts, matrixProducts, gaxpyProducts, luDecomposition, luSubstitution,
    determinants, inverses;
extern const Family fixedForms, curves, transformMatrices, matrixOperations, pointTransforms, affineTransform3DH;

const std::vector<const Family*>& families()
{
    static const std::vector<const Family*> all = {
        &vectorSums,        &vectorProducts,   &matrixProducts,  &gaxpyProducts,     &luDecomposition,
        &luSubstitution,    &determinants,     &inverses,        &fixedForms,        &curves,
        &transformMatrices, &matrixOperations, &pointTransforms, &affineTransform3DH};
    return all;
}
