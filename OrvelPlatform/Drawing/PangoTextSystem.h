#pragma once

#include <map>
#include <tuple>
#include <unordered_map>
#include <vector>

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
    struct Hash {
        std::size_t operator()(const TextBlock& block) const;
    };
    /// A paragraph's lines are the same in every width from the one that they took to the one that was offered.
    struct Kept {
        double took;
        double offered;
        std::shared_ptr<const ShapedText> text;
    };
    struct Heights {
        double ascent; // of a font of size 1
        double descent;
    };

    std::shared_ptr<const ShapedText> shapeOnce(const TextBlock& block, double width);
    std::shared_ptr<const ShapedText> shapeAfresh(const TextBlock& block, double width);
    Heights heights(const TextStyle& style);

    FontMaps m_fonts;
    std::unordered_map<TextBlock, std::vector<Kept>, Hash> m_kept;
    std::size_t m_keptCount = 0;
    std::map<std::tuple<FontFamily, int, bool>, Heights> m_heights;
};

}
