#include "OrvelPlatform/Base/Checksum.h"

#include <libdeflate.h>

namespace orvel {

std::uint32_t crc32(std::string_view bytes)
{
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

}
