#include "WidgetHost/Windows/Monitors.h"

#include "OrvelPlatform/Desktop/GlibHandles.h"

#include <gtk/gtk.h>

namespace orvel {

namespace {

Rect rect(const GdkRectangle& rectangle)
{
    return { static_cast<double>(rectangle.x), static_cast<double>(rectangle.y), static_cast<double>(rectangle.width),
        static_cast<double>(rectangle.height) };
}

/// The connector's name. The toolkit's newer functions have none.
std::string nameOf(GdkDisplay* display, GdkMonitor* monitor, int index)
{
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS
    const GlibText plug(gdk_screen_get_monitor_plug_name(gdk_display_get_default_screen(display), index));
    G_GNUC_END_IGNORE_DEPRECATIONS
    if (plug)
        return plug.get();
    const char* model = gdk_monitor_get_model(monitor);
    return model ? model : "";
}

}

std::vector<Output> monitors()
{
    std::vector<Output> outputs;
    auto* const display = gdk_display_get_default();
    for (int index = 0; index < gdk_display_get_n_monitors(display); ++index) {
        auto* const monitor = gdk_display_get_monitor(display, index);
        GdkRectangle area, workArea;
        gdk_monitor_get_geometry(monitor, &area);
        gdk_monitor_get_workarea(monitor, &workArea);
        outputs.push_back(
            { nameOf(display, monitor, index), rect(area), rect(workArea), gdk_monitor_is_primary(monitor) != FALSE });
    }
    return outputs;
}

_GdkMonitor* monitor(std::size_t index)
{
    return gdk_display_get_monitor(gdk_display_get_default(), static_cast<int>(index));
}

}
