// Pictures side by side on a sheet.
#include "common/sheet.hpp"

#include <algorithm>

namespace examples {

Picture blackSheet(int width, int height)
{
    return {width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(3 * width * height))};
}

void paste(const Picture& picture, Picture& sheet, int left, int top)
{
    for (int y = 0; y < picture.height; ++y)
        std::copy_n(&picture.rgb[static_cast<std::size_t>(3 * y * picture.width)], 3 * picture.width,
                    &sheet.rgb[static_cast<std::size_t>(3 * ((top + y) * sheet.width + left))]);
}

}  // namespace examples
