// The families that have a model. A new one stands in a file of its own in families/, and here. The last to have a
// function is its family: the fixed forms Det and Invert are matrix operations.

#include "harness.hpp"

extern const Family vectorSums, vectorScaling, vectorProducts, matrixProducts, gaxpyProducts, luDecomposition,
    luSubstitution, determinants, inverses, fixedForms;
extern const Family curves, transformMatrices, matrixOperations, pointTransforms, affineTransform3DH;

const std::vector<const Family*>& families()
{
    static const std::vector<const Family*> all = {
        &fixedForms,    &vectorSums,        &vectorScaling,    &vectorProducts,  &matrixProducts,
        &gaxpyProducts, &luDecomposition,   &luSubstitution,   &determinants,    &inverses,
        &curves,        &transformMatrices, &matrixOperations, &pointTransforms, &affineTransform3DH};
    return all;
}
