#include "WidgetHost/Gallery/GalleryStyle.h"

#include "Tests/WidgetHost/EveryStyle.h"

namespace orvel::tests {

TEST(GalleryStyle, isUnderstoodByTheToolkit)
{
    expectSoundStyles([](const StyleSettings& settings) { return galleryStyleSheet("gallery", settings); });
}

}
