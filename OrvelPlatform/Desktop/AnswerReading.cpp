#include "OrvelPlatform/Desktop/AnswerReading.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <fmt/format.h>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <string_view>

#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"

namespace orvel {

namespace {

/// A reply that breaks the contract; thrown and caught within this file.
struct Breach {
    std::string sentence;
};

template <typename T>
T kept(std::optional<T> value, std::string_view what)
{
    if (!value)
        throw Breach { fmt::format("{} is missing or wrong.", what) };
    return *std::move(value);
}

void demand(bool holds, std::string_view sentence)
{
    if (!holds)
        throw Breach { std::string(sentence) };
}

template <typename Read>
auto optionalValue(_GVariant* dictionary, const char* key, Read read) -> decltype(read(nullptr))
{
    const auto value = lookUp(dictionary, key);
    return value ? std::optional(kept(read(value.get()), key)) : std::nullopt;
}

template <typename Read>
auto requiredValue(_GVariant* dictionary, const char* key, Read read)
{
    return kept(optionalValue(dictionary, key, read), key);
}

std::optional<Date> dateValue(_GVariant* value)
{
    const auto read = wholeNumber(value);
    return read ? date(*read) : std::nullopt;
}

std::optional<std::uint32_t> pictureSide(_GVariant* value)
{
    const auto read = wholeNumber(value);
    const auto isSide = read && *read > 0 && *read <= ExtensionPicture::longestSide;
    return isSide ? std::optional(static_cast<std::uint32_t>(*read)) : std::nullopt;
}

/// Bytes from row to row, of whole pixels; at most twice what the longest row needs.
std::optional<std::uint32_t> pictureStride(_GVariant* value)
{
    const auto read = wholeNumber(value);
    const auto isStride = read && *read > 0 && *read % 4 == 0 && *read <= ExtensionPicture::longestSide * 8;
    return isStride ? std::optional(static_cast<std::uint32_t>(*read)) : std::nullopt;
}

VariantHandle child(_GVariant* container, std::size_t index)
{
    return VariantHandle(g_variant_get_child_value(container, index));
}

/// What `make` makes of each item of an array of this type.
template <typename T>
auto listOf(const char* type, T (*make)(_GVariant*))
{
    return [=](_GVariant* array) -> std::optional<std::vector<T>> {
        if (!g_variant_is_of_type(array, G_VARIANT_TYPE(type)))
            return std::nullopt;
        std::vector<T> items;
        const auto count = g_variant_n_children(array);
        items.reserve(count);
        for (gsize index = 0; index < count; ++index)
            items.push_back(make(child(array, index).get()));
        return items;
    };
}

std::string textOf(_GVariant* value)
{
    return kept(text(value), "a text");
}

std::string momentOf(_GVariant* value)
{
    return kept(bytes(value), "a moment");
}

ExtensionIntent::Parameter parameterOf(_GVariant* dictionary)
{
    const auto type = requiredValue(dictionary, "type", &text);
    return { .name = requiredValue(dictionary, "name", &text),
        .title = requiredValue(dictionary, "title", &text),
        .type = kept(fromRawValue<ExtensionIntent::Type>(type), "type"),
        .isOptional = requiredValue(dictionary, "isOptional", &truth) };
}

ExtensionIntent intentOf(_GVariant* dictionary)
{
    return { .name = requiredValue(dictionary, "name", &text),
        .title = requiredValue(dictionary, "title", &text),
        .parameters = requiredValue(dictionary, "parameters", listOf("aa{sv}", &parameterOf)) };
}

ExtensionMember memberOf(_GVariant* dictionary)
{
    const auto role = requiredValue(dictionary, "role", &text);
    return { .kind = requiredValue(dictionary, "kind", &text),
        .role = kept(fromRawValue<ExtensionMember::Role>(role), "role"),
        .displayName = requiredValue(dictionary, "displayName", &text),
        .description = requiredValue(dictionary, "description", &text),
        .families = requiredValue(dictionary, "families", listOf("as", &textOf)),
        .intents = requiredValue(dictionary, "intents", listOf("aa{sv}", &intentOf)) };
}

ExtensionTimeline::Entry timelineEntryOf(_GVariant* value)
{
    std::int64_t instant = 0;
    std::uint32_t moment = 0;
    g_variant_get(value, "(xu)", &instant, &moment);
    return { .date = kept(date(instant), "an entry's date"), .moment = moment };
}

PictureFrame frameOf(_GVariant* value)
{
    PictureFrame frame {};
    g_variant_get(value, "(dddd)", &frame.x, &frame.y, &frame.width, &frame.height);
    demand(std::isfinite(frame.x) && std::isfinite(frame.y) && std::isfinite(frame.width) && std::isfinite(frame.height)
            && frame.width >= 0 && frame.height >= 0,
        "A frame is no rectangle.");
    return frame;
}

PictureElement elementOf(_GVariant* value)
{
    return { .role = textOf(child(value, 0).get()),
        .label = textOf(child(value, 1).get()),
        .frame = frameOf(child(value, 2).get()) };
}

PictureAction actionOf(_GVariant* value)
{
    auto parameters = intentParameters(child(value, 3).get());
    demand(parameters.has_value(), "An action's parameters are wrong.");
    return { .label = textOf(child(value, 0).get()),
        .frame = frameOf(child(value, 1).get()),
        .intent = textOf(child(value, 2).get()),
        .parameters = *std::move(parameters) };
}

MappedPixels pixelsOf(_GVariant* handle, _GUnixFDList* files, std::size_t size)
{
    const auto index = g_variant_get_handle(handle);
    demand(files && index >= 0 && index < g_unix_fd_list_get_length(files), "A layer's file did not come along.");
    const FileDescriptor file(g_unix_fd_list_get(files, index, nullptr));
    auto pixels = MappedPixels::map(file, size);
    if (!pixels)
        throw Breach { pixels.error().text() };
    return *std::move(pixels);
}

ExtensionPicture::Png pngOf(_GVariant* value)
{
    constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";
    auto file = kept(bytes(value), "A layer's content");
    demand(file.starts_with(signature), "A layer is no PNG file.");
    return { .bytes = std::move(file) };
}

HostPicture::Layer layerOf(_GVariant* layer, _GUnixFDList* files, std::size_t size)
{
    const auto content = VariantHandle(g_variant_get_variant(child(layer, 1).get()));
    auto name = textOf(child(layer, 0).get());
    if (g_variant_is_of_type(content.get(), G_VARIANT_TYPE_HANDLE))
        return { .name = std::move(name), .content = pixelsOf(content.get(), files, size) };
    return { .name = std::move(name), .content = pngOf(content.get()) };
}

bool areLayersOfTheContract(const std::vector<HostPicture::Layer>& layers)
{
    if (layers.size() == 1)
        return layers[0].name == "whole";
    return layers.size() == 2 && layers[0].name == "default" && layers[1].name == "accent";
}

std::vector<HostPicture::Layer> layersOf(_GVariant* dictionary, _GUnixFDList* files, std::size_t size)
{
    const auto array = lookUp(dictionary, "layers");
    demand(array && g_variant_is_of_type(array.get(), G_VARIANT_TYPE("a(sv)")), "layers is missing or wrong.");
    const auto count = g_variant_n_children(array.get());
    demand(count <= 2 && count * size <= ExtensionPicture::mostBytes, "The picture is too large.");
    std::vector<HostPicture::Layer> layers;
    for (gsize index = 0; index < count; ++index)
        layers.push_back(layerOf(child(array.get(), index).get(), files, size));
    demand(areLayersOfTheContract(layers), "The layers are not those of a picture.");
    return layers;
}

HostPicture pictureOf(_GVariant* dictionary, _GUnixFDList* files)
{
    HostPicture picture {
        .width = requiredValue(dictionary, "width", &pictureSide),
        .height = requiredValue(dictionary, "height", &pictureSide),
        .stride = requiredValue(dictionary, "stride", &pictureStride),
        .layers = {},
        .link = requiredValue(dictionary, "link", &text),
        .elements = requiredValue(dictionary, "elements", listOf("a(ss(dddd))", &elementOf)),
        .actions = requiredValue(dictionary, "actions", listOf("a(s(dddd)sa{sv})", &actionOf)),
    };
    demand(picture.stride >= picture.width * 4, "stride is less than a row.");
    picture.layers = layersOf(dictionary, files, std::size_t { picture.stride } * picture.height);
    return picture;
}

std::optional<ControlValue::Color> colorOf(_GVariant* value)
{
    if (!g_variant_is_of_type(value, G_VARIANT_TYPE("(dddd)")))
        return std::nullopt;
    ControlValue::Color color {};
    g_variant_get(value, "(dddd)", &color.red, &color.green, &color.blue, &color.alpha);
    const auto isComponent = [](double component) { return component >= 0 && component <= 1; };
    const auto isColor =
        isComponent(color.red) && isComponent(color.green) && isComponent(color.blue) && isComponent(color.alpha);
    return isColor ? std::optional(color) : std::nullopt;
}

ControlValue controlValueOf(_GVariant* dictionary)
{
    return { .title = requiredValue(dictionary, "title", &text),
        .value = requiredValue(dictionary, "value", &text),
        .symbol = requiredValue(dictionary, "symbol", &text),
        .isOn = optionalValue(dictionary, "isOn", &truth),
        .tint = optionalValue(dictionary, "tint", &colorOf),
        .barText = optionalValue(dictionary, "barText", &text),
        .spokenState = optionalValue(dictionary, "spokenState", &text),
        .icon = optionalValue(dictionary, "icon", &bytes),
        .start = optionalValue(dictionary, "start", &dateValue),
        .end = optionalValue(dictionary, "end", &dateValue),
        .changes = optionalValue(dictionary, "changes", &dateValue),
        .glyph = optionalValue(dictionary, "glyph", &text),
        .glyphValue = optionalValue(dictionary, "glyphValue", &number) };
}

ExtensionTimeline timelineOf(_GVariant* values)
{
    ExtensionTimeline timeline {
        .entries = *listOf("a(xu)", &timelineEntryOf)(child(values, 0).get()),
        .moments = *listOf("aay", &momentOf)(child(values, 1).get()),
        .reload = kept(dateValue(child(values, 2).get()), "reload"),
    };
    demand(!timeline.entries.empty(), "The timeline has no entry.");
    demand(std::ranges::is_sorted(timeline.entries, {}, &ExtensionTimeline::Entry::date),
        "The timeline's dates do not ascend.");
    const auto hasMoment = [&](const auto& entry) { return entry.moment < timeline.moments.size(); };
    demand(std::ranges::all_of(timeline.entries, hasMoment), "An entry of the timeline has no moment.");
    return timeline;
}

template <typename Read>
auto guarded(const ReceivedReply& reply, Read read) -> Answer<decltype(read(nullptr))>
try {
    const auto size = g_variant_get_size(reply.values.get());
    demand(size < BusBound::reply, "The reply is too large.");
    return read(reply.values.get());
} catch (const Breach& breach) {
    return std::unexpected(requestFault(RequestFault::Kind::badReply, breach.sentence));
}

}

template <>
Answer<std::vector<ExtensionMember>> answerFrom(const ReceivedReply& reply)
{
    return guarded(reply, [](_GVariant* values) { return *listOf("aa{sv}", &memberOf)(child(values, 0).get()); });
}

template <>
Answer<ExtensionEntry> answerFrom(const ReceivedReply& reply)
{
    return guarded(reply, [](_GVariant* values) {
        return ExtensionEntry { .date = kept(dateValue(child(values, 0).get()), "date"),
            .moment = momentOf(child(values, 1).get()) };
    });
}

template <>
Answer<ExtensionTimeline> answerFrom(const ReceivedReply& reply)
{
    return guarded(reply, &timelineOf);
}

template <>
Answer<HostPicture> answerFrom(const ReceivedReply& reply)
{
    return guarded(reply, [&](_GVariant* values) { return pictureOf(child(values, 0).get(), reply.files.get()); });
}

template <>
Answer<ControlValue> answerFrom(const ReceivedReply& reply)
{
    return guarded(reply, [](_GVariant* values) { return controlValueOf(child(values, 0).get()); });
}

}
