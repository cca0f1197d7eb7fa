#include "WidgetHost/Panel/PanelStyle.h"

#include "Tests/WidgetHost/EveryStyle.h"

namespace orvel::tests {

TEST(PanelStyle, isUnderstoodByTheToolkit)
{
    expectSoundStyles([](const StyleSettings& settings) { return panelStyleSheet("panel", settings); });
}

}
