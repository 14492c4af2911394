// Writes pictures as PNG files: first under a temporary name beside the final one, then renamed.
#include "common/png_writer.hpp"

#include <png.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace examples {

void writePng(const Picture& picture, const std::string& path)
{
    const std::string temporary = path + "." + std::to_string(getpid()) + ".tmp";
    std::FILE* const file = std::fopen(temporary.c_str(), "wbx");
    if (!file) throw std::runtime_error(temporary + ": " + std::strerror(errno));

    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.format = PNG_FORMAT_RGB;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    std::string reason;
    if (!png_image_write_to_stdio(&image, file, 0, picture.rgb.data(), 0, nullptr)) reason = image.message;
    if (std::fclose(file) != 0 && reason.empty()) reason = std::strerror(errno);
    if (reason.empty() && std::rename(temporary.c_str(), path.c_str()) != 0) reason = std::strerror(errno);
    if (reason.empty()) return;
    std::remove(temporary.c_str());
    throw std::runtime_error(path + ": " + reason);
}

}  // namespace examples
