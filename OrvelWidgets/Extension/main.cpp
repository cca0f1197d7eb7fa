#include <malloc.h>

#include "OrvelPlatform/Desktop/DesktopClock.h"
#include "OrvelPlatform/Desktop/ExtensionRunner.h"
#include "OrvelPlatform/Desktop/LinkOpener.h"
#include "OrvelWidgets/OrvelExtension.h"

namespace {

using namespace orvel;

/// The extension has no front to come to: where the application does not run, links bring it there.
class NoForeground final : public Foreground {
public:
    Task<std::expected<void, Fault>> request() override
    {
        co_return std::unexpected(Fault { {}, "the extension has no window" });
    }
};

/// Pictures are made now and then and given away at once. By itself the allocator would keep the room of the largest
/// from the first on, in pieces.
void giveLargeMemoryBack()
{
    constexpr int large = 256 << 10; // bytes
    ::mallopt(M_MMAP_THRESHOLD, large);
}

}

int main()
{
    giveLargeMemoryBack();
    EventLoop loop;
    DesktopClock clock(loop);
    LinkOpener workspace(loop);
    NoForeground foreground;
    OrvelExtension extension({
        .snapshot = [] { return WidgetSnapshot::file().read(); },
        .draw = drawWidget,
        .prepareForPictures = [] { (void)prepareDrawing(); }, // a picture says what is missing
        .clock = clock,
        .workspace = workspace,
        .foreground = foreground,
    });
    return runExtension(loop, extension);
}
