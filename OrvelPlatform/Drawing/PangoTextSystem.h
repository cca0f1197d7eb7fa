#pragma once

#include <map>
#include <unordered_map>

#include "OrvelPlatform/Drawing/FontMaps.h"
#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// Shapes text with the bundle's typefaces. What was shaped is kept, with the pixels that were drawn of it. For one
/// thread.
class PangoTextSystem final : public TextSystem {
public:
    /// `folder` holds the typefaces as TTF files.
    PangoTextSystem(const std::filesystem::path& folder, FontScope scope);

    std::shared_ptr<const ShapedText> shape(const TextBlock& block, double width) override;

private:
    struct Question {
        TextBlock block;
        double width;
        bool operator==(const Question&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Question& question) const;
    };
    struct Heights {
        double ascent; // of a font of size 1
        double descent;
    };

    std::shared_ptr<const ShapedText> shapeAfresh(const TextBlock& block, double width);
    Heights heights(const TextStyle& style);

    FontMaps m_fonts;
    std::unordered_map<Question, std::shared_ptr<const ShapedText>, Hash> m_kept;
    std::map<std::tuple<FontFamily, int, bool>, Heights> m_heights;
};

}
