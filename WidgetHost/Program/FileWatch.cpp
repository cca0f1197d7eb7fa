#include "WidgetHost/Program/FileWatch.h"

#include <utility>

#include <gio/gio.h>

namespace orvel {

namespace {

void fileChanged(GFileMonitor*, GFile*, GFile*, GFileMonitorEvent, gpointer changed)
{
    (*static_cast<const std::function<void()>*>(changed))();
}

}

void FileWatch::Release::operator()(_GFileMonitor* monitor) const
{
    g_file_monitor_cancel(monitor);
    g_object_unref(monitor);
}

FileWatch::FileWatch(const std::filesystem::path& path, std::function<void()> changed) : m_changed(std::move(changed))
{
    const auto file = g_file_new_for_path(path.c_str());
    m_monitor.reset(g_file_monitor_file(file, G_FILE_MONITOR_NONE, nullptr, nullptr));
    g_object_unref(file);
    if (m_monitor)
        g_signal_connect(m_monitor.get(), "changed", G_CALLBACK(fileChanged), &m_changed);
}

FileWatch::~FileWatch()
{
    if (m_monitor)
        g_signal_handlers_disconnect_by_data(m_monitor.get(), &m_changed);
}

}
