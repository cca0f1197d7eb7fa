#include "OrvelPlatform/Drawing/Renderer.h"

#include <cairo-svg.h>
#include <cairo.h>
#include <cmath>
#include <fmt/format.h>
#include <optional>
#include <system_error>

#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Drawing/CairoCanvas.h"
#include "OrvelPlatform/Drawing/PangoTextSystem.h"
#include "OrvelPlatform/Drawing/SymbolTable.h"
#include "OrvelPlatform/Drawing/TextureTile.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestResource = 4U << 20U;

/// Gradients and shadows of all the looks and sizes of a few widgets.
constexpr std::size_t mostKept = 16U << 20U;

TextureTiles tilesIn(const fs::path& folder)
{
    TextureTiles tiles;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const auto bytes = readFile(entry->path(), longestResource);
        auto tile = bytes ? TextureTile::fromPgm(*bytes) : std::unexpected(bytes.error());
        if (tile)
            tiles.emplace(entry->path().stem().string(), *std::move(tile));
    }
    return tiles;
}

std::optional<Fault> refusal(const Renderer::Request& request)
{
    const double width = std::ceil(request.size.width * request.scale);
    const double height = std::ceil(request.size.height * request.scale);
    constexpr double most = Picture::longestSide;
    if (!(width >= 1 && height >= 1 && width <= most && height <= most)) // also for what is no number
        return Fault { {}, fmt::format("a picture is 1 to {} pixels wide and high", Picture::longestSide) };
    const double bytes = width * height * 4 * (request.isTinted ? 2 : 1);
    if (bytes > static_cast<double>(Picture::mostBytes))
        return Fault { {}, "the picture is larger than 32 MiB" };
    return std::nullopt;
}

Picture emptyPicture(const Renderer::Request& request)
{
    Picture picture { static_cast<std::uint32_t>(std::ceil(request.size.width * request.scale)),
        static_cast<std::uint32_t>(std::ceil(request.size.height * request.scale)), {}, {}, {} };
    const auto clear = [&] {
        const auto count = static_cast<std::size_t>(picture.width) * picture.height;
        std::vector<std::uint32_t> pixels;
        pixels.reserve(count + picture.height); // room for what a PNG has with each row
        pixels.resize(count);
        return pixels;
    };
    picture.layers.push_back({ request.isTinted ? "default" : "whole", clear() });
    if (request.isTinted)
        picture.layers.push_back({ "accent", clear() });
    return picture;
}

SurfaceHandle surfaceOn(Picture& picture, Picture::Layer& layer)
{
    return SurfaceHandle(
        cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(layer.pixels.data()), CAIRO_FORMAT_ARGB32,
            static_cast<int>(picture.width), static_cast<int>(picture.height), static_cast<int>(picture.stride())));
}

cairo_status_t append(void* file, const unsigned char* bytes, unsigned int count)
{
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

std::expected<void, Fault> sound(cairo_surface_t* surface)
{
    const auto status = cairo_surface_status(surface);
    if (status != CAIRO_STATUS_SUCCESS)
        return std::unexpected(Fault { {}, cairo_status_to_string(status) });
    return {};
}

}

struct Renderer::Resources {
    std::shared_ptr<TextSystem> texts;
    std::shared_ptr<const SymbolSource> symbols;
    TextureTiles textures;
    KeptSurfaces kept { mostKept };
};

Renderer::Renderer(const Bundle& bundle, FontScope scope) : m_resources(std::make_unique<Resources>())
{
    const auto folder = bundle.resources();
    m_resources->texts = std::make_shared<PangoTextSystem>(folder / "Fonts", scope);
    m_resources->symbols =
        std::make_shared<SymbolTable>(readFile(folder / "Symbols.txt", longestResource).value_or(std::string()));
    m_resources->textures = tilesIn(folder / "Textures");
}

Renderer::~Renderer() = default;

Environment Renderer::environment(const Environment& base) const
{
    return base.with<TextSystemKey>(m_resources->texts).with<SymbolSourceKey>(m_resources->symbols);
}

std::expected<Picture, Fault> Renderer::draw(const View& view, const Request& request, const Environment& base)
{
    if (auto fault = refusal(request))
        return std::unexpected(*std::move(fault));
    auto picture = emptyPicture(request);
    const auto whole = surfaceOn(picture, picture.layers.front());
    const auto accent = request.isTinted ? surfaceOn(picture, picture.layers.back()) : nullptr;
    CairoCanvas canvas({ whole.get(), accent.get(), request.scale, false }, m_resources->kept, m_resources->textures);
    orvel::draw(view, canvas, { {}, request.size }, environment(base));
    cairo_surface_flush(whole.get());
    if (accent)
        cairo_surface_flush(accent.get());
    if (auto drawn = sound(whole.get()); !drawn)
        return std::unexpected(drawn.error());
    picture.elements = canvas.elements();
    picture.actions = canvas.actions();
    return picture;
}

std::expected<std::string, Fault> Renderer::svg(const View& view, Size size, const Environment& base)
{
    if (auto fault = refusal({ size }))
        return std::unexpected(*std::move(fault));
    std::string document;
    const SurfaceHandle surface(cairo_svg_surface_create_for_stream(append, &document, size.width, size.height));
    {
        CairoCanvas canvas({ surface.get(), nullptr, 1, true }, m_resources->kept, m_resources->textures);
        orvel::draw(view, canvas, { {}, size }, environment(base));
    }
    cairo_surface_finish(surface.get());
    if (auto drawn = sound(surface.get()); !drawn)
        return std::unexpected(drawn.error());
    return document;
}

}
