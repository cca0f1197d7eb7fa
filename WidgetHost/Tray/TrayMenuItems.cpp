#include <algorithm>

#include "WidgetHost/Tray/TrayMenu.h"

namespace orvel {

namespace {

/// A separator is known by how many came before it.
std::string nameOf(const TrayEntry& entry, int separators)
{
    return entry.id.empty() ? "separator " + std::to_string(separators) : "entry " + entry.id;
}

bool isSameLine(const TrayMenuItems::Item& one, const TrayMenuItems::Item& other)
{
    return one.number == other.number && one.entry.isChecked.has_value() == other.entry.isChecked.has_value();
}

}

TrayMenuItems::Change TrayMenuItems::set(const std::vector<TrayEntry>& entries)
{
    std::vector<Item> items;
    int separators = 0;
    for (const auto& entry : entries) {
        const auto next = static_cast<int>(m_numbers.size()) + 1;
        const auto number = m_numbers.try_emplace(nameOf(entry, separators), next).first->second;
        separators += entry.id.empty() ? 1 : 0;
        items.push_back({ number, entry });
    }
    Change change { .isLayout = !std::ranges::equal(items, m_items, isSameLine) };
    if (change.isLayout)
        ++m_revision;
    for (std::size_t index = 0; !change.isLayout && index < items.size(); ++index) {
        if (items[index] != m_items[index])
            change.items.push_back(items[index].number);
    }
    m_items = std::move(items);
    return change;
}

const TrayMenuItems::Item* TrayMenuItems::find(int number) const
{
    const auto found = std::ranges::find(m_items, number, &Item::number);
    return found == m_items.end() ? nullptr : &*found;
}

}
