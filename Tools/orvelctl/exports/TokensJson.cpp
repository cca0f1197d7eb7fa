#include <fmt/format.h>

#include "OrvelDesign/Tokens.h"
#include "Tools/orvelctl/exports/FontNames.h"
#include "Tools/orvelctl/exports/JsonLines.h"
#include "Tools/orvelctl/exports/TokensExport.h"

namespace orvel {

namespace {

std::string quantity(double value, std::string_view unit)
{
    return fmt::format(R"({{"value": {}, "unit": "{}"}})", value, unit);
}

std::string points(double value)
{
    return quantity(value, "px");
}

std::string json(const RGBA& color)
{
    return fmt::format(R"({{"colorSpace": "srgb", "components": [{}, {}, {}], "alpha": {}}})", color.red, color.green,
        color.blue, color.alpha);
}

std::string json(const Bezier& curve)
{
    return fmt::format("[{}, {}, {}, {}]", curve.x1, curve.y1, curve.x2, curve.y2);
}

std::string json(const ShadowLayer& layer)
{
    return fmt::format(R"({{"inset": {}, "offsetX": {}, "offsetY": {}, "blur": {}, "spread": {}, "color": {}}})",
        layer.inset, points(layer.x), points(layer.y), points(layer.blur), points(layer.spread), json(layer.color));
}

std::string json(const ShadowLayers& layers)
{
    std::string list;
    for (const auto& layer : layers)
        list += (list.empty() ? "" : ", ") + json(layer);
    return '[' + list + ']';
}

/// The format gives a line height as a multiple of the size; the exact one stands beside it.
void writeType(JsonLines& lines, const TypeSpecValue& spec)
{
    const auto font = fontNames(spec.family);
    lines.member("$value",
        fmt::format(
            R"({{"fontFamily": ["{}", "{}"], "fontSize": {}, "fontWeight": {}, "letterSpacing": {}, "lineHeight": {}}})",
            font.name, font.generic, points(spec.size), spec.weight, points(spec.tracking),
            spec.lineHeight / spec.size));
    lines.openObject("$extensions");
    lines.member("app.orvel",
        fmt::format(R"({{"family": "{}", "lineHeight": {}, "italic": {}}})", rawValue(spec.family),
            points(spec.lineHeight), spec.italic));
    lines.closeObject();
}

void writeValue(JsonLines& lines, std::string_view name, const std::optional<std::string>& value)
{
    if (!value)
        return;
    lines.openObject(name);
    lines.member("$value", *value);
    lines.closeObject();
}

void writeVariants(JsonLines& lines, const Tokens::ColorPair& pair)
{
    const auto written = [](const RGBA& color) { return json(color); };
    writeValue(lines, "dusk", json(pair.dusk));
    writeValue(lines, "dawn", json(pair.dawn));
    writeValue(lines, "duskHighContrast", pair.duskHighContrast.transform(written));
    writeValue(lines, "dawnHighContrast", pair.dawnHighContrast.transform(written));
    writeValue(lines, "duskSolid", pair.duskSolid.transform(written));
    writeValue(lines, "dawnSolid", pair.dawnSolid.transform(written));
}

/// A group of tokens of one type; `write` fills in each token's own object.
template <typename All, typename Write>
void writeGroup(JsonLines& lines, std::string_view name, std::string_view type, const All& all, Write write)
{
    lines.openObject(name);
    lines.member("$type", jsonText(type));
    for (const auto& token : all) {
        lines.openObject(token.name);
        write(token.value);
        lines.closeObject();
    }
    lines.closeObject();
}

}

std::string tokensAsJson()
{
    JsonLines lines;
    const auto writeOne = [&](auto text) {
        return [&lines, text](const auto& value) { lines.member("$value", text(value)); };
    };

    lines.openObject();
    writeGroup(lines, "color", "color", Tokens::Color::all, [&](const auto& pair) { writeVariants(lines, pair); });
    writeGroup(lines, "space", "dimension", Tokens::Space::all, writeOne(points));
    writeGroup(lines, "radius", "dimension", Tokens::Radius::all, writeOne(points));
    writeGroup(lines, "duration", "duration", Tokens::Duration::all,
        writeOne([](double seconds) { return quantity(seconds, "s"); }));
    writeGroup(lines, "easing", "cubicBezier", Tokens::Easing::all, writeOne([](const Bezier& c) { return json(c); }));
    writeGroup(lines, "opacity", "number", Tokens::Opacity::all, writeOne(jsonNumber));
    writeGroup(lines, "shadow", "shadow", Tokens::Shadow::all, [&](const ShadowPair& shadow) {
        writeValue(lines, "dusk", json(shadow.dusk));
        writeValue(lines, "dawn", json(shadow.dawn));
    });
    writeGroup(
        lines, "typeSpec", "typography", Tokens::TypeSpec::all, [&](const auto& spec) { writeType(lines, spec); });
    lines.closeObject();
    return lines.take();
}

}
