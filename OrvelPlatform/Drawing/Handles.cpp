#include "OrvelPlatform/Drawing/Handles.h"

#include <cairo.h>
#include <fontconfig/fontconfig.h>
#include <pango/pango.h>

namespace orvel {

void HandleRelease::operator()(_cairo* context) const
{
    cairo_destroy(context);
}

void HandleRelease::operator()(_cairo_surface* surface) const
{
    cairo_surface_destroy(surface);
}

void HandleRelease::operator()(_FcConfig* configuration) const
{
    FcConfigDestroy(configuration);
}

void HandleRelease::operator()(_PangoContext* context) const
{
    g_object_unref(context);
}

void HandleRelease::operator()(_PangoFontMap* map) const
{
    g_object_unref(map);
}

void HandleRelease::operator()(_PangoLayout* layout) const
{
    g_object_unref(layout);
}

}
