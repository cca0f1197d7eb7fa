#include "OrvelPlatform/Drawing/Picture.h"

#include "OrvelPlatform/Drawing/Png.h"

namespace orvel {

std::expected<std::string, Fault> Picture::png(const Layer& layer) const
{
    return pngFile(layer.pixels, width);
}

}
