#include "OrvelCopy/Checks/TableCheck.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>

#include "OrvelCopy/Checks/Room.h"
#include "OrvelCopy/Checks/TypographyFaults.h"
#include "OrvelCopy/Checks/ValueFaults.h"

namespace orvel::Copy {

namespace {

constexpr std::uint64_t mostTriedCounts = 210; // beyond it no language's rule has anything new

/// A key with all that the members that have it ask of its translation.
struct WantedText {
    std::string_view key;
    std::vector<std::string> members;
    bool isCounted = false;
    Room room = Room::spoken;
};

std::vector<WantedText> wantedTexts(std::span<const ListedText> texts)
{
    std::vector<WantedText> wanted;
    std::map<std::string_view, std::size_t> known;
    for (const auto& text : texts) {
        const auto [at, isNew] = known.try_emplace(text.key, wanted.size());
        if (isNew)
            wanted.push_back({ .key = text.key, .members = {} });
        auto& entry = wanted[at->second];
        auto member = text.namespace_ + '.' + text.member;
        if (std::ranges::find(entry.members, member) == entry.members.end())
            entry.members.push_back(std::move(member));
        entry.isCounted = entry.isCounted || text.isCounted;
        entry.room = std::min(entry.room, roomOf(text));
    }
    return wanted;
}

/// What a table's plural forms are for.
class Forms {
public:
    explicit Forms(const std::optional<PluralRule>& rule)
    {
        if (!rule) {
            m_fault = "states its Plural-Forms in a way that is no rule, so that nothing is inflected";
            return;
        }
        m_counts.resize(rule->forms());
        for (std::uint64_t count = 0; count < mostTriedCounts; ++count) {
            const auto form = rule->form(count);
            if (form)
                ++m_counts[*form];
            else if (m_fault.empty())
                m_fault = fmt::format("has no plural form for {}", count);
        }
    }

    const std::string& fault() const { return m_fault; }
    std::size_t size() const { return m_counts.size(); }

    /// Whether a form says its number by itself, having no other.
    bool isForOneNumber(std::size_t form) const { return form < m_counts.size() && m_counts[form] == 1; }

private:
    std::vector<int> m_counts; // how many of the numbers that were tried take each form
    std::string m_fault;
};

class TableCheck {
public:
    TableCheck(const MoTable& table, std::string_view language)
        : m_table(table), m_forms(table.pluralRule()), m_typography(Typography::of(language))
    {
        if (!m_forms.fault().empty())
            m_faults.push_back({ .members = {}, .key = "", .form = "", .what = m_forms.fault() });
    }

    void check(const WantedText& text)
    {
        const auto forms = m_table.forms(text.key);
        if (forms.empty())
            return add(text, "", "is missing");
        const auto wanted = text.isCounted ? m_forms.size() : 1;
        if (wanted > 0 && forms.size() != wanted)
            add(text, "", fmt::format("has {} of {} forms that can be shown", forms.size(), wanted));
        for (std::size_t form = 0; form < forms.size(); ++form) {
            const auto isAlone = text.isCounted && forms.size() == wanted && m_forms.isForOneNumber(form);
            checkForm(text, forms[form], isAlone);
        }
    }

    std::vector<TableFault> takeFaults() { return std::move(m_faults); }

private:
    void checkForm(const WantedText& text, std::string_view form, bool mayLeaveNumberOut)
    {
        for (auto& fault : valueFaults(text.key, form, mayLeaveNumberOut))
            add(text, form, std::move(fault));
        for (auto& fault : typographyFaults(text.key, form, m_typography))
            add(text, form, std::move(fault));
        if (auto fault = lengthFault(text.key, form, text.room))
            add(text, form, *std::move(fault));
    }

    void add(const WantedText& text, std::string_view form, std::string what)
    {
        m_faults.push_back({ .members = text.members,
            .key = std::string(text.key),
            .form = std::string(form),
            .what = std::move(what) });
    }

    const MoTable& m_table;
    Forms m_forms;
    Typography m_typography;
    std::vector<TableFault> m_faults;
};

}

std::vector<TableFault> tableFaults(const MoTable& table, std::span<const ListedText> texts, std::string_view language)
{
    TableCheck check(table, language);
    for (const auto& text : wantedTexts(texts))
        check.check(text);
    return check.takeFaults();
}

}
