#include "OrvelPlatform/Desktop/BusValues.h"

#include <cmath>
#include <fmt/format.h>
#include <gio/gio.h>
#include <utility>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelPlatform/Desktop/BusContract.h"

namespace orvel {

namespace {

bool is(_GVariant* value, const GVariantType* type)
{
    return g_variant_is_of_type(value, type) != FALSE;
}

std::optional<IntentValue> intentValue(_GVariant* value)
{
    if (auto read = text(value))
        return *std::move(read);
    if (const auto read = truth(value))
        return *read;
    if (const auto read = wholeNumber(value))
        return *read;
    return std::nullopt;
}

}

VariantHandle lookUp(_GVariant* dictionary, const char* key)
{
    return VariantHandle(g_variant_lookup_value(dictionary, key, nullptr));
}

std::optional<std::string> text(_GVariant* value)
{
    if (!is(value, G_VARIANT_TYPE_STRING))
        return std::nullopt;
    gsize length = 0;
    const char* characters = g_variant_get_string(value, &length);
    return std::string(characters, length);
}

std::optional<bool> truth(_GVariant* value)
{
    if (!is(value, G_VARIANT_TYPE_BOOLEAN))
        return std::nullopt;
    return g_variant_get_boolean(value) != FALSE;
}

std::optional<std::int64_t> wholeNumber(_GVariant* value)
{
    switch (g_variant_classify(value)) {
    case G_VARIANT_CLASS_BYTE:
        return g_variant_get_byte(value);
    case G_VARIANT_CLASS_INT16:
        return g_variant_get_int16(value);
    case G_VARIANT_CLASS_UINT16:
        return g_variant_get_uint16(value);
    case G_VARIANT_CLASS_INT32:
        return g_variant_get_int32(value);
    case G_VARIANT_CLASS_UINT32:
        return g_variant_get_uint32(value);
    case G_VARIANT_CLASS_INT64:
        return g_variant_get_int64(value);
    case G_VARIANT_CLASS_UINT64: {
        const auto read = g_variant_get_uint64(value);
        if (std::in_range<std::int64_t>(read))
            return static_cast<std::int64_t>(read);
        return std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::optional<double> number(_GVariant* value)
{
    if (const auto whole = wholeNumber(value))
        return static_cast<double>(*whole);
    if (!is(value, G_VARIANT_TYPE_DOUBLE))
        return std::nullopt;
    const auto read = g_variant_get_double(value);
    return std::isfinite(read) ? std::optional(read) : std::nullopt;
}

std::optional<std::string> bytes(_GVariant* value)
{
    if (!is(value, G_VARIANT_TYPE_BYTESTRING))
        return std::nullopt;
    gsize count = 0;
    const auto* first = static_cast<const char*>(g_variant_get_fixed_array(value, &count, 1));
    return count == 0 ? std::string() : std::string(first, count);
}

std::optional<Date> date(std::int64_t microseconds)
{
    const Date read { std::chrono::microseconds { microseconds } };
    return isWithinYears1To9999(read) ? std::optional(read) : std::nullopt;
}

std::int64_t microseconds(Date date)
{
    return date.time_since_epoch().count();
}

struct DictionaryWriter::Builder {
    GVariantBuilder builder;
};

DictionaryWriter::DictionaryWriter() : m_builder(std::make_unique<Builder>())
{
    g_variant_builder_init(&m_builder->builder, G_VARIANT_TYPE_VARDICT);
}

DictionaryWriter::~DictionaryWriter()
{
    g_variant_builder_clear(&m_builder->builder);
}

void DictionaryWriter::add(const char* key, std::string_view value)
{
    add(key, g_variant_new_string(boundedText(value).c_str()));
}

void DictionaryWriter::add(const char* key, bool value)
{
    add(key, g_variant_new_boolean(value ? TRUE : FALSE));
}

void DictionaryWriter::add(const char* key, std::int32_t value)
{
    add(key, g_variant_new_int32(value));
}

void DictionaryWriter::add(const char* key, std::uint32_t value)
{
    add(key, g_variant_new_uint32(value));
}

void DictionaryWriter::add(const char* key, std::int64_t value)
{
    add(key, g_variant_new_int64(value));
}

void DictionaryWriter::add(const char* key, double value)
{
    add(key, g_variant_new_double(value));
}

void DictionaryWriter::add(const char* key, Date value)
{
    add(key, microseconds(value));
}

void DictionaryWriter::add(const char* key, _GVariant* value)
{
    // Put together by hand: every request has such a dictionary, and formats are read as often as they are used.
    auto* const entry = g_variant_new_dict_entry(g_variant_new_string(key), g_variant_new_variant(value));
    g_variant_builder_add_value(&m_builder->builder, entry);
}

_GVariant* DictionaryWriter::end()
{
    return g_variant_builder_end(&m_builder->builder);
}

_GVariant* bytesValue(std::string_view bytes)
{
    return g_variant_new_fixed_array(G_VARIANT_TYPE_BYTE, bytes.data(), bytes.size(), 1);
}

_GVariant* parametersValue(const IntentParameters& parameters)
{
    DictionaryWriter writer;
    for (const auto& [name, value] : parameters)
        std::visit([&writer, key = boundedText(name)](const auto& held) { writer.add(key.c_str(), held); }, value);
    return writer.end();
}

Answer<IntentParameters> intentParameters(_GVariant* dictionary)
{
    IntentParameters parameters;
    const auto count = g_variant_n_children(dictionary);
    for (gsize index = 0; index < count; ++index) {
        const char* key = nullptr;
        _GVariant* taken = nullptr;
        g_variant_get_child(dictionary, index, "{&sv}", &key, &taken);
        const VariantHandle value(taken);
        auto read = intentValue(value.get());
        if (!read)
            return std::unexpected(requestFault(RequestFault::Kind::badArgument,
                fmt::format("\"{}\" is neither a text nor a whole number nor a truth value.", boundedText(key))));
        parameters.emplace(key, *std::move(read));
    }
    return parameters;
}

}
