#include "OrvelPlatform/Desktop/LinkHandler.h"

#include <algorithm>
#include <gio/gdesktopappinfo.h>
#include <memory>

#include "OrvelPlatform/Desktop/GlibHandles.h"

namespace orvel {

namespace {

struct ObjectRelease {
    void operator()(GAppInfo* info) const { g_object_unref(info); }
};
using AppInfoHandle = std::unique_ptr<GAppInfo, ObjectRelease>;

struct WordsRelease {
    void operator()(char** words) const { g_strfreev(words); }
};

/// An Exec key's words; none when it is quoted wrongly.
std::vector<std::string> words(const char* command)
{
    int count = 0;
    char** split = nullptr;
    if (!command || g_shell_parse_argv(command, &count, &split, nullptr) == FALSE)
        return {};
    const std::unique_ptr<char*, WordsRelease> owned(split);
    return { split, split + count };
}

constexpr std::string_view suffix = ".desktop";

/// One word of an Exec key, its codes replaced.
std::string expanded(std::string_view word, std::string_view url)
{
    std::string text;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%' || i + 1 == word.size()) {
            text += word[i];
            continue;
        }
        const char code = word[++i];
        if (code == '%')
            text += '%';
        else if (code == 'u' || code == 'U')
            text += url;
    }
    return text;
}

bool isCodeOnly(std::string_view word)
{
    return word.size() == 2 && word.front() == '%' && word.back() != '%';
}

}

std::optional<LinkHandler> LinkHandler::forScheme(const std::string& scheme)
{
    const AppInfoHandle info(g_app_info_get_default_for_uri_scheme(scheme.c_str()));
    if (!info || !G_IS_DESKTOP_APP_INFO(info.get()))
        return std::nullopt;
    auto* entry = G_DESKTOP_APP_INFO(info.get());
    const char* id = g_app_info_get_id(info.get());
    const char* name = g_app_info_get_name(info.get());
    const GlibText folder(g_desktop_app_info_get_string(entry, G_KEY_FILE_DESKTOP_KEY_PATH));
    const bool needsTerminal = g_desktop_app_info_get_boolean(entry, G_KEY_FILE_DESKTOP_KEY_TERMINAL) != FALSE;
    return LinkHandler {
        .id = id ? id : "",
        .name = name ? name : "",
        .isBusActivatable = g_desktop_app_info_get_boolean(entry, G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE) != FALSE,
        .command = needsTerminal ? std::vector<std::string>() : words(g_app_info_get_commandline(info.get())),
        .folder = folder ? std::optional<std::string>(folder.get()) : std::nullopt,
    };
}

std::optional<std::string> LinkHandler::busName() const
{
    if (!id.ends_with(suffix))
        return std::nullopt;
    auto bus = id.substr(0, id.size() - suffix.size());
    if (g_dbus_is_name(bus.c_str()) == FALSE || g_dbus_is_unique_name(bus.c_str()) != FALSE)
        return std::nullopt;
    return bus;
}

std::string LinkHandler::objectPath() const
{
    auto path = "/" + busName().value_or(std::string());
    std::ranges::replace(path, '.', '/');
    std::ranges::replace(path, '-', '_');
    return path;
}

std::vector<std::string> LinkHandler::commandFor(std::string_view url) const
{
    std::vector<std::string> all;
    for (const auto& word : command) {
        auto text = expanded(word, url);
        if (!text.empty() || !isCodeOnly(word))
            all.push_back(std::move(text));
    }
    return all;
}

}
