#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "OrvelPlatform/Drawing/GlyphMasks.h"
#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/TextSystem.h"

struct _PangoLayoutLine;

namespace orvel {

/// A paragraph with its glyphs, which draws itself.
///
/// On pixels it is drawn as a mask that is kept: the glyphs' outlines stand at their exact places within a line (the
/// drawing library itself would move each to a whole pixel, which makes letters dance), while the lines' baselines
/// stand on whole pixels, so that they are sharp.
class PangoShapedText final : public ShapedText {
public:
    /// Coverage in device pixels; `left` and `top` are from the paragraph's top left corner.
    struct Mask {
        SurfaceHandle coverage;
        int left;
        int top;
    };

    /// A layout's lengths are to be taken `scale` times; `runEnds` are byte offsets into its text.
    struct Set {
        Handle<_PangoLayout> layout;
        double scale;
        std::vector<std::size_t> runEnds;
    };

    PangoShapedText(Set set, const TextBlock& block, double ascent, double descent, std::shared_ptr<GlyphMasks> glyphs);
    ~PangoShapedText() override;

    /// The mask at a scale, of one run or of all together. Kept for the last scale asked for.
    const Mask& mask(double scale) const { return maskOf(scale, allRuns); }
    const Mask& mask(double scale, std::size_t run) const { return maskOf(scale, run); }

    std::size_t runCount() const { return m_runEnds.size(); }
    bool hasColorGlyphs() const { return m_hasColorGlyphs; }

    /// Draws the glyphs by the drawing library's own means, with the context's source, from the context's origin: for
    /// glyphs with colours of their own, and where the target keeps text as text.
    void show(_cairo* context) const;

private:
    static constexpr std::size_t allRuns = static_cast<std::size_t>(-1);

    double points(int units) const;
    double widthOf(_PangoLayoutLine* line) const;
    void setLines(const TextBlock& block);
    const Mask& maskOf(double scale, std::size_t run) const;
    Mask drawnMask(double scale, std::size_t run) const;
    bool hasPlainGlyphs() const;
    void addGlyphs(Mask& mask, std::size_t line, double scale, int baseline) const;
    void addOutlines(_cairo* context, std::size_t line, std::size_t run) const;

    Handle<_PangoLayout> m_layout;
    double m_layoutScale;
    std::shared_ptr<GlyphMasks> m_glyphs;
    std::vector<std::size_t> m_runEnds;
    std::vector<double> m_baselines; // a line each, from the top
    bool m_hasColorGlyphs = false;

    // What was drawn before; a text is used by one thread only.
    mutable double m_maskScale = 0;
    mutable std::vector<Mask> m_masks; // a run each, then that of all
};

}
