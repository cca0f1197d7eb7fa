#include "OrvelCopy/Lookup/StringTables.h"

#include <memory>

#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Base/ResourceBundle.h"

namespace orvel::Copy {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestTable = 4 * 1024 * 1024;
constexpr std::string_view disguisedEnglish = "en-XA";

}

std::expected<MoTable, Fault> readTable(const fs::path& file)
{
    auto bytes = readFile(file, longestTable);
    if (!bytes)
        return std::unexpected(bytes.error());
    auto table = MoTable::read(*std::move(bytes));
    if (!table)
        return std::unexpected(Fault { .where = file.string(), .why = "not a table that msgfmt has compiled" });
    return *std::move(table);
}

Language::Language(fs::path file, bool isRightToLeft) : m_file(std::move(file)), m_isRightToLeft(isRightToLeft) { }

const Language& Language::english()
{
    static const Language english;
    return english;
}

const std::optional<MoTable>& Language::table() const
{
    std::call_once(m_readOnce, [&] {
        if (auto read = m_file.empty() ? std::unexpected(Fault()) : readTable(m_file))
            m_table = *std::move(read);
    });
    return m_table;
}

std::optional<std::string_view> Language::text(const Key& key, std::int64_t count) const
{
    if (!table())
        return std::nullopt;
    return key.isCounted ? table()->text(key.text, count) : table()->text(key.text);
}

std::vector<std::string_view> Language::forms(std::string_view english) const
{
    return table() ? table()->forms(english) : std::vector<std::string_view>();
}

StringTables::StringTables(fs::path folder) : m_folder(std::move(folder)) { }

const StringTables& StringTables::ofCatalogue()
{
    static const auto inThisModule = 0;
    // Never destroyed: constants refer to its words for the life of the process.
    static const auto& tables =
        *std::make_unique<StringTables>(resourceBundle("OrvelKit_OrvelCopy", &inThisModule).resources() / "locale")
             .release();
    return tables;
}

const std::map<std::string, Language>& StringTables::found() const
{
    std::call_once(m_seekOnce, [&] {
        std::error_code error;
        for (fs::directory_iterator folder(m_folder, error), end; !error && folder != end; folder.increment(error)) {
            const auto locale = Locale::named(folder->path().filename().native());
            const auto file = folder->path() / "LC_MESSAGES" / "Localizable.mo";
            std::error_code none;
            if (locale && fs::exists(file, none))
                m_found.try_emplace(locale->identifier(), file, locale->isRightToLeft());
        }
    });
    return m_found;
}

const Language& StringTables::language(std::span<const Locale> preferred) const
{
    for (const auto& locale : preferred) {
        for (const auto& name : locale.languageAndParents()) {
            if (const auto language = found().find(name); language != found().end())
                return language->second;
            if (name == "en")
                return Language::english();
        }
    }
    return Language::english();
}

std::vector<std::string> StringTables::languages() const
{
    std::vector<std::string> names;
    for (const auto& [name, language] : found()) {
        if (name != disguisedEnglish)
            names.push_back(name);
    }
    return names;
}

}
