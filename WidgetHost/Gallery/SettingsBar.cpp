#include "WidgetHost/Gallery/SettingsBar.h"

#include <cmath>
#include <utility>

#include "OrvelDesign/TokensSpace.h"
#include "WidgetHost/Gallery/WrappingRow.h"
#include "WidgetHost/Style/Accessible.h"

#include <gtkmm.h>

namespace orvel {

struct SettingsBar::Parts {
    Gtk::Box bar;
    Gtk::Box& row = makeWrappingRow(static_cast<int>(Tokens::Space::s12), static_cast<int>(Tokens::Space::s3));
    Gtk::Box transparency { Gtk::ORIENTATION_HORIZONTAL, static_cast<int>(Tokens::Space::s3) };
    Gtk::Label transparencyLabel;
    Gtk::Switch transparencySwitch;
    Gtk::Box text { Gtk::ORIENTATION_HORIZONTAL, static_cast<int>(Tokens::Space::s3) };
    Gtk::Label textLabel;
    Gtk::Scale textScale;

    std::function<void(bool)> reducesTransparencyChosen;
    std::function<void(int)> biggerTextChosen;
    bool isShowing = false; // what changes meanwhile was chosen by nobody
    int biggerText = 0;

    Parts(std::function<void(bool)> transparencyChosen, std::function<void(int)> textChosen);
    void takeSwitch();
    void takeScale();
};

SettingsBar::Parts::Parts(std::function<void(bool)> transparencyChosen, std::function<void(int)> textChosen)
    : reducesTransparencyChosen(std::move(transparencyChosen)), biggerTextChosen(std::move(textChosen))
{
    bar.get_style_context()->add_class("foot");
    transparencyLabel.set_mnemonic_widget(transparencySwitch);
    transparencySwitch.set_valign(Gtk::ALIGN_CENTER);
    transparency.pack_start(transparencyLabel, Gtk::PACK_SHRINK);
    transparency.pack_start(transparencySwitch, Gtk::PACK_SHRINK);

    textScale.set_adjustment(Gtk::Adjustment::create(0, 0, BiggerText::maxSteps, 1, 1));
    textScale.set_digits(0);
    textScale.set_round_digits(0);
    textScale.set_draw_value(false);
    textScale.set_valign(Gtk::ALIGN_CENTER);
    textLabel.set_mnemonic_widget(textScale);
    text.pack_start(textLabel, Gtk::PACK_SHRINK);
    text.pack_start(textScale, Gtk::PACK_SHRINK);

    row.set_valign(Gtk::ALIGN_CENTER);
    row.add(transparency);
    row.add(text);
    bar.pack_start(row);
    bar.show_all();

    transparencySwitch.property_active().signal_changed().connect([this] { takeSwitch(); });
    textScale.signal_value_changed().connect([this] { takeScale(); });
}

void SettingsBar::Parts::takeSwitch()
{
    if (!isShowing && reducesTransparencyChosen)
        reducesTransparencyChosen(transparencySwitch.get_active());
}

void SettingsBar::Parts::takeScale()
{
    const auto steps = static_cast<int>(std::lround(textScale.get_value()));
    if (isShowing || steps == std::exchange(biggerText, steps) || !biggerTextChosen)
        return;
    biggerTextChosen(steps);
}

SettingsBar::SettingsBar(std::function<void(bool)> reducesTransparencyChosen, std::function<void(int)> biggerTextChosen)
    : m_parts(std::make_unique<Parts>(std::move(reducesTransparencyChosen), std::move(biggerTextChosen)))
{
}

SettingsBar::~SettingsBar() = default;

Gtk::Widget& SettingsBar::widget()
{
    return m_parts->bar;
}

void SettingsBar::show(const GalleryContent& content)
{
    auto& parts = *m_parts;
    parts.isShowing = true;
    parts.transparencyLabel.set_text(content.words.reduceTransparency);
    setAccessibleName(parts.transparencySwitch, content.words.reduceTransparency);
    setAccessibleName(parts.textScale, content.words.biggerText);
    parts.transparencySwitch.set_active(content.reducesTransparency);
    parts.textLabel.set_text(content.words.biggerText);
    parts.biggerText = content.biggerText;
    parts.textScale.set_value(content.biggerText);
    parts.isShowing = false;
}

}
