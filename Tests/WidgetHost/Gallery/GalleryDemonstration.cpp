#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <span>

#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "WidgetHost/Gallery/Gallery.h"

#include <gtkmm.h>

/// The gallery with the widgets of the extension that the bus starts. Says on standard output what somebody does in it.
/// Arguments: "dark", "contrast", "bigger", "warning", or the name of a language.
namespace {

using namespace orvel;

struct Words {
    std::string_view language;
    GalleryWords own;
    std::array<const char*, 3> sizes;
    const char* warning;
};

const Words wordTables[] {
    { "en", { "Orvel Widgets", "Add", "Added", "Reduce transparency", "Bigger text", "Try Again" },
        { "Small", "Medium", "Large" }, "The widgets cannot be reached. What is on the desktop stays as it is." },
    { "de",
        { "Orvel Widgets", "Hinzufügen", "Hinzugefügt", "Transparenz reduzieren", "Größerer Text", "Erneut versuchen" },
        { "Klein", "Mittel", "Groß" },
        "Die Widgets sind nicht erreichbar. Was auf dem Schreibtisch liegt, bleibt, wie es ist." },
    { "ar", { "أدوات Orvel", "إضافة", "تمت الإضافة", "تقليل الشفافية", "نص أكبر", "إعادة المحاولة" },
        { "صغير", "متوسط", "كبير" }, "تعذر الوصول إلى الأدوات. يبقى ما على سطح المكتب كما هو." },
};

struct Options {
    bool isDark = false, increasesContrast = false, isBigger = false, hasWarning = false;
    const Words* words = wordTables;
};

Options optionsFrom(std::span<char*> arguments)
{
    Options options;
    for (const std::string_view argument : arguments) {
        options.isDark |= argument == "dark";
        options.increasesContrast |= argument == "contrast";
        options.isBigger |= argument == "bigger";
        options.hasWarning |= argument == "warning";
        if (const auto* found = std::ranges::find(wordTables, argument, &Words::language);
            found != std::end(wordTables))
            options.words = found;
    }
    return options;
}

class Demonstration {
public:
    explicit Demonstration(const Options& options) : m_options(options)
    {
        m_content.words = options.words->own;
        m_content.style = { .colors = { .dark = options.isDark, .increaseContrast = options.increasesContrast } };
        m_content.biggerText = options.isBigger ? 4 : 0;
        m_content.isRightToLeft = options.words->language == "ar";
        if (options.hasWarning)
            m_content.warning = GalleryWarning { options.words->warning, true };
        m_work = start(load(), [](const auto&) {});
        show();
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
                    m_content.reducesTransparency = reduces;
                    m_work = start(load(), [](const auto&) {});
                },
            .biggerTextChosen =
                [this](int steps) {
                    std::cout << "bigger text " << steps << std::endl;
                    m_content.biggerText = steps;
                    m_work = start(load(), [](const auto&) {});
                },
            .tryAgainChosen = [] { std::cout << "try again" << std::endl; },
            .closed = [] { Gtk::Main::quit(); },
        };
    }

    HostEnvironment environment(std::string family) const
    {
        return {
            .family = std::move(family),
            .isPreview = true,
            .colorScheme = m_options.isDark ? "dark" : "light",
            .contrast = m_options.increasesContrast ? "increased" : "standard",
            .reduceTransparency = m_content.reducesTransparency,
            .biggerText = m_content.biggerText,
            .locale = Locale::named(m_options.words->language),
            .language = std::string(m_options.words->language),
            .scale = m_gallery.scale(),
            .format = PictureFormat::pixels,
        };
    }

    Task<void> load()
    {
        const auto members = co_await m_requester.members(environment({}));
        if (!members)
            co_return;
        m_content.sections.clear();
        for (const auto& member : *members) {
            if (member.role != ExtensionMember::Role::widget)
                continue;
            m_content.sections.push_back({ member.kind, member.displayName, member.description, {} });
            for (const auto& family : member.families) {
                const auto size = family == "systemSmall" ? 0U : family == "systemMedium" ? 1U : 2U;
                const char* const name = m_options.words->sizes.at(size);
                m_content.sections.back().previews.push_back({ .family = family,
                    .sizeName = name,
                    .addSpoken = m_options.words->own.add + " " + member.displayName + ", " + name,
                    .size = { size == 0 ? 170.0 : 364.0, size == 2 ? 382.0 : 170.0 },
                    .picture = nullptr });
            }
        }
        show();
        for (auto& section : m_content.sections) {
            for (auto& preview : section.previews) {
                auto entry = co_await m_requester.snapshot(section.kind, environment(preview.family));
                if (!entry)
                    continue;
                auto picture = co_await m_requester.render(section.kind, *entry, environment(preview.family));
                if (!picture)
                    continue;
                preview.picture = std::make_shared<const HostPicture>(*std::move(picture));
                preview.size = { preview.picture->width / m_gallery.scale(),
                    preview.picture->height / m_gallery.scale() };
            }
        }
        show();
        std::cout << "shown" << std::endl;
    }

    void show()
    {
        m_content.style.colors.reduceTransparency = m_content.reducesTransparency;
        m_content.style.biggerText = BiggerText(m_content.biggerText);
        m_gallery.show(m_content);
    }

    Options m_options;
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
    const Demonstration demonstration(optionsFrom(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)));
    Gtk::Main::run();
}
