#include <iostream>

#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "Tests/WidgetHost/Demonstration.h"
#include "WidgetHost/Panel/Panel.h"

#include <gtkmm.h>

/// The panel with the controls of the extension that the bus starts. Says on standard output what somebody does in it;
/// the toggle waits for good once it was used.
namespace {

using namespace orvel;

class PanelDemonstration {
public:
    explicit PanelDemonstration(tests::Demonstration how) : m_how(std::move(how))
    {
        const auto words = m_how.words();
        m_content.words = { "Orvel", words.addWidgets(), words.quit() };
        m_content.style = m_how.style();
        m_content.isRightToLeft = words.isRightToLeft();
        if (m_how.hasWarning)
            m_content.notice = words.noAnswer();
        m_work = start(load(), [](const auto&) {});
    }

private:
    PanelEvents events()
    {
        return {
            .used =
                [this](const std::string& kind, std::optional<bool> wanted, const std::string&) {
                    std::cout << "used " << kind << (wanted ? *wanted ? " on" : " off" : "") << std::endl;
                    for (auto& control : m_content.controls) {
                        if (control.kind == kind && wanted) {
                            control.isOn = *wanted;
                            control.isWaiting = true;
                        }
                    }
                    m_panel.show(m_content);
                },
            .galleryChosen = [] { std::cout << "gallery" << std::endl; },
            .quitChosen = [] { std::cout << "quit" << std::endl; },
            .closed =
                [] {
                    std::cout << "closed" << std::endl;
                    Gtk::Main::quit();
                },
        };
    }

    Task<void> load()
    {
        const auto members = co_await m_requester.members(m_how.environment({}, 1));
        if (!members)
            co_return;
        for (const auto& member : *members) {
            if (member.role == ExtensionMember::Role::widget)
                continue;
            auto environment = m_how.environment({}, 1);
            environment.isPreview = false;
            const auto value = co_await m_requester.controlValue(member.kind, std::move(environment));
            if (!value)
                continue;
            m_content.controls.push_back({ .kind = member.kind,
                .isToggle = member.role == ExtensionMember::Role::toggle,
                .title = value->title,
                .value = value->value,
                .icon = value->icon,
                .isOn = value->isOn.value_or(false),
                .tint = value->tint,
                .spokenState = value->spokenState });
        }
        m_panel.show(m_content);
        m_panel.raise();
        std::cout << "shown" << std::endl;
    }

    tests::Demonstration m_how;
    EventLoop m_loop = EventLoop::ofTheProgram();
    WidgetRequester m_requester { m_loop };
    Panel m_panel { events() };
    PanelContent m_content;
    StartedTask m_work;
};

}

int main(int argc, char** argv)
{
    const Gtk::Main toolkit(argc, argv);
    const PanelDemonstration demonstration(
        tests::Demonstration(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)));
    Gtk::Main::run();
}
