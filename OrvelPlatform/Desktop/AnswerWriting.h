#pragma once

#include <vector>

#include "OrvelPlatform/Desktop/GlibHandles.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

/// Answers as replies on the bus, within its bounds: texts are cut at a character, and what is too large is a fault,
/// except for a timeline, which becomes shorter.
namespace orvel {

/// The values of a reply, and the files that go with it.
struct Reply {
    VariantHandle values;
    FDListHandle files; // null: none
};

Answer<Reply> replyOf(const std::vector<ExtensionMember>& members);
Answer<Reply> replyOf(const ExtensionEntry& entry);
Answer<Reply> replyOf(const ExtensionTimeline& timeline);
Answer<Reply> replyOf(const ExtensionPicture& picture);
Answer<Reply> replyOf(const ControlValue& value);

/// The first entries of a timeline, as many as fit into `mostBytes`. The host comes back for the others when the first
/// of them is due. Without any when even the first does not fit.
ExtensionTimeline shortened(const ExtensionTimeline& timeline, std::size_t mostBytes);

}
