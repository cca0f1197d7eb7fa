#pragma once

#include <cstdint>
#include <string_view>

namespace orvel {

/// The CRC-32 of bytes, as zip and PNG files have it: it finds damage, not deceit.
std::uint32_t crc32(std::string_view bytes);

}
