#pragma once

#include <string>
#include <vector>

#include "OrvelPlatform/Views/Canvas.h"

namespace orvel {

/// Remembers what was drawn, for looking at a layout as text and for questions about its marks.
class RecordingCanvas final : public Canvas {
public:
    struct Mark {
        enum class Kind { fill, stroke, shadow, text, symbol };

        Kind kind;
        Rect frame; // as seen, without what a stroke or a shadow adds
        std::string shows; // "capsule", the words, a symbol's name
        std::string paint;
        bool isAccent; // in the accent layer
        bool erases;
        bool isCut; // a text that ends in an ellipsis
        std::vector<Rect> clips; // the frames of the outlines round it, the outermost first
    };

    const std::vector<Mark>& marks() const { return m_marks; }

    /// The marks in drawing order, a line each, the scopes round them indented; then the elements and the actions.
    std::string text() const;

    void fill(const Outline& outline, const Rect& in, const Paint& paint) override;
    void stroke(const Outline& outline, const Rect& in, const Stroke& stroke, const Paint& paint) override;
    void shadow(const Outline& outline, const Rect& in, const Shadow& shadow) override;
    void text(const ShapedText& text, Point at, const std::vector<Paint>& paints) override;
    void symbol(const Symbol& symbol, const Rect& in, double strokeWidth, const Paint& paint) override;

private:
    void entered(const State& state) override;
    void left(const State& state) override;
    void record(Mark::Kind kind, const Rect& in, std::string shows, std::string paint, bool erases, bool isCut = false);
    void write(const std::string& line);

    std::vector<Mark> m_marks;
    std::vector<Rect> m_clips;
    std::string m_lines;
    std::size_t m_depth = 0;
    int m_accents = 0;
};

/// How a mark's parts are written: "16,20 96×28", "#F8C89A", "#F8C89A 18%".
std::string described(const Rect& rect);
std::string described(const Color& color);

}
