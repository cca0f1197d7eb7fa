#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "OrvelPlatform/Drawing/Renderer.h"
#include "OrvelWidgetsUI/WidgetContent.h"

namespace orvelbench {

/// The medium status widget in dusk through the sample's day: what is drawn, and what a peer needs to draw the same.
class DrawnDay {
public:
    static constexpr double scale = 2; // device pixels in a point

    /// Throws where the sample cannot be read.
    DrawnDay();

    /// The words, colours and sizes as JSON.
    std::string forPeers() const;

    std::size_t contentCount() const { return m_contents.size(); }

    /// Draws one content after the other, over and over. Throws where one cannot be drawn.
    orvel::Picture again();

    /// The same with a time left and a figure that no frame before had.
    orvel::Picture withNewWords();

private:
    orvel::Picture drawn(const orvel::WidgetContent& content);

    std::vector<orvel::WidgetContent> m_contents;
    orvel::Renderer m_renderer;
    std::size_t m_next = 0;
    std::int64_t m_newest = 0;
};

}
