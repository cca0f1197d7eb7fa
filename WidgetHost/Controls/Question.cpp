#include "WidgetHost/Controls/Question.h"

namespace orvel {

bool isOutOfReach(RequestFault::Kind kind)
{
    using Kind = RequestFault::Kind;
    switch (kind) {
    case Kind::unavailable:
    case Kind::late:
    case Kind::badReply:
        return true;
    case Kind::unknownKind:
    case Kind::unknownIntent:
    case Kind::badEntry:
    case Kind::badArgument:
    case Kind::cannotDraw:
    case Kind::busy:
        return false;
    }
    return false;
}

}
