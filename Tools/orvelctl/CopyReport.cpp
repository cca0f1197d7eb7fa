#include "Tools/orvelctl/CopyReport.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "OrvelPlatform/Base/JsonEncoding.h"
#include "OrvelPlatform/Base/TextColumns.h"
#include "Tools/orvelctl/calls/Terminal.h"

template <>
struct orvel::JsonForm<orvelctl::CopyText> {
    using CopyText = orvelctl::CopyText;
    static constexpr auto fields = std::tuple {
        JsonField { "forms", &CopyText::forms },
        JsonField { "isCounted", &CopyText::isCounted },
        JsonField { "isTranslated", &CopyText::isTranslated },
        JsonField { "key", &CopyText::key },
        JsonField { "member", &CopyText::member },
        JsonField { "namespace", &CopyText::namespace_ },
        JsonField { "text", &CopyText::text },
    };
};

template <>
struct orvel::JsonForm<orvelctl::CopyFault> {
    using CopyFault = orvelctl::CopyFault;
    static constexpr auto fields = std::tuple {
        JsonField { "form", &CopyFault::form },
        JsonField { "key", &CopyFault::key },
        JsonField { "language", &CopyFault::language },
        JsonField { "members", &CopyFault::members },
        JsonField { "what", &CopyFault::what },
    };
};

namespace orvelctl {

namespace {

using namespace orvel;

CopyText copyText(Copy::ListedText&& listed, const Locale& language, bool isEnglish)
{
    auto forms = Copy::translation(listed.key, language);
    CopyText text { .forms = std::nullopt,
        .isCounted = listed.isCounted,
        .isTranslated = isEnglish || !forms.empty(),
        .key = std::move(listed.key),
        .member = std::move(listed.member),
        .namespace_ = std::move(listed.namespace_),
        .text = "" };
    if (forms.empty())
        text.text = text.key;
    else
        text.text = text.isCounted ? forms.back() : forms.front();
    if (text.isCounted && !forms.empty())
        text.forms = std::move(forms);
    return text;
}

/// The members of one namespace, their names in a column as wide as the longest.
void appendNamespace(std::string& lines, std::span<const CopyText> texts, bool isEnglish)
{
    std::size_t width = 0;
    for (const auto& text : texts)
        width = std::max(width, columns(text.member));
    lines += fmt::format("{}{}\n", lines.empty() ? "" : "\n", texts.front().namespace_);
    const std::string* member = nullptr;
    for (const auto& text : texts) {
        const auto isSame = member && *member == text.member;
        lines += fmt::format("  {:<{}}  {}\n", isSame ? "" : text.member, width, printable(text.key));
        member = &text.member;
        if (isEnglish)
            continue;
        for (const auto& form : text.forms.value_or(std::vector { text.text }))
            lines += fmt::format("  {:<{}}  {}\n", "", width, text.isTranslated ? printable(form) : "(not translated)");
    }
}

}

std::vector<CopyText> copyTexts(const std::string& namespace_, const Locale& language)
{
    std::vector<CopyText> texts;
    const auto isEnglish = Copy::tableFile(language).empty();
    for (auto& listed : Copy::listedTexts()) {
        if (namespace_.empty() || listed.namespace_ == namespace_)
            texts.push_back(copyText(std::move(listed), language, isEnglish));
    }
    return texts;
}

std::string copyTextsAsLines(std::span<const CopyText> texts, bool isEnglish)
{
    std::string lines;
    while (!texts.empty()) {
        const auto& name = texts.front().namespace_;
        const auto end = std::ranges::find_if(texts, [&](const CopyText& text) { return text.namespace_ != name; });
        const auto count = static_cast<std::size_t>(end - texts.begin());
        appendNamespace(lines, texts.first(count), isEnglish);
        texts = texts.subspan(count);
    }
    return lines;
}

std::string copyTextsAsJson(const std::vector<CopyText>& texts)
{
    return encodeJson(texts).value_or("[]") + "\n"; // all of it is UTF-8
}

CopyFault copyFault(const std::string& language, const Copy::TableFault& fault)
{
    const auto present = [](const std::string& text) { return text.empty() ? std::nullopt : std::optional(text); };
    return { .form = present(fault.form),
        .key = present(fault.key),
        .language = language,
        .members = fault.members,
        .what = fault.what };
}

std::string copyFaultsAsLines(std::span<const CopyFault> faults)
{
    std::string lines;
    for (const auto& fault : faults) {
        lines += fault.language + ": ";
        if (fault.key)
            lines += fmt::format("{}: “{}”: ", fmt::join(fault.members, ", "), printable(*fault.key));
        if (fault.form)
            lines += fmt::format("“{}” ", printable(*fault.form));
        lines += (fault.key ? "" : "the table ") + fault.what + "\n";
    }
    return lines;
}

std::string copyFaultsAsJson(const std::vector<CopyFault>& faults)
{
    return encodeJson(faults).value_or("[]") + "\n";
}

}
