#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Desktop/GlibHandles.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

/// Values of the bus as plain ones. What is read came from another process: a value of another type is absent.
namespace orvel {

/// The value of a key in an a{sv}, or null; where a key is repeated, the first.
VariantHandle lookUp(_GVariant* dictionary, const char* key);

std::optional<std::string> text(_GVariant* value);
std::optional<bool> truth(_GVariant* value);

/// Of any type of whole number that fits.
std::optional<std::int64_t> wholeNumber(_GVariant* value);

/// Of any type of number; never NaN or infinite.
std::optional<double> number(_GVariant* value);

/// The bytes of an ay.
std::optional<std::string> bytes(_GVariant* value);

/// An instant of the years 1 to 9999, from microseconds since 1970.
std::optional<Date> date(std::int64_t microseconds);

/// Microseconds since 1970.
std::int64_t microseconds(Date date);

/// Collects an a{sv}. Texts are bounded and made UTF-8.
class DictionaryWriter {
public:
    DictionaryWriter();
    ~DictionaryWriter();
    DictionaryWriter(const DictionaryWriter&) = delete;
    DictionaryWriter& operator=(const DictionaryWriter&) = delete;

    void add(const char* key, std::string_view value);
    void add(const char* key, const std::string& value) { add(key, std::string_view(value)); }
    void add(const char* key, const char* value) { add(key, std::string_view(value)); }
    void add(const char* key, bool value);
    void add(const char* key, std::int32_t value);
    void add(const char* key, std::uint32_t value);
    void add(const char* key, std::int64_t value);
    void add(const char* key, double value);
    void add(const char* key, Date value);

    /// A value just made, which this takes over.
    void add(const char* key, _GVariant* value);

    template <typename T>
    void add(const char* key, const std::optional<T>& value)
    {
        if (value)
            add(key, *value);
    }

    /// The dictionary, which whoever packs it into another value or a message takes over.
    [[nodiscard]] _GVariant* end();

private:
    struct Builder;
    std::unique_ptr<Builder> m_builder;
};

/// Values just made, to be packed into others.
[[nodiscard]] _GVariant* bytesValue(std::string_view bytes);
[[nodiscard]] _GVariant* parametersValue(const IntentParameters& parameters);

/// The parameters of an intent. A fault names the key whose value no intent takes.
Answer<IntentParameters> intentParameters(_GVariant* dictionary);

}
