#pragma once

#include <algorithm>
#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

namespace orvel {

/// A bag of typed values that is handed down to whatever is measured, drawn or worded. A key is a type that names its
/// value and gives the default, which holds where nobody set another:
///
///     struct ScaleKey {
///         using Value = double;
///         static Value defaultValue() { return 1; }
///     };
///
/// A copy with one value changed shares the others. Keys are told apart by their names, so that two libraries of one
/// process mean the same key.
class Environment {
public:
    template <typename Key>
    typename Key::Value get() const
    {
        const auto found = std::ranges::find(m_values, std::type_index(typeid(Key)), &Entry::first);
        return found == m_values.end() ? Key::defaultValue()
                                       : *static_cast<const typename Key::Value*>(found->second.get());
    }

    template <typename Key>
    [[nodiscard]] Environment with(typename Key::Value value) const
    {
        auto changed = *this;
        changed.set<Key>(std::move(value));
        return changed;
    }

    template <typename Key>
    void set(typename Key::Value value)
    {
        const std::type_index key(typeid(Key));
        auto stored = std::make_shared<const typename Key::Value>(std::move(value));
        const auto found = std::ranges::find(m_values, key, &Entry::first);
        if (found == m_values.end())
            m_values.emplace_back(key, std::move(stored));
        else
            found->second = std::move(stored);
    }

private:
    using Entry = std::pair<std::type_index, std::shared_ptr<const void>>;
    std::vector<Entry> m_values;
};

}
