/// Widgets in windows, for tests and for the eye. Each argument is one, such as "status:systemMedium:dusk", with "@X,Y"
/// at its end where it has a place on the first output. It says on standard output what happens at them, and takes
/// lines from standard input: "notice SENTENCE", "again" for new pictures. It ends with its input.
#include <charconv>
#include <fmt/format.h>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "WidgetHost/Windows/WidgetWindow.h"

#include <gtkmm.h>

namespace orvel::tests {

namespace {

struct Settings {
    std::string language;
    double textScale = 1;
    bool increasesContrast = false;
    bool reducesTransparency = false;
};

WindowWords words(const std::string& language)
{
    if (language == "ar")
        return { "الحجم", { { "systemSmall", "صغير" }, { "systemMedium", "متوسط" }, { "systemLarge", "كبير" } },
            "المظهر", { "تلقائي", "الغسق", "الفجر", "أحادي", "شفاف" }, "إضافة أدوات…", "الإعدادات…", "إزالة" };
    return { "Size", { { "systemSmall", "Small" }, { "systemMedium", "Medium" }, { "systemLarge", "Large" } }, "Look",
        { "Automatic", "Dusk", "Dawn", "Mono", "Clear" }, "Add Widgets…", "Settings…", "Remove" };
}

void tell(const std::string& line)
{
    std::cout << line << std::endl;
}

Size pointsOf(const std::string& family)
{
    return { family == "systemSmall" ? 170.0 : 364.0, family == "systemLarge" ? 382.0 : 170.0 };
}

class ShownWidget {
public:
    ShownWidget(DesktopWindows& windows, WidgetRequester& host, const Settings& settings, const std::string& told)
        : m_host(host), m_settings(settings)
    {
        const auto first = told.find(':'), second = told.find(':', first + 1), at = told.find('@');
        m_kind = "app.orvel.widget." + told.substr(0, first);
        m_face.name = told.substr(0, first) == "status" ? "Orvel" : "Breathe";
        m_face.family = told.substr(first + 1, second - first - 1);
        m_face.look = fromRawValue<ChosenLook>(told.substr(second + 1, at - second - 1)).value_or(ChosenLook::dusk);
        std::optional<WidgetPlace> place;
        if (at != std::string::npos) {
            const auto comma = told.find(',', at);
            place = WidgetPlace { windows.outputs().front().name, std::stoi(told.substr(at + 1, comma)),
                std::stoi(told.substr(comma + 1)) };
        }
        m_window = std::make_unique<WidgetWindow>(windows, place, events());
        fillFace();
        m_window->show(m_face);
        ask();
    }

    void ask()
    {
        start(picture(), [](const TaskOutcome<bool>&) {}).detach();
    }

    void setNotice(const std::string& sentence)
    {
        m_face.notice = sentence.empty() ? std::nullopt : std::optional(sentence);
        m_window->show(m_face);
    }

private:
    bool isTinted() const { return m_face.look == ChosenLook::mono || m_face.look == ChosenLook::clear; }

    void fillFace()
    {
        const auto points = pointsOf(m_face.family);
        m_face.pointScale = m_settings.textScale;
        m_face.size = { points.width * m_face.pointScale, points.height * m_face.pointScale };
        m_face.isDark = m_face.look != ChosenLook::dawn;
        m_face.tint = isTinted() ? std::optional(WindowTint { { 0.97, 0.95, 0.9 }, { 0.45, 0.75, 1 } }) : std::nullopt;
        m_face.increasesContrast = m_settings.increasesContrast;
        m_face.reducesTransparency = m_settings.reducesTransparency;
        m_face.language = m_settings.language;
        m_face.isRightToLeft = m_settings.language == "ar";
        m_face.families = { "systemSmall", "systemMedium", "systemLarge" };
    }

    HostEnvironment environment() const
    {
        HostEnvironment environment;
        environment.family = m_face.family;
        environment.renderingMode = m_face.look == ChosenLook::mono ? "vibrant"
            : m_face.look == ChosenLook::clear                      ? "accented"
                                                                    : "fullColor";
        environment.colorScheme = m_face.isDark ? "dark" : "light";
        environment.contrast = m_face.increasesContrast ? "increased" : "standard";
        environment.textScale = m_settings.textScale;
        environment.scale = m_scale;
        environment.language = m_settings.language;
        environment.locale = Locale::named(m_settings.language.empty() ? "en_GB" : m_settings.language);
        environment.format = PictureFormat::pixels;
        return environment;
    }

    Task<bool> picture()
    {
        auto asking = m_host.timeline(m_kind, environment());
        const auto timeline = co_await asking;
        if (!timeline) {
            tell("no timeline: " + timeline.error().sentence);
            co_return false;
        }
        const auto& first = timeline->entries.front();
        auto drawing = m_host.render(m_kind, { first.date, timeline->moments[first.moment] }, environment());
        auto drawn = co_await drawing;
        if (!drawn) {
            tell("no picture: " + drawn.error().sentence);
            co_return false;
        }
        m_face.picture = std::make_shared<const HostPicture>(std::move(*drawn));
        m_window->show(m_face);
        tell("shown " + m_face.family);
        co_return true;
    }

    WidgetWindowEvents events()
    {
        return {
            .opened = [](const std::string& token) { tell("opened " + token); },
            .acted = [](std::size_t action,
                         const std::string& token) { tell(fmt::format("acted {} {}", action, token)); },
            .moved =
                [](const WidgetPlace& place) { tell(fmt::format("moved {} {} {}", place.output, place.x, place.y)); },
            .scaleChanged =
                [this](double scale) {
                    tell(fmt::format("scale {}", scale));
                    m_scale = scale;
                    ask();
                },
            .familyChosen =
                [this](const std::string& family) {
                    tell("family " + family);
                    m_face.family = family;
                    fillFace();
                    ask();
                },
            .lookChosen =
                [this](ChosenLook look) {
                    tell(fmt::format("look {}", rawValue(look)));
                    m_face.look = look;
                    fillFace();
                    ask();
                },
            .removeChosen =
                [this] {
                    tell("removed");
                    m_window.reset();
                },
            .galleryChosen = [] { tell("gallery"); },
            .settingsChosen = {},
        };
    }

    WidgetRequester& m_host;
    Settings m_settings;
    std::string m_kind;
    double m_scale = 1;
    WidgetFace m_face {};
    std::unique_ptr<WidgetWindow> m_window;
};

Settings settingsFromSurroundings()
{
    const auto value = [](const char* name) { return Glib::getenv(name); };
    Settings settings;
    settings.language = value("SHOWN_LANGUAGE");
    settings.textScale = value("SHOWN_TEXT_SCALE").empty() ? 1 : std::stod(value("SHOWN_TEXT_SCALE"));
    settings.increasesContrast = !value("SHOWN_CONTRAST").empty();
    settings.reducesTransparency = !value("SHOWN_OPAQUE").empty();
    return settings;
}

}

}

int main(int count, char** arguments)
{
    using namespace orvel;
    using namespace orvel::tests;
    Gtk::Main toolkit(count, arguments);
    auto loop = EventLoop::ofTheProgram();
    WidgetRequester host(loop);
    DesktopWindows windows(&words);
    for (const auto& output : windows.outputs())
        tell(fmt::format("output {} {}x{}", output.name, output.area.width, output.area.height));
    std::vector<std::unique_ptr<ShownWidget>> widgets;
    for (int index = 1; index < count; ++index)
        widgets.push_back(std::make_unique<ShownWidget>(windows, host, settingsFromSurroundings(), arguments[index]));
    const auto input = Glib::IOChannel::create_from_fd(0);
    const auto listening = Glib::signal_io().connect(
        [&](Glib::IOCondition) {
            Glib::ustring line;
            if (input->read_line(line) != Glib::IO_STATUS_NORMAL) {
                Gtk::Main::quit();
                return false;
            }
            const auto said = line.raw().substr(0, line.raw().find('\n'));
            for (const auto& widget : widgets) {
                if (said.starts_with("notice"))
                    widget->setNotice(said.size() > 7 ? said.substr(7) : "");
                else if (said == "again")
                    widget->ask();
            }
            return true;
        },
        0, Glib::IO_IN | Glib::IO_HUP);
    Gtk::Main::run();
    widgets.clear();
}
