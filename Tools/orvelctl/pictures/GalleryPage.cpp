#include "Tools/orvelctl/pictures/GalleryPage.h"

#include <array>
#include <fmt/format.h>

#include "OrvelDesign/TextMagnification.h"

namespace orvelctl {

namespace {

using namespace orvel;

constexpr double pixelsInPoint = 2;

constexpr std::string_view head = R"(<!DOCTYPE html>
<html lang="en">
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Orvel, drawn</title>
<style>
body { margin: 0; padding: 48px; background: #8b93a7; color: #15172a; font: 15px/1.5 system-ui, sans-serif; }
h1 { font-size: 28px; margin: 0 0 8px; } h2 { font-size: 20px; margin: 56px 0 0; } h3 { font-size: 14px; margin: 28px 0 8px; }
p { margin: 4px 0 0; max-width: 44em; }
.row { display: flex; flex-wrap: wrap; gap: 28px; align-items: flex-start; }
figure { margin: 0; } figcaption { font-size: 12px; margin-top: 6px; }
img { display: block; }
.tinted img { background: linear-gradient(160deg, #33405e, #5d4a6b); border-radius: 24px; }
</style>
<h1>Orvel, drawn</h1>
)";

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char character : text) {
        if (character == '&')
            result += "&amp;";
        else if (character == '<')
            result += "&lt;";
        else if (character == '"')
            result += "&quot;";
        else
            result += character;
    }
    return result;
}

using Channels = std::array<std::uint32_t, 4>;

/// A premultiplied pixel with each channel multiplied by the tint's.
std::uint32_t tinted(std::uint32_t pixel, const Channels& tint)
{
    constexpr std::uint32_t opaque = 255;
    std::uint32_t result = 0;
    for (std::uint32_t channel = 0; channel < tint.size(); ++channel) {
        const auto value = (pixel >> (8 * channel)) & opaque;
        result |= (value * tint[channel] / opaque) << (8 * channel);
    }
    return result;
}

/// The accent layer on the default one, as a desktop would show them: in one colour, or with the accent tinted.
Picture::Layer composed(const Picture& picture, Tint tint)
{
    constexpr Channels white { 255, 255, 255, 255 }, peach { 160, 205, 255, 255 }; // blue, green, red, alpha
    const auto& color = tint == Tint::accent ? peach : white;
    auto layer = picture.layers.front();
    const auto& accent = picture.layers.back().pixels;
    for (std::size_t i = 0; i < layer.pixels.size(); ++i) {
        const auto through = 255 - (accent[i] >> 24U);
        layer.pixels[i] = tinted(layer.pixels[i], { through, through, through, through }) + tinted(accent[i], color);
    }
    return layer;
}

}

GalleryPage::GalleryPage(std::filesystem::path folder, Renderer& renderer)
    : m_folder(std::move(folder)), m_renderer(renderer)
{
    std::error_code ignored; // that there is no folder shows when the first picture is written
    std::filesystem::create_directories(m_folder, ignored);
}

void GalleryPage::endRow()
{
    if (m_isInRow)
        m_body += "</div>\n";
    m_isInRow = false;
}

void GalleryPage::section(std::string_view title, std::string_view note)
{
    endRow();
    m_body += fmt::format("<h2>{}</h2>\n<p>{}</p>\n", escaped(title), escaped(note));
}

void GalleryPage::row(std::string_view title)
{
    endRow();
    m_body += fmt::format("<h3>{}</h3>\n<div class=\"row\">\n", escaped(title));
    m_isInRow = true;
}

Size GalleryPage::sizeOf(const View& view, const Environment& environment) const
{
    return measure(view, Proposal::ideal, m_renderer.environment(environment)).size;
}

std::expected<std::string, Fault> GalleryPage::png(const SizedView& view, const Environment& environment, Tint tint)
{
    const Renderer::Request request { view.size, pixelsInPoint * textMagnification(environment), tint != Tint::none };
    const auto picture = m_renderer.draw(view.view, request, environment);
    if (!picture)
        return std::unexpected(picture.error());
    return picture->png(request.isTinted ? composed(*picture, tint) : picture->layers.front());
}

void GalleryPage::add(
    const std::string& name, std::string_view caption, const SizedView& view, const Environment& environment, Tint tint)
{
    if (m_exit != Exit::done)
        return;
    m_exit = PictureFile { m_folder / (name + ".png") }.write(png(view, environment, tint));
    const double magnification = textMagnification(environment);
    m_body += fmt::format("<figure{}><img src=\"{}.png\" width=\"{:.0f}\" height=\"{:.0f}\" alt=\"{}\">"
                          "<figcaption>{}</figcaption></figure>\n",
        tint != Tint::none ? " class=\"tinted\"" : "", escaped(name), view.size.width * magnification,
        view.size.height * magnification, escaped(caption), escaped(caption));
}

Exit GalleryPage::finish()
{
    endRow();
    if (m_exit != Exit::done)
        return m_exit;
    return PictureFile { m_folder / "index.html" }.write(std::string(head) + m_body + "</html>\n");
}

}
