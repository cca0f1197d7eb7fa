#include "WidgetHost/Windows/WidgetWindow.h"

#include <utility>

#include "WidgetHost/Windows/WindowContent.h"

#include <gtkmm.h>

namespace orvel {

struct WidgetWindow::Content : WindowContent {
    using WindowContent::WindowContent;
};

WidgetWindow::WidgetWindow(DesktopWindows& windows, std::optional<WidgetPlace> place, WidgetWindowEvents events)
    : m_content(std::make_unique<Content>(windows, std::move(place), std::move(events)))
{
}

WidgetWindow::~WidgetWindow()
{
    m_content->leave();
    // It may be in the middle of what it tells: the toolkit is to be done with it first.
    std::shared_ptr<Content> content = std::move(m_content);
    Glib::signal_idle().connect_once([content] {});
}

void WidgetWindow::show(WidgetFace face)
{
    m_content->show(std::move(face));
}

void WidgetWindow::moveTo(const WidgetPlace& place)
{
    m_content->moveTo(place);
}

void WidgetWindow::focus()
{
    m_content->focus();
}

}
