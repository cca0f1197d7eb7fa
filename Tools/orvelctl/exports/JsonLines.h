#pragma once

#include <string>
#include <string_view>

namespace orvel {

/// JSON for people and their tools: members in the order in which they are written, one a line, indented. Keys and
/// texts are the program's own words and need no escaping.
class JsonLines {
public:
    /// Opens an object: the whole text's, a member's (under `key`) or an array's element.
    void openObject();
    void openObject(std::string_view key);
    void closeObject() { close('}'); }

    void openArray(std::string_view key);
    void closeArray() { close(']'); }

    /// A member whose value is written already.
    void member(std::string_view key, std::string_view json);

    /// The text with a newline at its end.
    std::string take();

private:
    void beginLine(std::string_view key);
    void open(std::string_view key, char bracket);
    void close(char bracket);

    std::string m_text;
    std::size_t m_depth = 0;
    bool m_isFirst = true; // nothing stands yet between the last bracket and here
};

/// A number in the fewest digits that read back as the same double.
std::string jsonNumber(double value);

/// A text in quotes.
std::string jsonText(std::string_view text);

}
