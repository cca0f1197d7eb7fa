#pragma once

#include <expected>
#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelCopy/Lookup/Key.h"
#include "OrvelCopy/Lookup/MoTable.h"
#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Base/Locale.h"

namespace orvel::Copy {

/// Reads a table's file.
[[nodiscard]] std::expected<MoTable, Fault> readTable(const std::filesystem::path& file);

/// The words of one language. Its table is read when the first word is asked for; one that cannot be read has no
/// words. English has no table: its words are the keys.
class Language {
public:
    Language() = default;
    Language(std::filesystem::path file, bool isRightToLeft);

    static const Language& english();

    bool isRightToLeft() const { return m_isRightToLeft; }

    /// Where its table lies; empty for English without a table.
    const std::filesystem::path& file() const { return m_file; }

    /// The translation of a key, in the form that `count` takes if the key is counted; absent where there is none.
    /// What is returned lives as long as the language.
    std::optional<std::string_view> text(const Key& key, std::int64_t count) const;

    /// All forms of the translation of an English text.
    std::vector<std::string_view> forms(std::string_view english) const;

private:
    const std::optional<MoTable>& table() const;

    std::filesystem::path m_file;
    bool m_isRightToLeft = false;
    mutable std::once_flag m_readOnce;
    mutable std::optional<MoTable> m_table;
};

/// The string tables of a folder: `<language>/LC_MESSAGES/Localizable.mo`, the language in either spelling of a locale.
///
/// Safe from any thread. The languages are those that the folder has when one is first asked for; the tables stay in
/// memory for as long as this does.
class StringTables {
public:
    explicit StringTables(std::filesystem::path folder);

    /// The tables of the catalogue's resource bundle, which is sought once; without it the process stops. They live as
    /// long as the process.
    static const StringTables& ofCatalogue();

    /// The language for a reader who prefers these locales, the best first: the first that has a table, itself or a
    /// parent of it. English where none has, and for a locale that is English without a table.
    const Language& language(std::span<const Locale> preferred) const;

    /// The identifiers of the languages that have a table, as a person may choose from. English in disguise, made to
    /// try what long and accented texts do, is not among them: it is there for who asks for it by its name, en-XA.
    std::vector<std::string> languages() const;

private:
    const std::map<std::string, Language>& found() const;

    std::filesystem::path m_folder;
    mutable std::once_flag m_seekOnce;
    mutable std::map<std::string, Language> m_found;
};

}
