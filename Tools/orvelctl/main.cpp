#include "Tools/orvelctl/Commands.h"
#include "Tools/orvelctl/calls/Program.h"

int main(int argc, char** argv)
{
    using namespace orvelctl;
    return runProgram(argc, argv, [argv](CLI::App& app, Action& action) {
        addTimelineCommand(app, action);
        addContentCommand(app, action);
        addControlCommand(app, action);
        addLinkCommand(app, action);
        addSnapshotCommand(app, action);
        addTokensCommand(app, action);
        addMetricsCommand(app, action);
        addCopyCommand(app, action);
        addHandedOverCommands(app, action, argv);
    });
}
