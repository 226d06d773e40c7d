#include "PngWriter.h"

#include <cstdio>

#include <zlib.h>

namespace gallery {
namespace {

uint32_t Crc32(const uint8_t* data, size_t size, uint32_t crc = 0) {
    static uint32_t table[256];
    static bool ready = false;
    if (!ready) {
        for (uint32_t n = 0; n < 256; ++n) {
            uint32_t c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            table[n] = c;
        }
        ready = true;
    }
    crc = ~crc;
    for (size_t i = 0; i < size; ++i)
        crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

void Put32(std::vector<uint8_t>& out, uint32_t v) {
    out.push_back(static_cast<uint8_t>(v >> 24));
    out.push_back(static_cast<uint8_t>(v >> 16));
    out.push_back(static_cast<uint8_t>(v >> 8));
    out.push_back(static_cast<uint8_t>(v));
}

void Chunk(std::vector<uint8_t>& out, const char* type, const std::vector<uint8_t>& data) {
    Put32(out, static_cast<uint32_t>(data.size()));
    std::vector<uint8_t> body(type, type + 4);
    body.insert(body.end(), data.begin(), data.end());
    out.insert(out.end(), body.begin(), body.end());
    Put32(out, Crc32(body.data(), body.size()));
}

// Filters each row with the PNG filter (none, sub or up) whose bytes sum
// smallest as signed values, the usual heuristic that lets deflate find the
// runs of a screenshot.
std::vector<uint8_t> FilterRows(const Picture& picture) {
    const size_t stride = static_cast<size_t>(picture.width) * 3;
    std::vector<uint8_t> raw;
    raw.reserve((stride + 1) * static_cast<size_t>(picture.height));
    std::vector<uint8_t> candidate[3];
    for (int y = 0; y < picture.height; ++y) {
        const uint8_t* row = picture.rgb.data() + stride * static_cast<size_t>(y);
        const uint8_t* above = y > 0 ? row - stride : nullptr;
        unsigned long best = ~0ul;
        int bestFilter = 0;
        for (int filter = 0; filter < 3; ++filter) {
            candidate[filter].resize(stride);
            unsigned long cost = 0;
            for (size_t x = 0; x < stride; ++x) {
                const uint8_t predictor = filter == 1   ? (x >= 3 ? row[x - 3] : 0)
                                          : filter == 2 ? (above != nullptr ? above[x] : 0)
                                                        : 0;
                const uint8_t value = static_cast<uint8_t>(row[x] - predictor);
                candidate[filter][x] = value;
                cost += value < 128 ? value : 256 - value;
            }
            if (cost < best) {
                best = cost;
                bestFilter = filter;
            }
        }
        raw.push_back(static_cast<uint8_t>(bestFilter));
        raw.insert(raw.end(), candidate[bestFilter].begin(), candidate[bestFilter].end());
    }
    return raw;
}

std::vector<uint8_t> Deflate(const std::vector<uint8_t>& raw) {
    uLongf size = compressBound(static_cast<uLong>(raw.size()));
    std::vector<uint8_t> out(size);
    if (compress2(out.data(), &size, raw.data(), static_cast<uLong>(raw.size()), 9) != Z_OK)
        return {};
    out.resize(size);
    return out;
}

} // namespace

std::vector<uint8_t> EncodePng(const Picture& picture) {
    std::vector<uint8_t> out{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    std::vector<uint8_t> header;
    Put32(header, static_cast<uint32_t>(picture.width));
    Put32(header, static_cast<uint32_t>(picture.height));
    header.insert(header.end(), {8, 2, 0, 0, 0}); // 8-bit RGB, no interlace
    Chunk(out, "IHDR", header);

    const std::vector<uint8_t> compressed = Deflate(FilterRows(picture));
    if (compressed.empty())
        return {};
    Chunk(out, "IDAT", compressed);
    Chunk(out, "IEND", {});
    return out;
}

bool WritePng(const std::wstring& path, const Picture& picture) {
    if (picture.width <= 0 || picture.height <= 0 ||
        picture.rgb.size() != static_cast<size_t>(picture.width) * picture.height * 3)
        return false;
    const std::vector<uint8_t> bytes = EncodePng(picture);
    if (bytes.empty())
        return false;
    FILE* file = _wfopen(path.c_str(), L"wb");
    if (file == nullptr)
        return false;
    const bool ok = fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return fclose(file) == 0 && ok;
}

} // namespace gallery
