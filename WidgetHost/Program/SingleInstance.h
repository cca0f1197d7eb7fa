#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <string>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Desktop/EventLoop.h"
#include "WidgetHost/Program/HostCall.h"

struct _GApplication;

namespace orvel {

/// The one host of a session, found by its name on the bus as applications of the desktop are: whoever has the name
/// listens, and whoever comes later asks it. Desktops may ask it, too.
class SingleInstance {
public:
    static constexpr const char* name = "app.orvel.WidgetHost";

    /// What others ask the one that runs for, on the program's loop.
    struct Wishes {
        std::function<void(std::string activationToken)> gallery;
        std::function<void(std::string activationToken)> controls;
        std::function<void(HostCall::Add)> add;
        std::function<void()> quit;
    };

    /// Takes the name, unless somebody has it. A fault where there is no bus.
    [[nodiscard]] static std::expected<SingleInstance, Fault> find();

    SingleInstance(SingleInstance&&) noexcept;
    SingleInstance& operator=(SingleInstance&&) = delete;
    ~SingleInstance();

    bool isElsewhere() const;

    /// Here: answers what comes from now on.
    void listen(Wishes wishes);

    /// Elsewhere: asks it. They return when the bus has it; `quit` when the other is gone, or does not go.
    void askForGallery(const std::string& activationToken) const;
    void askForControls(const std::string& activationToken) const;
    void askToAdd(const HostCall::Add& widget) const;
    [[nodiscard]] std::expected<void, Fault> askToQuit(EventLoop& loop) const;

private:
    struct Release {
        void operator()(_GApplication* application) const;
    };
    explicit SingleInstance(_GApplication* application);
    void askToShow(const char* action, const std::string& activationToken) const;
    void flush() const;

    std::unique_ptr<_GApplication, Release> m_application;
    std::unique_ptr<Wishes> m_wishes; // GLib knows where they lie
};

}
