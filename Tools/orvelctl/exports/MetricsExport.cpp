#include "Tools/orvelctl/exports/MetricsExport.h"

#include <fmt/format.h>

#include "OrvelDesign/MacTypeRole.h"
#include "Tools/orvelctl/exports/JsonLines.h"

namespace orvel {

namespace {

void writeRole(JsonLines& lines, MacTypeRole role, const TypeMetrics& metrics)
{
    const auto yesOrNo = [](bool value) { return value ? "true" : "false"; };
    lines.openObject();
    lines.member("role", jsonText(rawValue(role)));
    lines.member("family", jsonText(rawValue(metrics.spec.family)));
    lines.member("size", jsonNumber(metrics.size));
    lines.member("lineHeight", jsonNumber(metrics.lineHeight));
    lines.member("weight", jsonNumber(metrics.spec.weight));
    lines.member("italic", yesOrNo(metrics.spec.italic));
    lines.member("tracking", jsonNumber(metrics.spec.tracking));
    lines.member("tabularDigits", yesOrNo(metrics.tabularDigits));
    lines.member("textStyle", jsonText(rawValue(textStyle(role))));
    lines.closeObject();
}

}

std::string metricsAsJson(BiggerText bigger, std::optional<double> systemScale)
{
    JsonLines lines;
    lines.openObject();
    lines.member("bigger", jsonNumber(bigger.steps()));
    if (systemScale)
        lines.member("scale", jsonNumber(*systemScale));
    lines.openArray("roles");
    for (const auto role : allCases<MacTypeRole>())
        writeRole(lines, role, metrics(role, bigger, systemScale));
    lines.closeArray();
    lines.closeObject();
    return lines.take();
}

std::string metricsAsTable(BiggerText bigger, std::optional<double> systemScale)
{
    auto table = fmt::format("{:<15} {:<8} {:>7} {:>7} {:>7}  {:<7} {:<8} {}\n", "role", "family", "size", "line",
        "weight", "slant", "digits", "text style");
    for (const auto role : allCases<MacTypeRole>()) {
        const auto found = metrics(role, bigger, systemScale);
        table += fmt::format("{:<15} {:<8} {:>7.5g} {:>7.5g} {:>7}  {:<7} {:<8} {}\n", rawValue(role),
            rawValue(found.spec.family), found.size, found.lineHeight, found.spec.weight,
            found.spec.italic ? "italic" : "upright", found.tabularDigits ? "tabular" : "free",
            rawValue(textStyle(role)));
    }
    return table;
}

}
