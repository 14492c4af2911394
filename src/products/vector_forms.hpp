// How the matrix of a product with a vector is read, under the names its modules use.
#pragma once

#include "frame/operands.hpp"
#include "products/paths.hpp"

namespace vorm::products {

using Turned = AsTransposed;  // y(i) = sum over k of A(k, i) x(k)

}  // namespace vorm::products
