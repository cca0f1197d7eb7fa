#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <memory>

#include "OrvelCopy/Lookup/StringTables.h"
#include "Tools/orvelctl/Commands.h"
#include "Tools/orvelctl/CopyReport.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    std::string namespace_;
    std::optional<Locale> language;
    std::string table;
    bool isJson = false;
};

bool isEnglish(const Locale& locale)
{
    const auto names = locale.languageAndParents();
    return std::ranges::find(names, "en") != names.end();
}

std::vector<std::string> namespaces()
{
    std::vector<std::string> names;
    for (auto& text : Copy::listedTexts()) {
        if (names.empty() || names.back() != text.namespace_)
            names.push_back(std::move(text.namespace_));
    }
    return names;
}

Exit failWithoutTable(const Locale& language)
{
    return fail(fmt::format("there is no table for {}; there are tables for {}", language.identifier(),
        fmt::join(Copy::translatedLanguages(), ", ")));
}

Exit list(const Call& call)
{
    const auto language = call.language.value_or(Locale::english());
    const auto names = namespaces();
    if (!call.namespace_.empty() && std::ranges::find(names, call.namespace_) == names.end())
        return fail(
            fmt::format("\"{}\" is no namespace; there are {}", printable(call.namespace_), fmt::join(names, ", ")),
            Exit::wrongCall);
    const auto hasTable = !Copy::tableFile(language).empty();
    if (!hasTable && !isEnglish(language))
        return failWithoutTable(language);
    const auto texts = copyTexts(call.namespace_, language);
    return print(call.isJson ? copyTextsAsJson(texts) : copyTextsAsLines(texts, !hasTable));
}

/// Which table is checked, and by whose habits.
struct Subject {
    std::filesystem::path file;
    std::string language; // empty: what the table says itself
};

std::expected<std::vector<CopyFault>, Fault> faults(const Subject& subject)
{
    const auto table = Copy::readTable(subject.file);
    if (!table)
        return std::unexpected(table.error());
    auto language = subject.language;
    if (language.empty())
        language = Locale::named(table->headerField("Language").value_or(""))
                       .transform([](const Locale& locale) { return locale.identifier(); })
                       .value_or("und");
    std::vector<CopyFault> faults;
    for (const auto& fault : Copy::tableFaults(*table, Copy::listedTexts(), language))
        faults.push_back(copyFault(language, fault));
    return faults;
}

/// The table that the call names, the language's, or those of all languages.
std::vector<Subject> subjects(const Call& call)
{
    if (!call.table.empty())
        return { { .file = call.table, .language = call.language ? call.language->identifier() : "" } };
    if (call.language)
        return { { .file = Copy::tableFile(*call.language), .language = call.language->identifier() } };
    std::vector<Subject> all;
    for (const auto& language : Copy::translatedLanguages()) {
        if (const auto locale = Locale::named(language))
            all.push_back({ .file = Copy::tableFile(*locale), .language = language });
    }
    return all;
}

Exit check(const Call& call)
{
    if (call.table.empty() && call.language && Copy::tableFile(*call.language).empty())
        return failWithoutTable(*call.language);
    std::vector<CopyFault> all;
    for (const auto& subject : subjects(call)) {
        const auto found = faults(subject);
        if (!found)
            return fail(printable(found.error().text()));
        all.insert(all.end(), found->begin(), found->end());
    }
    const auto exit = print(call.isJson ? copyFaultsAsJson(all) : copyFaultsAsLines(all));
    return all.empty() ? exit : Exit::no;
}

}

void addCopyCommand(CLI::App& app, Action& action)
{
    auto* copy = app.add_subcommand("copy", "The catalogue of texts, for translators and for programs");
    copy->require_subcommand(0, 1);
    const auto call = std::make_shared<Call>();

    auto* listing = copy->add_subcommand("list", "Every text by its member, in English or translated");
    listing->add_option("--namespace", call->namespace_, "Only this part, such as Widgets")->type_name("NAMESPACE");
    addLanguageOption(listing, call->language, "The translation; without it the English texts alone");
    listing->add_flag("--json", call->isJson, "Write JSON");
    runs(listing, action, [call] { return list(*call); });

    auto* checking = copy->add_subcommand("check", "Say nothing for sound translations, else what is wrong with which");
    addLanguageOption(checking, call->language, "Only this one; without it every language");
    checking->add_option("--table", call->table, "A translator's own table, compiled by msgfmt")->type_name("FILE.mo");
    checking->add_flag("--json", call->isJson, "Write JSON");
    runs(checking, action, [call] { return check(*call); });
}

}
