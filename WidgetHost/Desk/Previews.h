#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "WidgetHost/Desk/HostServices.h"

namespace orvel {

/// A widget as it may be placed.
struct Offer {
    std::string kind;
    std::string family;
    auto operator<=>(const Offer&) const = default;
};

/// Pictures of widgets that nobody placed yet, for the gallery. Asked once for each environment; what fails stays
/// without a picture until it is wanted anew.
class Previews {
public:
    /// `changed` is called when a picture came, perhaps from within a call. The services outlive this.
    Previews(HostServices& services, std::function<void()> changed);
    Previews(const Previews&) = delete;
    Previews& operator=(const Previews&) = delete;

    /// The offers of which there are to be pictures from now on, as they look in `environment`, whose family does not
    /// count. An old picture stays until the new one came.
    void want(const std::vector<Offer>& offers, const HostEnvironment& environment);

    /// What the pictures show may have changed, or what failed may go well: all are asked at the next wish.
    void forget();

    /// Null while there is none.
    std::shared_ptr<const HostPicture> picture(const Offer& offer) const;

private:
    struct Preview {
        HostEnvironment environment {}; // of the last request
        bool isAsked = false;
        std::shared_ptr<const HostPicture> picture {};
        StartedTask request {};
    };

    void ask(const Offer& offer, Preview& preview);

    HostServices& m_services;
    std::function<void()> m_changed;
    std::map<Offer, Preview> m_previews;
};

}
