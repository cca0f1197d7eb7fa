#pragma once

#include <memory>

struct _cairo;
struct _cairo_surface;
struct _FcConfig;
struct _PangoContext;
struct _PangoFontMap;
struct _PangoLayout;

/// Owners of what the drawing libraries hand out. Only names of theirs stand here, so that no header of ours shows one
/// of theirs.
namespace orvel {

struct HandleRelease {
    void operator()(_cairo* context) const;
    void operator()(_cairo_surface* surface) const;
    void operator()(_FcConfig* configuration) const;
    void operator()(_PangoContext* context) const;
    void operator()(_PangoFontMap* map) const;
    void operator()(_PangoLayout* layout) const;
};

template <typename T>
using Handle = std::unique_ptr<T, HandleRelease>;

using CairoHandle = Handle<_cairo>;
using SurfaceHandle = Handle<_cairo_surface>;

}
