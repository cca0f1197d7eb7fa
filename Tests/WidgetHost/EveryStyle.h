#pragma once

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "WidgetHost/Style/StyleSheet.h"

#include <gtkmm.h>

namespace orvel::tests {

/// Expects that the toolkit understands a window's style sheet, whatever the desktop's settings are. It would pass over
/// a declaration that it does not understand only with a message that nobody sees.
inline void expectSoundStyles(const std::function<std::string(const StyleSettings&)>& styleSheet)
{
    Gtk::Main::init_gtkmm_internals(); // no display is needed
    for (unsigned settings = 0; settings < 16; ++settings) {
        const auto is = [&](unsigned bit) { return (settings & bit) != 0; };
        const auto text = styleSheet({
            .colors = { .dark = is(1), .increaseContrast = is(2), .reduceTransparency = is(4) },
            .reducesMotion = is(8),
            .biggerText = BiggerText(static_cast<int>(settings % 5)),
            .textScale = 1.25,
        });
        const auto provider = Gtk::CssProvider::create();
        std::string faults;
        provider->signal_parsing_error().connect(
            [&](const auto&, const Glib::Error& error) { faults += error.what() + "\n"; });
        EXPECT_NO_THROW(provider->load_from_data(text));
        EXPECT_EQ(faults, "") << text;
    }
}

}
