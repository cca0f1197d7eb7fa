#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Clock.h"
#include "WidgetHost/Desk/HostServices.h"
#include "WidgetHost/Desk/OfferedMembers.h"
#include "WidgetHost/Desk/Previews.h"
#include "WidgetHost/Desk/Surroundings.h"
#include "WidgetHost/Face/WidgetFace.h"
#include "WidgetHost/Schedule/WidgetSchedule.h"
#include "WidgetHost/State/HostStateFile.h"

namespace orvel {

/// Told by a desk what to show. Each may call the desk, and none may destroy it.
struct DeskListener {
    /// A widget shows this from now on; the first time, it is new.
    std::function<void(const std::string& id, const WidgetFace& face)> faceChanged;
    std::function<void(const std::string& id)> removed;

    /// Something that the gallery shows changed: what is offered, a preview, a setting, a warning.
    std::function<void()> galleryChanged;
};

/// What a desktop host does, without its windows: keeps the widgets that people placed, has each show what holds in its
/// surroundings, and does what is chosen and clicked. What is told of an id that is not there has no effect.
class Desk {
public:
    /// Who uses the host now.
    using HomelandNow = std::function<Homeland()>;

    /// A fault that a click came to is said for as long, and a change is kept on disk after as long.
    static constexpr Clock::Uptime troubleSpan = std::chrono::seconds { 10 };
    static constexpr Clock::Uptime savingDelay = std::chrono::milliseconds { 500 };

    /// Reads the file. Nothing is asked and told before the desktop's appearance is known. The others outlive the desk.
    Desk(Clock& clock, HostServices& services, HostStateFile& file, HomelandNow homeland, DeskListener listener);
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    const HostState& state() const { return m_state; }
    std::optional<WidgetPlace> place(std::string_view id) const;

    /// Places a widget; the answer is its id.
    std::string add(std::string kind, std::string family, ChosenLook look = ChosenLook::automatic);
    void remove(const std::string& id);
    void move(const std::string& id, WidgetPlace place);
    void setFamily(const std::string& id, const std::string& family);
    void setLook(const std::string& id, ChosenLook look);
    void setSettings(bool reducesTransparency, int biggerText);

    /// Device pixels in a point where the widget is. New widgets take the one that was told last.
    void setScale(const std::string& id, double scale);

    /// A click on the widget, or on one of its picture's actions, with the token that lets the application come to the
    /// front; it may be empty.
    void open(const std::string& id, std::string activationToken);
    void act(const std::string& id, std::size_t action, std::string activationToken);

    void appearanceChanged(const DesktopAppearance& appearance);
    void homelandChanged();
    void reload(const std::vector<std::string>& kinds);
    void clockWasSet();

    /// What surrounds the widgets; absent before the appearance is known.
    const std::optional<Surroundings>& surroundings() const { return m_around; }

    const OfferedMembers& members() const { return m_members; }

    /// While the gallery is in sight there are previews, at its scale; absent: it is not.
    void showPreviews(std::optional<double> scale);
    std::shared_ptr<const HostPicture> preview(const Offer& offer) const { return m_previews.picture(offer); }
    Size previewSize(const Offer& offer) const;

    /// What did not work, for people; absent while all is well. `tryAgain` asks whoever did not answer.
    std::optional<std::string> warning() const;
    void tryAgain();

    /// Keeps on disk what is not kept yet.
    void save();

private:
    struct Shown {
        double scale;
        ShownWidget shown {};
        std::optional<WidgetFace> told {};
        std::optional<std::string> trouble {};
        std::unique_ptr<Clock::Timer> troubleEnd {};
    };

    PlacedWidget* find(std::string_view id);
    HostEnvironment environment(const PlacedWidget& widget, double scale) const;
    void changed();
    void refresh();
    void show(const std::string& id, const ShownWidget& shown);
    void tell(const PlacedWidget& widget);
    void tellAll();
    void wantPreviews();

    WidgetFace face(const PlacedWidget& widget, const Shown& shown) const;
    std::optional<std::string> notice(const Shown& shown) const;
    void complain(const std::string& id, std::string sentence);
    void keep(StartedTask errand);

    Clock& m_clock;
    HostServices& m_services;
    HostStateFile& m_file;
    HomelandNow m_homeland;
    DeskListener m_listener;

    HostState m_state;
    std::optional<std::string> m_fileWarning;
    bool m_isUnsaved = false;
    bool m_couldNotSave = false;
    std::unique_ptr<Clock::Timer> m_saving;

    std::optional<DesktopAppearance> m_appearance;
    std::optional<Surroundings> m_around;
    std::map<std::string, Shown, std::less<>> m_shown;
    double m_lastScale = 1;
    std::optional<double> m_previewScale;

    // Last, so that no answer comes to what is half gone.
    OfferedMembers m_members;
    Previews m_previews;
    WidgetSchedule m_schedule;
    std::vector<StartedTask> m_errands;
};

}
