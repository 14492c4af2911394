// Pictures side by side on a sheet.
#pragma once

#include "common/png_writer.hpp"

namespace examples {

Picture blackSheet(int width, int height);

// The whole picture has to be on the sheet.
void paste(const Picture& picture, Picture& sheet, int left, int top);

}  // namespace examples
