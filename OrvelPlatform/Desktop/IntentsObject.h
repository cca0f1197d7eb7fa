#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <string>

#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/ServedObject.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// Runs an intent, on the loop of whoever serves it.
using IntentPerformer =
    std::function<Task<Answer<void>>(std::string intent, IntentParameters parameters, IntentPlatform platform)>;

/// The intents' interface at a path, in the extension and in the application alike. Several intents may wait at once,
/// but one sender waits for one of a kind only.
class IntentsObject {
public:
    /// The performer throws nothing itself; what its task throws is the caller's error. `whenDone` is called after each
    /// answer. The connection outlives the object; an intent that is being performed
    /// goes on when the object goes.
    [[nodiscard]] static std::expected<IntentsObject, Fault> serve(const BusConnection& connection, const char* path,
        IntentPerformer performer, std::function<void()> whenDone = {});

    IntentsObject(IntentsObject&&) = default;
    IntentsObject& operator=(IntentsObject&&) = delete;
    ~IntentsObject();

    /// Whether somebody waits for an intent.
    bool isPerforming() const;

private:
    struct State;
    IntentsObject(std::shared_ptr<State> state, ServedObject object);

    std::shared_ptr<State> m_state;
    ServedObject m_object;
};

}
