#include "OrvelPlatform/Desktop/AnswerWriting.h"

#include <fmt/format.h>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <unordered_map>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"
#include "OrvelPlatform/Desktop/SharedPixels.h"

namespace orvel {

namespace {

using Kind = RequestFault::Kind;

/// What a message adds around the values.
constexpr std::size_t wrapping = std::size_t { 64 } << 10;

/// A reply of a tuple just made.
Answer<Reply> reply(_GVariant* tuple, FDListHandle files = {})
{
    VariantHandle values(g_variant_ref_sink(tuple));
    const auto size = g_variant_get_size(values.get());
    if (size + wrapping > BusBound::reply)
        return std::unexpected(requestFault(
            Kind::cannotDraw, fmt::format("The answer has {} bytes, more than the bus is asked to carry.", size)));
    return Reply { .values = std::move(values), .files = std::move(files) };
}

/// A tuple of one value just made.
_GVariant* tuple(_GVariant* value)
{
    return g_variant_new_tuple(&value, 1);
}

/// An array just made of what `make` makes of each item.
template <typename Items, typename Make>
_GVariant* array(const char* type, const Items& items, Make make)
{
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE(type));
    for (const auto& item : items)
        g_variant_builder_add_value(&builder, make(item));
    return g_variant_builder_end(&builder);
}

_GVariant* parameterValue(const ExtensionIntent::Parameter& parameter)
{
    DictionaryWriter writer;
    writer.add("name", parameter.name);
    writer.add("title", parameter.title);
    writer.add("type", rawValue(parameter.type));
    writer.add("isOptional", parameter.isOptional);
    return writer.end();
}

_GVariant* intentValue(const ExtensionIntent& intent)
{
    DictionaryWriter writer;
    writer.add("name", intent.name);
    writer.add("title", intent.title);
    writer.add("parameters", array("aa{sv}", intent.parameters, &parameterValue));
    return writer.end();
}

_GVariant* memberValue(const ExtensionMember& member)
{
    DictionaryWriter writer;
    writer.add("kind", member.kind);
    writer.add("role", rawValue(member.role));
    writer.add("displayName", member.displayName);
    writer.add("description", member.description);
    writer.add("families", array("as", member.families, [](const std::string& family) {
        return g_variant_new_string(boundedText(family).c_str());
    }));
    writer.add("intents", array("aa{sv}", member.intents, &intentValue));
    return writer.end();
}

_GVariant* frameValue(const PictureFrame& frame)
{
    return g_variant_new("(dddd)", frame.x, frame.y, frame.width, frame.height);
}

_GVariant* elementValue(const PictureElement& element)
{
    return g_variant_new("(ss@(dddd))", boundedText(element.role).c_str(), boundedText(element.label).c_str(),
        frameValue(element.frame));
}

_GVariant* actionValue(const PictureAction& action)
{
    return g_variant_new("(s@(dddd)s@a{sv})", boundedText(action.label).c_str(), frameValue(action.frame),
        boundedText(action.intent).c_str(), parametersValue(action.parameters));
}

std::size_t sizeInBytes(const ExtensionPicture::Layer& layer)
{
    return std::visit(Match {
                          [](const ExtensionPicture::Pixels& pixels) { return pixels.size() * sizeof(std::uint32_t); },
                          [](const ExtensionPicture::Png& png) { return png.bytes.size(); },
                      },
        layer.content);
}

bool hasAllPixels(const ExtensionPicture& picture, const ExtensionPicture::Layer& layer)
{
    const auto* pixels = std::get_if<ExtensionPicture::Pixels>(&layer.content);
    return !pixels || pixels->size() == std::size_t { picture.width } * picture.height;
}

/// Why a picture cannot be answered, if so.
std::optional<RequestFault> pictureFault(const ExtensionPicture& picture)
{
    const auto isSide = [](std::uint32_t side) { return side > 0 && side <= ExtensionPicture::longestSide; };
    if (!isSide(picture.width) || !isSide(picture.height))
        return requestFault(Kind::cannotDraw,
            fmt::format("A picture of {} by {} pixels is not drawn; a side has 1 to {}.", picture.width, picture.height,
                ExtensionPicture::longestSide));
    std::size_t total = 0;
    for (const auto& layer : picture.layers) {
        total += sizeInBytes(layer);
        if (!hasAllPixels(picture, layer))
            return requestFault(Kind::cannotDraw, "A layer of the picture has not all its pixels.");
    }
    if (picture.layers.empty() || total > ExtensionPicture::mostBytes)
        return requestFault(Kind::cannotDraw,
            fmt::format("A picture of {} layers with {} bytes is not answered; at most {} are.", picture.layers.size(),
                total, ExtensionPicture::mostBytes));
    if (picture.link.size() > BusBound::text)
        return requestFault(Kind::cannotDraw, "The picture's link is too long.");
    return std::nullopt;
}

/// The layer's content as a value just made; pixels go into `files`.
std::expected<_GVariant*, Fault> layerContent(const ExtensionPicture::Layer& layer, _GUnixFDList* files)
{
    if (const auto* png = std::get_if<ExtensionPicture::Png>(&layer.content))
        return bytesValue(png->bytes);
    const auto file = sealedMemory(std::as_bytes(std::span(std::get<ExtensionPicture::Pixels>(layer.content))));
    if (!file)
        return std::unexpected(file.error());
    ErrorHandle error;
    const auto index = g_unix_fd_list_append(files, file->get(), ErrorOut { error });
    if (index < 0)
        return std::unexpected(Fault { .where = {}, .why = error->message });
    return g_variant_new_handle(index);
}

Answer<_GVariant*> layersValue(const ExtensionPicture& picture, _GUnixFDList* files)
{
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE("a(sv)"));
    for (const auto& layer : picture.layers) {
        const auto content = layerContent(layer, files);
        if (!content) {
            g_variant_builder_clear(&builder);
            return std::unexpected(requestFault(Kind::cannotDraw, content.error().text()));
        }
        g_variant_builder_add(&builder, "(sv)", boundedText(layer.name).c_str(), *content);
    }
    return g_variant_builder_end(&builder);
}

std::size_t sizeInBytes(const std::vector<std::string>& moments)
{
    std::size_t total = 0;
    for (const auto& moment : moments)
        total += moment.size() + sizeof(std::uint64_t);
    return total;
}

constexpr std::size_t entrySize = 16; // on the bus, as a(xu)

bool fits(const ExtensionTimeline& timeline, std::size_t mostBytes)
{
    return sizeInBytes(timeline.moments) + timeline.entries.size() * entrySize <= mostBytes;
}

Answer<Reply> replyOfFitting(const ExtensionTimeline& timeline)
{
    auto* entries = array("a(xu)", timeline.entries, [](const ExtensionTimeline::Entry& entry) {
        return g_variant_new("(xu)", microseconds(entry.date), entry.moment);
    });
    auto* moments = array("aay", timeline.moments, [](const std::string& moment) { return bytesValue(moment); });
    return reply(g_variant_new("(@a(xu)@aayx)", entries, moments, microseconds(timeline.reload)));
}

}

ExtensionTimeline shortened(const ExtensionTimeline& timeline, std::size_t mostBytes)
{
    ExtensionTimeline result { .entries = {}, .moments = {}, .reload = timeline.reload };
    std::unordered_map<std::uint32_t, std::uint32_t> places; // of the moments that are used
    std::size_t size = 0;
    for (const auto& entry : timeline.entries) {
        const auto [place, isNew] = places.try_emplace(entry.moment, static_cast<std::uint32_t>(places.size()));
        const auto& moment = timeline.moments.at(entry.moment);
        size += entrySize + (isNew ? moment.size() + sizeof(std::uint64_t) : 0);
        if (size > mostBytes) {
            result.reload = entry.date;
            break;
        }
        if (isNew)
            result.moments.push_back(moment);
        result.entries.push_back({ .date = entry.date, .moment = place->second });
    }
    return result;
}

Answer<Reply> replyOf(const std::vector<ExtensionMember>& members)
{
    return reply(tuple(array("aa{sv}", members, &memberValue)));
}

Answer<Reply> replyOf(const ExtensionEntry& entry)
{
    return reply(g_variant_new("(x@ay)", microseconds(entry.date), bytesValue(entry.moment)));
}

Answer<Reply> replyOf(const ExtensionTimeline& timeline)
{
    constexpr auto room = BusBound::reply - 2 * wrapping;
    if (fits(timeline, room))
        return replyOfFitting(timeline);
    const auto shorter = shortened(timeline, room);
    if (shorter.entries.empty())
        return std::unexpected(requestFault(Kind::cannotDraw, "A moment is larger than the bus is asked to carry."));
    return replyOfFitting(shorter);
}

Answer<Reply> replyOf(const ExtensionPicture& picture)
{
    if (auto fault = pictureFault(picture))
        return std::unexpected(*std::move(fault));
    FDListHandle files(g_unix_fd_list_new());
    const auto layers = layersValue(picture, files.get());
    if (!layers)
        return std::unexpected(layers.error());
    DictionaryWriter writer;
    writer.add("width", picture.width);
    writer.add("height", picture.height);
    writer.add("stride", picture.width * std::uint32_t { sizeof(std::uint32_t) });
    writer.add("layers", *layers);
    writer.add("link", picture.link);
    writer.add("elements", array("a(ss(dddd))", picture.elements, &elementValue));
    writer.add("actions", array("a(s(dddd)sa{sv})", picture.actions, &actionValue));
    return reply(tuple(writer.end()), std::move(files));
}

Answer<Reply> replyOf(const ControlValue& value)
{
    DictionaryWriter writer;
    writer.add("title", value.title);
    writer.add("value", value.value);
    writer.add("symbol", value.symbol);
    writer.add("isOn", value.isOn);
    if (const auto& tint = value.tint)
        writer.add("tint", g_variant_new("(dddd)", tint->red, tint->green, tint->blue, tint->alpha));
    writer.add("barText", value.barText);
    writer.add("spokenState", value.spokenState);
    if (value.icon)
        writer.add("icon", bytesValue(*value.icon));
    writer.add("start", value.start);
    writer.add("end", value.end);
    writer.add("changes", value.changes);
    writer.add("glyph", value.glyph);
    writer.add("glyphValue", value.glyphValue);
    return reply(tuple(writer.end()));
}

}
