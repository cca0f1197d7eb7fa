#include <iostream>

#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "Tests/WidgetHost/Demonstration.h"
#include "WidgetHost/Gallery/Gallery.h"

#include <gtkmm.h>

/// The gallery with the widgets of the extension that the bus starts. Says on standard output what somebody does in it.
namespace {

using namespace orvel;

class GalleryDemonstration {
public:
    explicit GalleryDemonstration(tests::Demonstration how) : m_how(std::move(how))
    {
        show();
        loadAnew();
        m_gallery.raise();
    }

private:
    GalleryEvents events()
    {
        return {
            .addChosen = [](const std::string& kind,
                             const std::string& family) { std::cout << "add " << kind << " " << family << std::endl; },
            .reducesTransparencyChosen =
                [this](bool reduces) {
                    std::cout << "reduce transparency " << reduces << std::endl;
                    m_how.reducesTransparency = reduces;
                    loadAnew();
                },
            .biggerTextChosen =
                [this](int steps) {
                    std::cout << "bigger text " << steps << std::endl;
                    m_how.biggerText = steps;
                    loadAnew();
                },
            .tryAgainChosen =
                [this] {
                    std::cout << "try again" << std::endl;
                    m_how.hasWarning = false;
                    show();
                },
            .closed =
                [] {
                    std::cout << "closed" << std::endl;
                    Gtk::Main::quit();
                },
        };
    }

    void loadAnew()
    {
        m_work = start(load(), [](const auto&) {});
    }

    HostEnvironment environment(std::string family) const
    {
        return m_how.environment(std::move(family), m_gallery.scale());
    }

    Task<void> load()
    {
        const auto members = co_await m_requester.members(environment({}));
        if (!members)
            co_return;
        m_content.sections.clear();
        for (const auto& member : *members) {
            if (member.role == ExtensionMember::Role::widget)
                m_content.sections.push_back(section(member));
        }
        show();
        for (auto& section : m_content.sections) {
            for (auto& preview : section.previews)
                co_await draw(section.kind, preview);
        }
        show();
        std::cout << "shown" << std::endl;
    }

    GallerySection section(const ExtensionMember& member) const
    {
        GallerySection section { member.kind, member.displayName, member.description, {} };
        const auto words = m_how.words();
        for (const auto& family : member.families) {
            section.previews.push_back({ .family = family,
                .sizeName = words.sizeName(family),
                .addSpoken = words.addSpoken(member.displayName, words.sizeName(family)),
                .size = { family == "systemSmall" ? 170.0 : 364.0, family == "systemLarge" ? 382.0 : 170.0 },
                .picture = nullptr });
        }
        return section;
    }

    Task<void> draw(std::string kind, GalleryPreview& preview)
    {
        auto entry = co_await m_requester.snapshot(kind, environment(preview.family));
        if (!entry)
            co_return;
        auto picture = co_await m_requester.render(kind, *std::move(entry), environment(preview.family));
        if (!picture)
            co_return;
        preview.picture = std::make_shared<const HostPicture>(*std::move(picture));
        preview.size = { preview.picture->width / m_gallery.scale(), preview.picture->height / m_gallery.scale() };
    }

    void show()
    {
        const auto words = m_how.words();
        m_content.words = galleryWords(words);
        m_content.style = m_how.style();
        m_content.isRightToLeft = words.isRightToLeft();
        m_content.reducesTransparency = m_how.reducesTransparency;
        m_content.biggerText = m_how.biggerText;
        m_content.warning = m_how.hasWarning ? std::optional(GalleryWarning { words.noAnswer(), true }) : std::nullopt;
        m_gallery.show(m_content);
    }

    tests::Demonstration m_how;
    EventLoop m_loop = EventLoop::ofTheProgram();
    WidgetRequester m_requester { m_loop };
    Gallery m_gallery { events() };
    GalleryContent m_content;
    StartedTask m_work;
};

}

int main(int argc, char** argv)
{
    const Gtk::Main toolkit(argc, argv);
    const GalleryDemonstration demonstration(
        tests::Demonstration(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)));
    Gtk::Main::run();
}
