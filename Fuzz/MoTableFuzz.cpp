#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "OrvelCopy/Lookup/Insertion.h"
#include "OrvelCopy/Lookup/MoTable.h"
#include "OrvelCopy/Lookup/PluralRule.h"
#include "OrvelPlatform/Base/Precondition.h"
#include "OrvelPlatform/Base/UTF8.h"

using namespace orvel;
using namespace orvel::Copy;

namespace {

/// What a table gives can be shown, and stays so with a value put in.
void check(std::optional<std::string_view> text)
{
    if (!text)
        return;
    precondition(!text->empty() && isUTF8(*text), "a text that cannot be shown");
    const std::array<Insertion, 2> values { "%@\u2069", std::int64_t { 7 } };
    for (const auto isolation : { Isolation::none, Isolation::firstStrongIsolates }) {
        const auto shown = withInsertions(*text, values, isolation);
        precondition(!shown || isUTF8(*shown), "a text that cannot be shown");
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    // The first line of anything may be a rule.
    if (const auto rule = PluralRule::parse(bytes.substr(0, bytes.find('\n')))) {
        for (const auto count : { 0U, 1U, 2U, 11U, 1'000'000U })
            (void)rule->form(count);
    }
    const auto table = MoTable::read(bytes);
    if (!table)
        return 0;
    for (const auto* key : { "", "Now", "until %@", "%lld apps" }) {
        check(table->text(key));
        for (const std::int64_t count : { 0, 1, 2, -1 })
            check(table->text(key, count));
        for (const auto form : table->forms(key))
            check(form);
    }
    return 0;
}
