#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "WidgetHost/Windows/FaceChange.h"
#include "WidgetHost/Windows/WidgetParts.h"
#include "WidgetHost/Windows/WidgetWindow.h"
#include "WidgetHost/Windows/WindowSurface.h"
#include "WidgetHost/Windows/WindowToolkit.h"

namespace orvel {

/// A widget's window behind its public face: puts together what is seen, where it is and what it does.
class WindowContent : public PlacedWindow {
public:
    WindowContent(DesktopWindows& windows, std::optional<WidgetPlace> place, WidgetWindowEvents events);
    ~WindowContent() override;

    void show(WidgetFace face);
    void moveTo(const WidgetPlace& place);
    void focus();
    /// Nothing is told or painted any more.
    void leave();

    std::optional<PlacedCard> placed() const override { return m_shown; }
    void outputsChanged() override;

private:
    struct Press {
        Grip grip;
        std::optional<std::size_t> action;
        bool isDrag = false;
    };

    void listen();

    // What is seen.
    void layOut();
    void sayName();
    void makePlaceholder();
    void makeNotice();
    void surroundingsChanged();
    void repaint(const FaceChange& change);
    void repaintAll();
    void makeFrame();
    void paint(_cairo* context);
    void paintCard(_cairo* context);
    bool showsFocus() const;

    // Where it is.
    void putInPlace();
    void moveBy(double x, double y);
    void dropAt(const PlacedCard& dropped);
    void closed();

    // What is done with it.
    void pressed(const Grip& grip);
    void pointed(const PointerPlace& pointer);
    void released(const PointerPlace& pointer, std::uint32_t time);
    bool keyPressed(const KeyPress& press);
    void openMenu(const _GdkEvent* event);
    void open();
    void act(std::size_t action);

    DesktopWindows& m_windows;
    WidgetWindowEvents m_events;
    std::optional<WidgetPlace> m_place; // as it was chosen
    std::optional<PlacedCard> m_shown; // as it is today
    std::optional<WidgetFace> m_face;
    WindowGeometry m_geometry {};
    double m_toldScale = 1;
    std::optional<Press> m_press;
    bool m_isKeyboardUsed = false; // the focus is seen from the first key on, until the pointer is used
    std::uint32_t m_eventTime = 0;
    std::int64_t m_shownSince = 0; // monotonic microseconds

    std::shared_ptr<const WindowPictures::Frame> m_frame;
    bool m_saysName = false; // of the widget, while it has no picture
    std::shared_ptr<const WindowPictures::Placed> m_placeholder;
    std::shared_ptr<const WindowPictures::Placed> m_notice;
    std::shared_ptr<const WindowPictures::Placed> m_ring;

    WindowToolkit m_toolkit;
    std::unique_ptr<WindowSurface> m_surface;
    std::unique_ptr<WidgetParts> m_parts;
    std::optional<DesktopWindows::Membership> m_membership;
};

}
