#include "Tools/orvelctl/bus/Commands.h"
#include "Tools/orvelctl/calls/Program.h"

int main(int argc, char** argv)
{
    using namespace orvelctl;
    return runProgram(argc, argv, [](CLI::App& app, Action& action) {
        addAskCommand(app, action);
        addReloadCommand(app, action);
    });
}
