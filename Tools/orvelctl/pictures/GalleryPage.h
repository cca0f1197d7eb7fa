#pragma once

#include <filesystem>
#include <string>

#include "OrvelPlatform/Base/Fault.h"
#include "Tools/orvelctl/pictures/Drawing.h"

namespace orvelctl {

/// Whether a picture is drawn for a desktop that gives the colours, and which it gives.
enum class Tint { none, oneColor, accent };

/// A page of pictures in a folder: PNG files and an index.html that shows them, which needs nothing else.
class GalleryPage {
public:
    GalleryPage(std::filesystem::path folder, orvel::Renderer& renderer);

    /// Begins a section.
    void section(std::string_view title, std::string_view note);

    /// Begins a row within a section.
    void row(std::string_view title);

    /// What a view takes by itself.
    orvel::Size sizeOf(const orvel::View& view, const orvel::Environment& environment) const;

    /// Draws a picture into a file of that name and shows it with a caption. What is tinted is shown as a desktop
    /// would tint it.
    void add(const std::string& name, std::string_view caption, const SizedView& view,
        const orvel::Environment& environment, Tint tint = Tint::none);

    /// Writes the page. What went wrong on the way has been told; nothing was drawn after it.
    Exit finish();

private:
    std::expected<std::string, orvel::Fault> png(
        const SizedView& view, const orvel::Environment& environment, Tint tint);
    void endRow();

    std::filesystem::path m_folder;
    orvel::Renderer& m_renderer;
    std::string m_body;
    bool m_isInRow = false;
    Exit m_exit = Exit::done;
};

}
