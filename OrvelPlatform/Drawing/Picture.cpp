#include "OrvelPlatform/Drawing/Picture.h"

#include <utility>

#include "OrvelPlatform/Drawing/Png.h"

namespace orvel {

std::expected<std::string, Fault> Picture::png(Layer layer) const
{
    return pngFile(std::move(layer.pixels), width);
}

}
