#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "WidgetHost/Windows/Places.h"
#include "WidgetHost/Windows/WindowPictures.h"
#include "WidgetHost/Windows/WindowWords.h"

namespace orvel {

/// A window as the others meet it.
class PlacedWindow {
public:
    virtual ~PlacedWindow() = default;
    /// Where its card is now; absent where it is nowhere, or nobody can say where.
    virtual std::optional<PlacedCard> placed() const = 0;
    /// Monitors came, went or changed.
    virtual void outputsChanged() = 0;
};

/// What the widgets' windows share: the monitors, each other's places, and what is drawn once for all. The toolkit is
/// there before it, and it outlives the windows.
class DesktopWindows {
public:
    explicit DesktopWindows(WindowWordsFor words);
    DesktopWindows(const DesktopWindows&) = delete;
    DesktopWindows& operator=(const DesktopWindows&) = delete;
    ~DesktopWindows();

    const std::vector<Output>& outputs() const { return m_outputs; }
    WindowPictures& pictures() { return m_pictures; }
    WindowWords words(const std::string& language) const { return m_words(language); }

    /// Looks at the monitors anew and tells the windows. Comes by itself whenever the toolkit hears of a change.
    void refresh();

    /// Where the windows besides this one are.
    std::vector<PlacedCard> takenBeside(const PlacedWindow& window) const;

    /// A window is one of these as long as this lives.
    class [[nodiscard]] Membership {
    public:
        Membership(DesktopWindows& windows, PlacedWindow& window);
        Membership(const Membership&) = delete;
        Membership& operator=(const Membership&) = delete;
        ~Membership();

    private:
        DesktopWindows& m_windows;
        PlacedWindow& m_window;
    };

private:
    struct Listening;

    WindowWordsFor m_words;
    WindowPictures m_pictures;
    std::vector<Output> m_outputs;
    std::vector<PlacedWindow*> m_members;
    std::unique_ptr<Listening> m_listening;
};

}
