#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <unordered_map>
#include <vector>

#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// What was measured in one pass. Every stack asks each child several times, and so does the stack around it: without a
/// memory the questions double with every level.
///
/// Views are told apart by identity, environments by value. What was asked about is kept alive, so that an identity is
/// not used again.
class MeasureMemory {
public:
    MeasureMemory();

    Extent measure(const View& view, const Proposal& proposed, const Environment& environment);
    View body(const View& view, const Environment& environment);

private:
    struct Question {
        const void* view;
        std::size_t environment; // index
        Proposal proposed;
        bool operator==(const Question&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Question& question) const;
    };
    struct Answer {
        View view;
        Extent extent;
    };
    struct Body {
        View view;
        View body;
    };

    std::size_t index(const Environment& environment);

    std::pmr::monotonic_buffer_resource m_room; // everything goes at once, with the pass
    std::vector<Environment> m_environments;
    std::pmr::unordered_map<Question, Answer, Hash> m_answers { &m_room };
    std::pmr::unordered_map<Question, Body, Hash> m_bodies { &m_room };
};

/// The memory of the pass that is going on; null outside one. It lives as long as the pass: a view does not keep an
/// environment.
struct MeasureMemoryKey {
    using Value = MeasureMemory*;
    static Value defaultValue() { return nullptr; }
};

}
