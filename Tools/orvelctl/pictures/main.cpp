#include "Tools/orvelctl/calls/Program.h"
#include "Tools/orvelctl/pictures/Commands.h"

int main(int argc, char** argv)
{
    using namespace orvelctl;
    return runProgram(argc, argv, [](CLI::App& app, Action& action) {
        addDrawCommand(app, action);
        addDayCommand(app, action);
        addGalleryCommand(app, action);
        addWidgetsCommand(app, action);
        addGlyphCommand(app, action);
        addOrbCommand(app, action);
    });
}
