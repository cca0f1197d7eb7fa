#pragma once

#include <array>
#include <cstdlib>
#include <map>
#include <string>

/// Sets exactly these of the environment variables that choose a locale, and puts back what was there. No other thread
/// may read the environment meanwhile.
class LocaleVariables {
public:
    explicit LocaleVariables(const std::map<std::string, std::string>& values)
    {
        for (const auto* name : names) {
            if (const auto* value = std::getenv(name))
                m_before[name] = value;
        }
        replace(values);
    }

    LocaleVariables(const LocaleVariables&) = delete;
    LocaleVariables& operator=(const LocaleVariables&) = delete;
    ~LocaleVariables() { replace(m_before); }

private:
    static constexpr std::array names { "LC_ALL", "LC_TIME", "LC_MESSAGES", "LANG", "LANGUAGE" };

    static void replace(const std::map<std::string, std::string>& values)
    {
        for (const auto* name : names)
            ::unsetenv(name);
        for (const auto& [name, value] : values)
            ::setenv(name.c_str(), value.c_str(), 1);
    }

    std::map<std::string, std::string> m_before;
};
