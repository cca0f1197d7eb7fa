#include "WidgetHost/Windows/ActivationToken.h"

#include "OrvelPlatform/Desktop/GlibHandles.h"

#include <gtkmm.h>

namespace orvel {

std::string activationToken(std::uint32_t time)
{
    const auto context = Gdk::Display::get_default()->get_app_launch_context();
    context->set_timestamp(time);
    // The toolkit wants to know who starts, though the user's own choice of an application decides it later.
    const auto anybody =
        Gio::AppInfo::create_from_commandline("orvel", "Orvel", Gio::APP_INFO_CREATE_SUPPORTS_STARTUP_NOTIFICATION);
    const GlibText token(
        g_app_launch_context_get_startup_notify_id(G_APP_LAUNCH_CONTEXT(context->gobj()), anybody->gobj(), nullptr));
    return token ? token.get() : std::string();
}

}
