#include "WidgetHost/Desk/Previews.h"

#include <algorithm>
#include <utility>

namespace orvel {

namespace {

Task<Answer<HostPicture>> sample(HostServices& services, std::string kind, HostEnvironment environment)
{
    const auto asked = services.snapshot(kind, environment);
    auto entry = co_await asked;
    if (!entry)
        co_return std::unexpected(entry.error());
    const auto drawn = services.render(kind, *std::move(entry), environment);
    auto picture = co_await drawn;
    co_return picture;
}

}

Previews::Previews(HostServices& services, std::function<void()> changed)
    : m_services(services), m_changed(std::move(changed))
{
}

void Previews::want(const std::vector<Offer>& offers, const HostEnvironment& environment)
{
    std::erase_if(
        m_previews, [&](const auto& preview) { return std::ranges::find(offers, preview.first) == offers.end(); });
    for (const auto& offer : offers) {
        auto& preview = m_previews[offer];
        auto inPlace = environment;
        inPlace.family = offer.family;
        inPlace.isPreview = true;
        if (preview.isAsked && preview.environment == inPlace)
            continue;
        preview.environment = std::move(inPlace);
        ask(offer, preview);
    }
}

void Previews::ask(const Offer& offer, Preview& preview)
{
    preview.isAsked = true;
    preview.request = {};
    preview.request = start(sample(m_services, offer.kind, preview.environment), [this, &preview](auto outcome) {
        if (!outcome || !*outcome)
            return;
        preview.picture = std::make_shared<const HostPicture>(**std::move(outcome));
        m_changed();
    });
}

void Previews::forget()
{
    for (auto& [offer, preview] : m_previews)
        preview.isAsked = false;
}

std::shared_ptr<const HostPicture> Previews::picture(const Offer& offer) const
{
    const auto found = m_previews.find(offer);
    return found == m_previews.end() ? nullptr : found->second.picture;
}

}
