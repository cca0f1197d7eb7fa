#include "Tools/orvelctl/calls/SnapshotSource.h"

#include <cstdio>

#include "OrvelShared/WidgetSnapshotForm.h"

namespace orvelctl {

namespace {

using namespace orvel;

/// All of standard input, or one byte more than a snapshot may have.
std::string readStandardInput()
{
    std::string bytes(largestSharedFile + 1, '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), stdin));
    return bytes;
}

std::expected<WidgetSnapshot, Fault> snapshotFromStandardInput()
{
    const auto bytes = readStandardInput();
    auto snapshot = bytes.size() > largestSharedFile
        ? std::unexpected(Fault { .where = "", .why = "is longer than a snapshot may be" })
        : decodeJson<WidgetSnapshot>(bytes);
    if (!snapshot)
        return std::unexpected(Fault { .where = "standard input", .why = snapshot.error().text() });
    return snapshot;
}

}

std::expected<FoundSnapshot, Fault> readSnapshot(const std::string& file)
{
    const auto shared = file.empty() ? WidgetSnapshot::file() : SharedFile<WidgetSnapshot>(file);
    const auto isStandardInput = file == "-";
    auto snapshot = isStandardInput ? snapshotFromStandardInput() : shared.readOrFault();
    if (!snapshot)
        return std::unexpected(snapshot.error());
    return FoundSnapshot { .snapshot = *std::move(snapshot),
        .origin = isStandardInput ? "standard input" : shared.url.string() };
}

}
