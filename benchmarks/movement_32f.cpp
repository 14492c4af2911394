// Data movement in single precision.

#include "movement.hpp"

namespace bench {

void movement::addAll32f(MovementSections& s)
{
    addOrders<float, 3, 4, 5, 6>(s, vormCopy_ma_32f_SP, vormCopy_ma_32f_PS, vormCopy_ma_32f_LS, vormCopy_ma_32f_SS,
                                 vormLoadIdentity_ma_32f, vormTranspose_ma_32f);
    addLarge<float>(s, vormTranspose_m_32f);
}

void addMovement(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    movement::MovementSections s{
        section("Data movement, resident",
                std::to_string(residentObjects) + " objects, packed, in planes or in a list."),
        section("Data movement, streaming", std::to_string(streamingBytes() >> 20) + " MiB per array."),
        section("Transposes of one matrix", "Packed."),
    };
    movement::addAll32f(s);
    movement::addAll64f(s);
}

}  // namespace bench
