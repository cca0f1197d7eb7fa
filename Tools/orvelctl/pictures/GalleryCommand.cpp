#include <algorithm>
#include <fmt/format.h>
#include <memory>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelDesign/DesignBundle.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelWidgetsUI/Drawn/ControlStandIn.h"
#include "OrvelWidgetsUI/Drawn/WordsLocale.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"
#include "Tools/orvelctl/calls/Command.h"
#include "Tools/orvelctl/pictures/Commands.h"
#include "Tools/orvelctl/pictures/Drawing.h"
#include "Tools/orvelctl/pictures/GalleryDesign.h"
#include "Tools/orvelctl/pictures/GalleryPage.h"
#include "Tools/orvelctl/pictures/GalleryWords.h"

namespace orvelctl {

namespace {

using namespace orvel;
using Scene = WidgetFixtures::Scene;

struct Call {
    std::optional<TimeZone> zone;
    std::optional<Locale> locale;
    std::string folder;
    std::vector<std::string> only;
};

Tint tint(WidgetLook look)
{
    switch (look) {
    case WidgetLook::dusk:
    case WidgetLook::dawn:
        return Tint::none;
    case WidgetLook::mono:
        return Tint::oneColor;
    case WidgetLook::clear:
        return Tint::accent;
    }
    return Tint::none;
}

/// Draws the sections of the gallery, each with sample moments.
class Sections {
public:
    Sections(const Call& call, GalleryPage& page)
        : m_page(page)
        , m_calendar(calendar(call.zone))
        , m_locale(call.locale.value_or(Locale::current()))
        , m_words(wordsEnvironment(call.locale))
    {
    }

    struct Part {
        std::string name;
        void (*add)(Sections&);
    };
    /// In the gallery's order.
    static const std::vector<Part>& parts();

    /// Draws the parts that are asked for; all of them when none is named.
    void draw(const std::vector<std::string>& only)
    {
        for (const auto& [name, add] : parts()) {
            if (only.empty() || std::ranges::find(only, name) != only.end())
                add(*this);
        }
    }

private:
    WidgetMoment moment(Scene scene) const
    {
        const auto date = WidgetFixtures::sampleDate(m_calendar);
        return WidgetFixtures::snapshot(scene, date, m_calendar).moment(date, m_calendar);
    }

    WidgetContent content(Scene scene) const { return WidgetContent::status(moment(scene), m_locale, m_calendar); }

    WidgetContent breathe() const { return WidgetContent::breathe(moment(Scene::block).breathe); }

    void addWidget(const std::string& name, std::string_view caption, const WidgetContent& shown, WidgetSize size,
        WidgetLook look, const Environment& environment)
    {
        m_page.add(fmt::format("{}-{}-{}", name, rawValue(size), rawValue(look)), caption,
            widgetPicture(shown, size, look), environment, tint(look));
    }

    void addSizes(const std::string& name, const WidgetContent& shown, WidgetLook look, const Environment& environment)
    {
        for (const auto size : allCases<WidgetSize>())
            addWidget(name, rawValue(size), shown, size, look, environment);
    }

    void widgets()
    {
        for (const auto look : allCases<WidgetLook>()) {
            m_page.section(fmt::format("Widgets in {}", rawValue(look)), "Every state at every size.");
            for (const auto scene : allCases<Scene>()) {
                m_page.row(rawValue(scene));
                addSizes(std::string(rawValue(scene)), content(scene), look, m_words);
            }
            m_page.row("breathe");
            addWidget("breathe", "the breathe widget", breathe(), WidgetSize::small, look, m_words);
        }
    }

    void samples(std::string_view title, std::string_view note, const std::vector<WordsSample>& all,
        const Environment& environment)
    {
        m_page.section(title, note);
        for (const auto& sample : all) {
            m_page.row(sample.caption);
            for (const auto look : { WidgetLook::dusk, WidgetLook::dawn })
                addSizes(std::string(sample.name), sample.content, look, environment);
        }
    }

    void words()
    {
        const auto english = Environment();
        samples("Long words", "Lines end where parts end; what has no room ends in an ellipsis.", longWords(), english);
        const auto japanese = *Locale::named("ja");
        Copy::inLanguage(japanese,
            [&] { samples("Japanese", "A script without spaces.", japaneseWords(), wordsEnvironment(japanese)); });
        const auto arabic = *Locale::named("ar");
        Copy::inLanguage(arabic, [&] {
            samples("Arabic", "Leading is at the right. The ring runs as clocks do.", arabicWords(),
                wordsEnvironment(arabic));
        });
        m_page.section("German", "The catalogue's own words.");
        const auto german = *Locale::named("de-DE");
        Copy::inLanguage(german, [&] {
            for (const auto scene : allCases<Scene>()) {
                m_page.row(rawValue(scene));
                addSizes(fmt::format("de-{}", rawValue(scene)),
                    WidgetContent::status(moment(scene), german, m_calendar), WidgetLook::dusk,
                    wordsEnvironment(german));
            }
            m_page.row("breathe");
            addWidget("de-breathe", "breathe", breathe(), WidgetSize::small, WidgetLook::dusk, m_words);
        });
    }

    void options()
    {
        m_page.section("Bigger text", "The whole widget grows; its layout stays.");
        for (const int steps : { 1, 2, 4 }) {
            m_page.row(fmt::format("{} steps", steps));
            const auto environment = m_words.with<OrvelBiggerTextKey>(BiggerText(steps));
            addSizes(fmt::format("bigger-{}", steps), content(Scene::block), WidgetLook::dawn, environment);
        }
        m_page.section("More contrast", "Stronger second texts and lines.");
        for (const auto look : allCases<WidgetLook>()) {
            m_page.row(rawValue(look));
            addSizes("contrast", content(Scene::focus), look,
                m_words.with<ColorSchemeContrastKey>(ColorSchemeContrast::increased));
        }
        m_page.section("Less transparency", "The orb has no pool of light.");
        m_page.row("dusk and dawn");
        for (const auto look : { WidgetLook::dusk, WidgetLook::dawn })
            addWidget("solid", rawValue(look), content(Scene::block), WidgetSize::small, look,
                m_words.with<ReduceTransparencyKey>(true));
    }

    void controls()
    {
        m_page.section("Controls", "Stand-ins for what a desktop draws by itself.");
        const std::pair<std::string, ControlContent> contents[] {
            { "breathe", ControlContent::breathe(moment(Scene::block).breathe) },
            { "focus-off", ControlContent::focus(moment(Scene::block)) },
            { "focus-on", ControlContent::focus(moment(Scene::focus)) },
        };
        for (const auto scheme : allCases<ColorScheme>()) {
            m_page.row(rawValue(scheme));
            const auto environment = m_words.with<ColorSchemeKey>(scheme);
            for (const auto& [name, shown] : contents) {
                for (const auto size : allCases<ControlStandIn::Size>())
                    addControl(fmt::format("control-{}-{}-{}", name, rawValue(size), rawValue(scheme)), name,
                        { shown, size }, environment);
            }
        }
    }

    void addControl(const std::string& name, std::string_view caption, const ControlStandIn& control,
        const Environment& environment)
    {
        const View view = control;
        m_page.add(name, caption, { view, m_page.sizeOf(view, environment) }, environment);
    }

    GalleryPage& m_page;
    Calendar m_calendar;
    Locale m_locale;
    Environment m_words;
};

const std::vector<Sections::Part>& Sections::parts()
{
    static const std::vector<Part> all {
        { "widgets", [](Sections& sections) { sections.widgets(); } },
        { "words", [](Sections& sections) { sections.words(); } },
        { "options", [](Sections& sections) { sections.options(); } },
        { "controls", [](Sections& sections) { sections.controls(); } },
        { "palette", [](Sections& sections) { addPalette(sections.m_page, {}); } },
        { "type", [](Sections& sections) { addType(sections.m_page, {}); } },
        { "orb", [](Sections& sections) { addOrb(sections.m_page, {}); } },
        { "glyph", [](Sections& sections) { addGlyph(sections.m_page, {}); } },
        { "surfaces", [](Sections& sections) { addSurfaces(sections.m_page, {}); } },
    };
    return all;
}

Exit drawGallery(const Call& call)
{
    return Copy::inLanguage(call.locale, [&] {
        Renderer renderer(designBundle(), FontScope::ownProcess);
        GalleryPage page(call.folder, renderer);
        Sections(call, page).draw(call.only);
        return page.finish();
    });
}

}

void addGalleryCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("gallery", "Every look, size and state as pictures, and one page of them");
    const auto call = std::make_shared<Call>();
    addTimeZoneOption(command, call->zone);
    addLocaleOption(command, call->locale);
    command->add_option("--out", call->folder, "The folder of the pictures and index.html")
        ->type_name("FOLDER")
        ->required();
    std::vector<std::string> names;
    for (const auto& part : Sections::parts())
        names.push_back(part.name);
    command->add_option("--only", call->only, "This part alone, such as widgets or palette; may be repeated")
        ->type_name("PART")
        ->check(CLI::IsMember(names));
    runs(command, action, [call] { return drawGallery(*call); });
}

}
