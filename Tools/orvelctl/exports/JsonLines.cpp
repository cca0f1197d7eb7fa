#include "Tools/orvelctl/exports/JsonLines.h"

#include <fmt/format.h>

namespace orvel {

void JsonLines::openObject()
{
    open({}, '{');
}

void JsonLines::openObject(std::string_view key)
{
    open(key, '{');
}

void JsonLines::openArray(std::string_view key)
{
    open(key, '[');
}

void JsonLines::member(std::string_view key, std::string_view json)
{
    beginLine(key);
    m_text += json;
}

std::string JsonLines::take()
{
    return std::move(m_text) + '\n';
}

void JsonLines::beginLine(std::string_view key)
{
    if (!m_isFirst)
        m_text += ',';
    m_isFirst = false;
    if (m_depth > 0)
        m_text += '\n' + std::string(2 * m_depth, ' ');
    if (!key.empty())
        m_text += jsonText(key) + ": ";
}

void JsonLines::open(std::string_view key, char bracket)
{
    beginLine(key);
    m_text += bracket;
    ++m_depth;
    m_isFirst = true;
}

void JsonLines::close(char bracket)
{
    --m_depth;
    if (!m_isFirst)
        m_text += '\n' + std::string(2 * m_depth, ' ');
    m_text += bracket;
    m_isFirst = false;
}

std::string jsonNumber(double value)
{
    return fmt::format("{}", value);
}

std::string jsonText(std::string_view text)
{
    return fmt::format("\"{}\"", text);
}

}
