#include "OrvelPlatform/Base/JsonEncoding.h"

#include <cmath>
#include <fmt/format.h>

namespace orvel {

bool JsonEncoder::write(bool value)
{
    m_json += value ? "true" : "false";
    return true;
}

bool JsonEncoder::write(std::int64_t value)
{
    m_json += fmt::format_int(value).c_str();
    return true;
}

bool JsonEncoder::write(double value)
{
    if (!std::isfinite(value))
        return fail("a number that is not finite has no JSON form");
    m_json += fmt::format("{}", value);
    return true;
}

bool JsonEncoder::write(std::string_view value)
{
    return appendJsonText(m_json, value) || fail("text that is not UTF-8");
}

bool JsonEncoder::write(Date value)
{
    const auto text = m_audience == JsonAudience::file ? iso8601(value) : iso8601WithFraction(value);
    if (!text)
        return fail(text.error().why);
    m_json += '"';
    m_json += *text; // nothing in a date needs an escape
    m_json += '"';
    return true;
}

bool JsonEncoder::write(const UUID& value)
{
    return write(value.text());
}

void JsonEncoder::beginMember(std::string_view key)
{
    if (m_json.back() != '{')
        m_json += ',';
    m_json += '"';
    m_json += key; // keys are the product's own names; none needs an escape
    m_json += "\":";
}

bool JsonEncoder::fail(std::string why)
{
    m_fault.why = std::move(why);
    return false;
}

bool JsonEncoder::isWithinMember(std::string_view key)
{
    m_fault.where = jsonPath(key, m_fault.where);
    return false;
}

bool JsonEncoder::isWithinElement(std::size_t index)
{
    m_fault.where = jsonPath(index, m_fault.where);
    return false;
}

}
