// The families that have a model. A new one stands in a file of its own in families/, and here. The last to have a
// function is its family: the fixed forms Det and Invert are matrix operations.

#include "harness.hpp"

extern const Family fixedForms, vectorSums, vectorScaling, matrixSums, vectorProducts, matrixProducts, gaxpyProducts,
    luDecomposition, luSubstitution, choleskyDecomposition, choleskySubstitution, determinants, inverses, curves,
    transformMatrices, matrixOperations, pointTransforms, affineTransform3DH, qrDecomposition, qrSubstitution,
    dotProducts, l2Norms, frobeniusNorms, traces, crossProducts, movement, symmetricEigenproblems, generalEigenvalues,
    generalEigenvectors, bufferSizes;

const std::vector<const Family*>& families()
{
    static const std::vector<const Family*> all = {&fixedForms,
                                                   &vectorSums,
                                                   &vectorScaling,
                                                   &matrixSums,
                                                   &vectorProducts,
                                                   &matrixProducts,
                                                   &gaxpyProducts,
                                                   &luDecomposition,
                                                   &luSubstitution,
                                                   &choleskyDecomposition,
                                                   &choleskySubstitution,
                                                   &determinants,
                                                   &inverses,
                                                   &curves,
                                                   &transformMatrices,
                                                   &matrixOperations,
                                                   &pointTransforms,
                                                   &affineTransform3DH,
                                                   &qrDecomposition,
                                                   &qrSubstitution,
                                                   &dotProducts,
                                                   &l2Norms,
                                                   &frobeniusNorms,
                                                   &traces,
                                                   &crossProducts,
                                                   &movement,
                                                   &symmetricEigenproblems,
                                                   &generalEigenvalues,
                                                   &generalEigenvectors,
                                                   &bufferSizes};
    return all;
}
