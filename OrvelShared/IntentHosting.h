#pragma once

#include <memory>

#include "OrvelPlatform/Base/Cancellation.h"
#include "OrvelPlatform/Base/Clock.h"
#include "OrvelPlatform/Base/Task.h"
#include "OrvelShared/OrvelIntentHost.h"

/// Where intents meet the application that they run in. For the main loop's thread.
namespace orvel::IntentHosting {

/// The application's host; null until it registers one, and always in the extension. It is the product's one variable
/// for a whole process.
extern std::shared_ptr<OrvelIntentHost> host;

/// Registers the application's host in place of any other, when the application starts.
void register_(std::shared_ptr<OrvelIntentHost> newHost);

/// Whether this process is the application: the folder of its bundle is named "….app".
bool isAppProcess();

/// The registered host. While the application starts it has none yet: the wait looks again every 50 milliseconds, for
/// as long as is said at most, and then finds what there is, perhaps null. In any other process it is null at once.
/// A wait that is cancelled does not end early. `clock` outlives the wait.
Task<std::shared_ptr<OrvelIntentHost>> current(Seconds waitingUpTo, Clock& clock, Cancellation cancellation = {});

}
