#include "PngWriter.h"

#include <cstdio>

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

// A zlib stream of stored blocks (at most 65535 bytes each).
std::vector<uint8_t> ZlibStored(const std::vector<uint8_t>& raw) {
    std::vector<uint8_t> out{0x78, 0x01};
    size_t pos = 0;
    do {
        const size_t n = std::min<size_t>(65535, raw.size() - pos);
        const bool last = pos + n == raw.size();
        out.push_back(last ? 1 : 0);
        out.push_back(static_cast<uint8_t>(n));
        out.push_back(static_cast<uint8_t>(n >> 8));
        out.push_back(static_cast<uint8_t>(~n));
        out.push_back(static_cast<uint8_t>(~n >> 8));
        out.insert(out.end(), raw.begin() + static_cast<long>(pos),
                   raw.begin() + static_cast<long>(pos + n));
        pos += n;
    } while (pos < raw.size());
    uint32_t a = 1, b = 0;
    for (uint8_t byte : raw) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    Put32(out, (b << 16) | a);
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

    std::vector<uint8_t> raw;
    const size_t stride = static_cast<size_t>(picture.width) * 3;
    raw.reserve((stride + 1) * static_cast<size_t>(picture.height));
    for (int y = 0; y < picture.height; ++y) {
        raw.push_back(0); // filter: none
        const auto row = picture.rgb.begin() + static_cast<long>(stride * static_cast<size_t>(y));
        raw.insert(raw.end(), row, row + static_cast<long>(stride));
    }
    Chunk(out, "IDAT", ZlibStored(raw));
    Chunk(out, "IEND", {});
    return out;
}

bool WritePng(const std::wstring& path, const Picture& picture) {
    if (picture.width <= 0 || picture.height <= 0 ||
        picture.rgb.size() != static_cast<size_t>(picture.width) * picture.height * 3)
        return false;
    const std::vector<uint8_t> bytes = EncodePng(picture);
    FILE* file = _wfopen(path.c_str(), L"wb");
    if (file == nullptr)
        return false;
    const bool ok = fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return fclose(file) == 0 && ok;
}

} // namespace gallery
