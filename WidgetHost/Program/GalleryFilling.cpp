#include "WidgetHost/Program/GalleryFilling.h"

#include "WidgetHost/Program/SurroundingStyle.h"
#include "WidgetHost/Words/HostWords.h"

namespace orvel {

namespace {

GallerySection section(const Desk& desk, const ExtensionMember& member, const HostWords& words)
{
    GallerySection section { member.kind, member.displayName, member.description, {} };
    for (const auto& family : member.families) {
        const Offer offer { member.kind, family };
        auto size = words.sizeName(family);
        section.previews.push_back({
            .family = family,
            .sizeName = size,
            .addSpoken = words.addSpoken(member.displayName, size),
            .size = desk.previewSize(offer),
            .picture = desk.preview(offer),
        });
    }
    return section;
}

}

GalleryContent galleryContent(const Desk& desk)
{
    const auto& around = desk.surroundings();
    const HostWords words(around ? around->home.language : Homeland::current().language);
    GalleryContent content;
    for (const auto& member : desk.members().widgets())
        content.sections.push_back(section(desk, member, words));
    content.reducesTransparency = desk.state().reducesTransparency;
    content.biggerText = desk.state().biggerText;
    if (auto warning = desk.warning())
        content.warning = { *std::move(warning), desk.members().isLastAnswerMissing() };
    content.words = galleryWords(words);
    if (around)
        content.style = styleIn(*around);
    content.isRightToLeft = words.isRightToLeft();
    return content;
}

}
