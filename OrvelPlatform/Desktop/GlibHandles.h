#pragma once

#include <memory>

struct _GCancellable;
struct _GDBusConnection;
struct _GDBusNodeInfo;
struct _GError;
struct _GMainContext;
struct _GSource;
struct _GUnixFDList;
struct _GVariant;

/// Owners of what GLib hands out. Only names of its own stand here, so that no header of ours shows one of GLib's.
namespace orvel {

struct GlibRelease {
    void operator()(_GCancellable* cancellable) const;
    void operator()(_GDBusConnection* connection) const;
    void operator()(_GDBusNodeInfo* info) const;
    void operator()(_GError* error) const;
    void operator()(_GMainContext* context) const;
    void operator()(_GSource* source) const; // takes it off its loop too
    void operator()(_GUnixFDList* list) const;
    void operator()(_GVariant* value) const;
    void operator()(char* text) const;
};

template <typename T>
using GlibHandle = std::unique_ptr<T, GlibRelease>;

using CancellableHandle = GlibHandle<_GCancellable>;
using ConnectionHandle = GlibHandle<_GDBusConnection>;
using NodeInfoHandle = GlibHandle<_GDBusNodeInfo>;
using ErrorHandle = GlibHandle<_GError>;
using ContextHandle = GlibHandle<_GMainContext>;
using SourceHandle = GlibHandle<_GSource>;
using FDListHandle = GlibHandle<_GUnixFDList>;
using VariantHandle = GlibHandle<_GVariant>;
using GlibText = GlibHandle<char>;

/// Where GLib reports an error: `call(…, ErrorOut { handle })`. The handle has it once the call's statement is over.
class ErrorOut {
public:
    explicit ErrorOut(ErrorHandle& handle) : m_handle(handle) { }
    ErrorOut(const ErrorOut&) = delete;
    ErrorOut& operator=(const ErrorOut&) = delete;
    ~ErrorOut() { m_handle.reset(m_error); }
    operator _GError**() { return &m_error; }

private:
    ErrorHandle& m_handle;
    _GError* m_error = nullptr;
};

}
