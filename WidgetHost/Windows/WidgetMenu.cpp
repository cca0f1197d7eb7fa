#include "WidgetHost/Windows/WidgetMenu.h"

#include "OrvelPlatform/Base/RawValue.h"

#include <gtkmm.h>

namespace orvel {

namespace {

class MenuMaker {
public:
    explicit MenuMaker(bool isRightToLeft) : m_direction(isRightToLeft ? Gtk::TEXT_DIR_RTL : Gtk::TEXT_DIR_LTR) { }

    void item(Gtk::Menu& menu, const std::string& title, const std::function<void()>& chosen) const
    {
        if (chosen)
            add(menu, *Gtk::make_managed<Gtk::MenuItem>(title)).signal_activate().connect(chosen);
    }

    void choice(Gtk::Menu& menu, const std::string& title, bool isChosen, const std::function<void()>& chosen) const
    {
        auto& item = *Gtk::make_managed<Gtk::CheckMenuItem>(title);
        item.set_draw_as_radio(true);
        item.set_active(isChosen);
        add(menu, item).signal_activate().connect(chosen);
    }

    Gtk::Menu& submenu(Gtk::Menu& menu, const std::string& title) const
    {
        auto& inner = *Gtk::make_managed<Gtk::Menu>();
        inner.set_direction(m_direction);
        add(menu, *Gtk::make_managed<Gtk::MenuItem>(title)).set_submenu(inner);
        return inner;
    }

    void line(Gtk::Menu& menu) const { add(menu, *Gtk::make_managed<Gtk::SeparatorMenuItem>()); }

    std::unique_ptr<Gtk::Menu> menu() const
    {
        auto menu = std::make_unique<Gtk::Menu>();
        menu->set_direction(m_direction);
        return menu;
    }

private:
    Gtk::MenuItem& add(Gtk::Menu& menu, Gtk::MenuItem& item) const
    {
        item.set_direction(m_direction);
        if (auto* const label = item.get_child())
            label->set_direction(m_direction);
        item.show();
        menu.append(item);
        return item;
    }

    Gtk::TextDirection m_direction;
};

}

std::unique_ptr<Gtk::Menu> makeMenu(const WidgetFace& face, const WindowWords& words, const MenuChoices& choices)
{
    const MenuMaker make(face.isRightToLeft);
    auto menu = make.menu();
    if (choices.family && face.families.size() > 1) {
        auto& sizes = make.submenu(*menu, words.size);
        for (const auto& family : face.families) {
            const auto title = words.families.find(family);
            make.choice(sizes, title == words.families.end() ? family : title->second, family == face.family,
                [chosen = choices.family, family] { chosen(family); });
        }
    }
    if (choices.look) {
        auto& looks = make.submenu(*menu, words.look);
        for (const auto look : allCases<ChosenLook>())
            make.choice(looks, words.looks[static_cast<std::size_t>(look)], look == face.look,
                [chosen = choices.look, look] { chosen(look); });
    }
    make.line(*menu);
    make.item(*menu, words.addWidgets, choices.gallery);
    make.item(*menu, words.settings, choices.settings);
    if (choices.gallery || choices.settings)
        make.line(*menu);
    make.item(*menu, words.remove, choices.remove);
    return menu;
}

}
