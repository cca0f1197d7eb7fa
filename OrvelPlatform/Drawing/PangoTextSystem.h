#pragma once

#include <map>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "OrvelPlatform/Drawing/FontMaps.h"
#include "OrvelPlatform/Drawing/GlyphMasks.h"
#include "OrvelPlatform/Drawing/PangoParagraph.h"
#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// Shapes text with the bundle's typefaces, and with the system's for letters that those lack. Letters that none of
/// them has are shown as a small empty square, a stretch of them as one. What was shaped is kept, with the pixels that
/// were drawn of it. For one thread.
class PangoTextSystem final : public TextSystem {
public:
    /// `folder` holds the typefaces as TTF files.
    PangoTextSystem(const std::filesystem::path& folder, FontScope scope);

    std::shared_ptr<const ShapedText> shape(const TextBlock& block, double width) override;

private:
    /// What is kept is found by the words and their styles; how they were set is told apart there.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const TextBlock& block) const;
    };
    struct SameWords {
        using is_transparent = void;
        bool operator()(const TextBlock& a, const TextBlock& b) const
        {
            return a.direction == b.direction && a.language == b.language && a.runs == b.runs;
        }
    };
    /// A paragraph's lines are the same in every width from the one that they took to the one that was offered.
    struct Set {
        int lineLimit;
        TextAlignment alignment;
        bool balanced;
        double took;
        double offered;
        std::shared_ptr<const ShapedText> text;
    };
    struct Kept {
        std::shared_ptr<const ShapedText> inOneLine;
        std::vector<Set> sets; // narrower
    };
    struct Heights {
        double ascent; // of a font of size 1
        double descent;
    };

    using KeptTexts = std::unordered_map<TextBlock, Kept, Hash, SameWords>;

    Kept& keptOf(const TextBlock& block);

    /// A paragraph as it can be shown, with the fonts that it needs.
    struct Shown {
        PangoParagraph paragraph;
        _PangoContext* context;
        Handle<_PangoLayout> layout;
    };

    Shown shown(const TextBlock& block, double width);
    std::shared_ptr<const ShapedText> shapeAfresh(const TextBlock& block, double width);
    Heights heights(const TextStyle& style, _PangoLayout* layout);

    FontMaps m_fonts;
    std::shared_ptr<GlyphMasks> m_glyphs = std::make_shared<GlyphMasks>();
    KeptTexts m_kept;
    KeptTexts m_older; // the generation before: what is not asked for again goes with it
    std::map<std::tuple<FontFamily, int, bool>, Heights> m_heights;
};

}
