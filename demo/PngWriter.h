#pragma once
// Writes 8-bit RGB pictures as PNG files, each row filtered and the whole
// deflated by zlib at its best compression.
#include <cstdint>
#include <string>
#include <vector>

namespace gallery {

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> rgb; // top-down rows, 3 bytes per pixel
};

std::vector<uint8_t> EncodePng(const Picture& picture);
bool WritePng(const std::wstring& path, const Picture& picture);

} // namespace gallery
