#pragma once

#include <algorithm>
#include <concepts>
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
///
/// Two environments are equal when they hold equal values under the same keys; a value that cannot be compared equals
/// itself only.
class Environment {
public:
    template <typename Key>
    typename Key::Value get() const
    {
        const auto* found = find<Key>();
        return found ? *found : Key::defaultValue();
    }

    /// The value that somebody set, or null; it lives as long as this environment.
    template <typename Key>
    const typename Key::Value* find() const
    {
        const auto found = std::ranges::find(m_values, std::type_index(typeid(Key)), &Entry::key);
        return found == m_values.end() ? nullptr : static_cast<const typename Key::Value*>(found->value.get());
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
        using Value = typename Key::Value;
        store({ typeid(Key), std::make_shared<const Value>(std::move(value)), &areEqual<Value> });
    }

    /// This environment with every value that is set in `changes`.
    [[nodiscard]] Environment overlaid(const Environment& changes) const
    {
        auto changed = *this;
        for (const auto& entry : changes.m_values)
            changed.store(entry);
        return changed;
    }

    bool operator==(const Environment& other) const { return std::ranges::is_permutation(m_values, other.m_values); }

private:
    struct Entry {
        std::type_index key;
        std::shared_ptr<const void> value;
        bool (*areEqual)(const void*, const void*);

        bool operator==(const Entry& other) const
        {
            return key == other.key && (value == other.value || areEqual(value.get(), other.value.get()));
        }
    };

    template <typename Value>
    static bool areEqual(const void* one, const void* other)
    {
        if constexpr (std::equality_comparable<Value>)
            return *static_cast<const Value*>(one) == *static_cast<const Value*>(other);
        else
            return one == other;
    }

    void store(Entry entry)
    {
        const auto found = std::ranges::find(m_values, entry.key, &Entry::key);
        if (found == m_values.end())
            m_values.push_back(std::move(entry));
        else
            *found = std::move(entry);
    }

    std::vector<Entry> m_values;
};

}
