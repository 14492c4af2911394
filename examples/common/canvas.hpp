// What a picture is drawn on: a z-buffer with four samples a pixel.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "common/png_writer.hpp"

namespace examples {

// Points are given as vormProject leaves them in a viewport of the canvas' size in samples, with depths from
// 0 to 1: x, y (downwards) and depth of each.
class Canvas {
public:
    static constexpr int samplesPerSide = 2;  // of a pixel

    Canvas(int width, int height);

    int columns() const { return columns_; }  // of samples
    int rows() const { return rows_; }

    // normals has one vector for each point (zero where there is none), in the frame in which the light comes
    // from above, y upwards; colours nothing or red, green and blue of linear light for each point.
    void draw(std::span<const float> points, std::span<const float> normals, std::span<const int> corners,
              std::span<const float> colours = {});

    // Darkens the ground, which is behind all that is drawn.
    void drawShadow(std::span<const float> points, std::span<const int> corners);

    // Of the nearest surface at the middle of a sample; more than 1 where there is none.
    float depthAt(int column, int row) const { return depth_[index(column, row)]; }

    // With smooth shading, as seen from that direction, a unit vector in the frame of the normals.
    Picture picture(const std::array<float, 3>& towardsViewer) const;

private:
    std::size_t index(int column, int row) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
    }

    int width_, height_, columns_, rows_;
    std::vector<float> depth_, shadow_;
    std::vector<std::array<float, 3>> normal_, colour_;
};

}  // namespace examples
