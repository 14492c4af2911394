// Data movement in double precision.

#include "movement.hpp"

namespace bench {

void movement::addAll64f(MovementSections& s)
{
    addOrders<double, 3, 4, 5, 6>(s, vormCopy_ma_64f_SP, vormCopy_ma_64f_PS, vormCopy_ma_64f_LS, vormCopy_ma_64f_SS,
                                  vormLoadIdentity_ma_64f, vormTranspose_ma_64f);
    addLarge<double>(s, vormTranspose_m_64f);
}

}  // namespace bench
