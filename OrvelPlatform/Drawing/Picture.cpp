#include "OrvelPlatform/Drawing/Picture.h"

#include <cairo.h>

#include "OrvelPlatform/Drawing/Handles.h"

namespace orvel {

namespace {

cairo_status_t append(void* file, const unsigned char* bytes, unsigned int count)
{
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

}

std::expected<std::string, Fault> Picture::png(const Layer& layer) const
{
    // The library takes a writable pointer and does not write.
    auto* const bytes = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(layer.pixels.data()));
    const SurfaceHandle surface(cairo_image_surface_create_for_data(
        bytes, CAIRO_FORMAT_ARGB32, static_cast<int>(width), static_cast<int>(height), static_cast<int>(stride())));
    std::string file;
    const auto status = cairo_surface_write_to_png_stream(surface.get(), append, &file);
    if (status != CAIRO_STATUS_SUCCESS)
        return std::unexpected(Fault { layer.name, cairo_status_to_string(status) });
    return file;
}

}
