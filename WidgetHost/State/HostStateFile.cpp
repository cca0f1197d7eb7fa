#include "WidgetHost/State/HostStateFile.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>
#include <system_error>
#include <utility>

#include "OrvelPlatform/Base/ApplicationSupport.h"
#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Base/JsonDecoding.h"
#include "OrvelPlatform/Base/JsonEncoding.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t largestFile = std::size_t { 1 } << 20;

/// The one thing that every version of the form says.
struct Versioned {
    std::int32_t version;
};

struct Contents {
    HostState state;
    std::int32_t version;
};

}

template <>
struct JsonForm<Versioned> {
    static constexpr auto fields = std::tuple { JsonField { "version", &Versioned::version } };
};

template <>
struct JsonForm<Contents> {
    static constexpr auto fields =
        std::tuple { JsonField { "state", &Contents::state }, JsonField { "version", &Contents::version } };
};

namespace {

std::unexpected<Fault> broken(std::string why)
{
    return std::unexpected(Fault { .where = {}, .why = std::move(why), .cause = {} });
}

std::expected<HostState, Fault> checked(HostState state)
{
    std::set<std::string_view> ids;
    for (const auto& widget : state.widgets) {
        if (widget.id.empty() || !ids.insert(widget.id).second)
            return broken(fmt::format("\"{}\" is not one widget's id", widget.id));
    }
    state.biggerText = std::clamp(state.biggerText, 0, HostState::mostBiggerText);
    return state;
}

std::expected<HostState, Fault> stateFrom(std::string_view bytes)
{
    const auto versioned = decodeJson<Versioned>(bytes);
    if (!versioned)
        return std::unexpected(versioned.error());
    if (versioned->version != HostStateFile::version)
        return broken(
            fmt::format("its version is {}; this program knows {}", versioned->version, HostStateFile::version));
    auto contents = decodeJson<Contents>(bytes);
    if (!contents)
        return std::unexpected(contents.error());
    return checked(std::move(contents->state));
}

/// A name beside the file's that nothing has.
fs::path nameAside(const fs::path& path)
{
    std::error_code ignored;
    auto name = fs::path(path) += ".broken";
    for (auto number = 2; fs::exists(fs::symlink_status(name, ignored)); ++number)
        name = fs::path(path) += fmt::format(".broken-{}", number);
    return name;
}

}

fs::path HostStateFile::standardPath()
{
    return applicationConfiguration() / "orvel" / "widget-host.json";
}

HostStateFile::Reading HostStateFile::read()
{
    m_refusal.reset();
    const auto bytes = readFile(m_path, largestFile);
    if (!bytes) {
        const auto& fault = bytes.error();
        if (fault.cause == std::errc::no_such_file_or_directory)
            return {};
        return { .state = {}, .warning = fault.cause == std::errc {} ? keepAside(fault) : leaveAlone(fault.text()) };
    }
    auto state = stateFrom(*bytes);
    if (!state)
        return { .state = {}, .warning = keepAside({ m_path.string(), state.error().text() }) };
    return { .state = *std::move(state), .warning = std::nullopt };
}

std::expected<void, Fault> HostStateFile::write(const HostState& state) const
{
    if (m_refusal)
        return std::unexpected(Fault { .where = m_path.string(), .why = *m_refusal, .cause = {} });
    const auto bytes = encodeJson(Contents { .state = state, .version = version });
    if (!bytes)
        return std::unexpected(bytes.error());
    return replaceFile(m_path, *bytes);
}

std::string HostStateFile::keepAside(const Fault& fault)
{
    const auto aside = nameAside(m_path);
    std::error_code error;
    fs::rename(m_path, aside, error);
    if (error)
        return leaveAlone(fmt::format("{}; it cannot be renamed: {}", fault.text(), error.message()));
    return fmt::format("{}; it is kept as {}", fault.text(), aside.filename().string());
}

std::string HostStateFile::leaveAlone(const std::string& why)
{
    m_refusal = "is left as it is, because it could not be read";
    return why + "; it is left as it is, and changes are not kept";
}

}
