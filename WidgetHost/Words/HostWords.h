#pragma once

#include <string>
#include <string_view>

#include "WidgetHost/State/HostState.h"

namespace orvel {

namespace Copy {
class Language;
}

/// Every sentence that the desktop host says of itself, in one language. What the extension says is not among them.
///
/// A new one is a member here, its English text in the source, and a translation in each table of Tables/.
class HostWords {
public:
    /// The first of these languages that has words: names with colons between them, the preferred first, as an
    /// environment's language has them. Empty: English.
    explicit HostWords(const std::string& languages);

    /// Whether the words run from the right.
    bool isRightToLeft() const;

    // A widget's menu.
    std::string size() const;
    std::string sizeName(std::string_view family) const; // an unknown family's is the family
    std::string look() const;
    std::string lookName(ChosenLook look) const;
    std::string addWidgets() const;
    std::string settings() const;
    std::string removeWidget() const;
    std::string quit() const;

    // The gallery.
    std::string galleryTitle() const;
    std::string add() const;
    std::string added() const;
    std::string addSpoken(std::string_view widget, std::string_view size) const;
    std::string reduceTransparency() const;
    std::string biggerText() const;
    std::string tryAgain() const;

    // The panel and the tray.
    std::string controlsTitle() const;

    // What does not work.
    std::string notUpToDate(std::string_view since) const; // a time of day
    std::string noAnswer() const; // of the widgets' extension
    std::string couldNotOpen() const; // the application
    std::string couldNotAct() const; // what a button of a widget does
    std::string couldNotSave() const; // the widgets and their places

private:
    const Copy::Language& m_language;
};

}
