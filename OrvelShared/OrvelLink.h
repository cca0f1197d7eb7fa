#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "OrvelPlatform/Base/URL.h"

namespace orvel {

struct OrvelLinkCases {
    /// A breath; absent: the application's own choice.
    struct Breathe {
        std::optional<std::string> style;
        std::optional<std::int64_t> minutes;
        bool operator==(const Breathe&) const = default;
    };
    struct Focus {
        bool operator==(const Focus&) const = default;
    };
    struct Today {
        bool operator==(const Today&) const = default;
    };
    struct Settings {
        bool operator==(const Settings&) const = default;
    };
    /// The main window.
    struct Main {
        bool operator==(const Main&) const = default;
    };
    using Any = std::variant<Breathe, Focus, Today, Settings, Main>;
    bool operator==(const OrvelLinkCases&) const = default;
};

/// A place in the application that a widget, a control or an intent can open: one of `OrvelLinkCases`, for
/// `std::visit`. Its URL is a contract with the application.
struct OrvelLink : OrvelLinkCases, OrvelLinkCases::Any {
    using OrvelLinkCases::Any::Any;

    /// The place that a URL of any scheme means. Never fails: what is not understood is the main window.
    static OrvelLink fromURL(const URL& url);

    /// The scheme of this bundle's information dictionary, else "orvel".
    static std::string scheme();

    /// The link's URL under the bundle's own scheme.
    URL url() const;

    /// The link's URL under a scheme; the harmless `file:///` where that is no valid one.
    URL url(std::string_view scheme) const;

    /// The case's name, which is the URL's host: "breathe", "focus", "today", "settings" or "main".
    std::string_view name() const;

    bool operator==(const OrvelLink&) const = default;
};

}
