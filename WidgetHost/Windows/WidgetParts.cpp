#include "WidgetHost/Windows/WidgetParts.h"

#include <algorithm>
#include <cmath>
#include <ranges>
#include <vector>

#include "WidgetHost/Windows/Part.h"
#include "WidgetHost/Windows/PartList.h"

#include <gtkmm.h>

namespace orvel {

struct WidgetParts::Parts {
    struct Held {
        ListedPart listed;
        std::unique_ptr<Gtk::Widget> widget;
    };

    Gtk::Window& window;
    Doing doing;
    Gtk::Fixed place {};
    std::vector<Held> held {};

    std::function<void()> actOf(const ListedPart& listed) const
    {
        if (listed.action)
            return [act = doing.act, index = *listed.action] { act(index); };
        return listed.opens ? doing.open : std::function<void()>();
    }

    void add(const ListedPart& listed)
    {
        auto widget = makePart(actOf(listed));
        place.put(*widget, 0, 0);
        widget->show();
        widget->property_has_focus().signal_changed().connect([this] { doing.focusMoved(); });
        held.push_back({ ListedPart {}, std::move(widget) });
        set(held.back(), listed);
    }

    void set(Held& part, const ListedPart& listed)
    {
        if (part.listed.meaning != listed.meaning)
            setMeaning(*part.widget, listed.meaning);
        if (part.listed.frame != listed.frame) {
            const auto left = static_cast<int>(std::floor(listed.frame.x));
            const auto top = static_cast<int>(std::floor(listed.frame.y));
            place.move(*part.widget, left, top);
            part.widget->set_size_request(static_cast<int>(std::ceil(listed.frame.right())) - left,
                static_cast<int>(std::ceil(listed.frame.bottom())) - top);
        }
        part.listed = listed;
    }

    Held* focused()
    {
        auto* const focus = window.get_focus();
        const auto found = std::ranges::find(held, focus, [](const Held& part) { return part.widget.get(); });
        return found == held.end() ? nullptr : &*found;
    }

    std::vector<Gtk::Widget*> focusable() const
    {
        std::vector<Gtk::Widget*> widgets;
        for (const auto& part : held) {
            if (part.listed.meaning.isFocusable)
                widgets.push_back(part.widget.get());
        }
        return widgets;
    }
};

WidgetParts::WidgetParts(Gtk::Window& window, Doing doing)
    : m_parts(std::make_unique<Parts>(Parts { window, std::move(doing) }))
{
    window.add(m_parts->place);
    m_parts->place.show();
}

WidgetParts::~WidgetParts()
{
    m_parts->doing.focusMoved = [] {};
}

void WidgetParts::show(const WidgetFace& face, const WindowGeometry& geometry)
{
    auto& parts = *m_parts;
    parts.place.set_size_request(static_cast<int>(geometry.window.width), static_cast<int>(geometry.window.height));
    const auto list = partsOf(face, geometry);
    const auto focused = focusedAction();
    // A part keeps its widget as long as what it does is the same, so that the focus and a reader stay where they are.
    for (std::size_t index = 0; index < list.size(); ++index) {
        if (index < parts.held.size() && !parts.held[index].listed.doesTheSameAs(list[index]))
            parts.held.resize(index);
        if (index < parts.held.size())
            parts.set(parts.held[index], list[index]);
        else
            parts.add(list[index]);
    }
    parts.held.resize(list.size());
    if (parts.focused())
        return;
    const auto again = std::ranges::find(parts.held, focused, [](const auto& part) { return part.listed.action; });
    (again == parts.held.end() ? parts.held.front() : *again).widget->grab_focus();
}

void WidgetParts::moveFocus(bool isBackward)
{
    const auto widgets = m_parts->focusable();
    if (widgets.empty())
        return;
    const auto count = widgets.size();
    const auto found = std::ranges::find(widgets, m_parts->window.get_focus());
    const auto here = static_cast<std::size_t>(found - widgets.begin());
    const auto next =
        found == widgets.end() ? (isBackward ? count - 1 : 0) : (here + (isBackward ? count - 1 : 1)) % count;
    widgets[next]->grab_focus();
}

void WidgetParts::activate()
{
    const auto* focused = m_parts->focused();
    if (const auto act = focused ? m_parts->actOf(focused->listed) : m_parts->doing.open)
        act();
}

std::optional<std::size_t> WidgetParts::focusedAction() const
{
    const auto* focused = m_parts->focused();
    return focused ? focused->listed.action : std::nullopt;
}

}
