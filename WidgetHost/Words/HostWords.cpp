#include "WidgetHost/Words/HostWords.h"

#include <memory>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelCopy/Lookup/StringTables.h"
#include "OrvelPlatform/Base/ResourceBundle.h"

namespace orvel {

namespace {

const Copy::Language& languageOf(const std::string& languages)
{
    static const auto inThisModule = 0;
    static const Copy::StringTables tables(resourceBundle("OrvelKit_WidgetHost", &inThisModule).resources() / "locale");
    return tables.language(Locale::preferred(languages));
}

}

HostWords::HostWords(const std::string& languages) : m_language(languageOf(languages)) { }

bool HostWords::isRightToLeft() const { return m_language.isRightToLeft(); }

// TRANSLATORS: a menu item: opens the list of a widget's sizes
std::string HostWords::size() const { return localized(m_language, KEY("Size")); }

std::string HostWords::sizeName(std::string_view family) const
{
    if (family == "systemSmall")
        // TRANSLATORS: a size of a widget
        return localized(m_language, KEY("Small"));
    if (family == "systemMedium")
        // TRANSLATORS: a size of a widget
        return localized(m_language, KEY("Medium"));
    if (family == "systemLarge")
        // TRANSLATORS: a size of a widget
        return localized(m_language, KEY("Large"));
    return std::string(family);
}

// TRANSLATORS: a menu item: opens the list of the ways in which a widget can look
std::string HostWords::look() const { return localized(m_language, KEY("Look")); }

std::string HostWords::lookName(ChosenLook look) const
{
    switch (look) {
    case ChosenLook::automatic:
        // TRANSLATORS: a widget's look: follows the desktop's appearance, dark or light
        return localized(m_language, KEY("Automatic"));
    case ChosenLook::dusk:
        // TRANSLATORS: a widget's look: the dark one
        return localized(m_language, KEY("Dusk"));
    case ChosenLook::dawn:
        // TRANSLATORS: a widget's look: the light one
        return localized(m_language, KEY("Dawn"));
    case ChosenLook::mono:
        // TRANSLATORS: a widget's look: in one colour
        return localized(m_language, KEY("Mono"));
    case ChosenLook::clear:
        // TRANSLATORS: a widget's look: see-through
        return localized(m_language, KEY("Clear"));
    }
    return {};
}

std::string HostWords::addWidgets() const { return localized(m_language, KEY("Add Widgets…")); }
std::string HostWords::settings() const { return localized(m_language, KEY("Settings…")); }
std::string HostWords::removeWidget() const { return localized(m_language, KEY("Remove Widget")); }
// TRANSLATORS: a menu item: ends the program that shows the widgets
std::string HostWords::quit() const { return localized(m_language, KEY("Quit Orvel Widgets")); }

// TRANSLATORS: the title of the window in which widgets are chosen
std::string HostWords::galleryTitle() const { return localized(m_language, KEY("Orvel Widgets")); }
// TRANSLATORS: a button: puts a widget on the desktop
std::string HostWords::add() const { return localized(m_language, KEY("Add")); }
// TRANSLATORS: on the button "Add" for a moment after it was used
std::string HostWords::added() const { return localized(m_language, KEY("Added")); }
// TRANSLATORS: spoken for the button "Add": %1$@ a widget, %2$@ its size
std::string HostWords::addSpoken(std::string_view widget, std::string_view size) const
{
    return localized(m_language, KEY("Add %@, %@"), widget, size);
}
// TRANSLATORS: a setting: to be switched on and off
std::string HostWords::reduceTransparency() const { return localized(m_language, KEY("Reduce transparency")); }
// TRANSLATORS: a setting: by how much text is enlarged
std::string HostWords::biggerText() const { return localized(m_language, KEY("Bigger text")); }
std::string HostWords::tryAgain() const { return localized(m_language, KEY("Try Again")); }

// TRANSLATORS: spoken: the title of the small window with a switch for a Focus and a button for a breath
std::string HostWords::controlsTitle() const { return localized(m_language, KEY("Orvel Controls")); }

// TRANSLATORS: on a widget, in small letters: %@ a time of day
std::string HostWords::notUpToDate(std::string_view since) const
{
    return localized(m_language, KEY("Not up to date since %@"), since);
}
std::string HostWords::noAnswer() const { return localized(m_language, KEY("Orvel’s widgets do not answer.")); }
std::string HostWords::couldNotOpen() const { return localized(m_language, KEY("Orvel could not be opened.")); }
std::string HostWords::couldNotAct() const { return localized(m_language, KEY("That did not work. Try again.")); }
std::string HostWords::couldNotSave() const { return localized(m_language, KEY("Your widgets could not be saved.")); }

}
