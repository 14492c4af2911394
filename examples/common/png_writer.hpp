// Writes pictures as PNG files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace examples {

struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgb;  // rows from the top, three bytes a pixel
};

// The file appears whole or not at all; throws std::runtime_error with the reason.
void writePng(const Picture& picture, const std::string& path);

}  // namespace examples
