#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvelPlatform/Views/Geometry.h"

/// Text: how it is set, and what shapes and measures it.
namespace orvel {

enum class FontFamily { rounded, serif };

/// One style of letters. Lines are exactly `lineHeight` high, with half of the difference to the font's own height
/// above and half below (both may be negative).
struct TextStyle {
    FontFamily family = FontFamily::rounded;
    double size = 13; // points
    double lineHeight = 18; // points
    int weight = 400; // on the scale from 100 to 900
    bool italic = false;
    double tracking = 0; // points added between letters
    bool tabularDigits = false; // digits of one width

    bool operator==(const TextStyle&) const = default;
};

/// A stretch of text in one style.
struct TextRun {
    std::string text; // UTF-8; what is not is shown as replacement characters. A line break counts as a space
    TextStyle style;
    bool operator==(const TextRun&) const = default;
};

/// Where lines shorter than the widest one stand.
enum class TextAlignment { leading, center, trailing };

/// A paragraph to shape. Its line height and its baselines are the first run's.
struct TextBlock {
    std::vector<TextRun> runs;
    int lineLimit = 0; // 0: as many as it needs; what goes beyond ends in an ellipsis
    TextAlignment alignment = TextAlignment::leading;
    bool balanced = false; // several lines of about one length, in no more lines than otherwise
    LayoutDirection direction = LayoutDirection::leftToRight; // of the layout; letters follow their own script
    std::string language {}; // BCP 47; chooses between a script's forms (Han letters differ). Empty: not known

    bool operator==(const TextBlock&) const = default;
};

/// A paragraph as it was set at one width. A text system derives its own with what drawing needs.
class ShapedText {
public:
    struct Line {
        std::string text; // as shown: where it was cut, with the ellipsis
        double x; // from the left edge of the block
        double width;
        bool operator==(const Line&) const = default;
    };

    virtual ~ShapedText() = default;

    Size size; // as wide as the widest line
    double firstBaseline = 0; // from the top
    double lastBaseline = 0;
    bool isCut = false; // ends in an ellipsis
    std::vector<Line> lines;
};

/// Shapes and measures text; keeps what it shaped, so that asking again is cheap.
class TextSystem {
public:
    virtual ~TextSystem() = default;

    /// The paragraph within `width`; infinite for one line of ideal width. Even with no room at all a line is there, if
    /// only as an ellipsis. A width that an earlier answer had is always enough for the same lines.
    virtual std::shared_ptr<const ShapedText> shape(const TextBlock& block, double width) = 0;
};

/// The text system that views measure with; the fixed-pitch one where nobody gave another.
struct TextSystemKey {
    using Value = std::shared_ptr<TextSystem>;
    static Value defaultValue();
};

/// The language of the words, as a BCP 47 tag; empty where nobody said.
struct TextLanguageKey {
    using Value = std::string;
    static Value defaultValue() { return {}; }
};

struct LayoutDirectionKey {
    using Value = LayoutDirection;
    static Value defaultValue() { return LayoutDirection::leftToRight; }
};

}
