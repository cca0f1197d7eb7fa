#pragma once

#include <vector>

#include "OrvelPlatform/Desktop/GlibHandles.h"
#include "OrvelPlatform/Desktop/HostPicture.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

/// Replies as answers. Whoever replied may be anybody: a reply that breaks the contract anywhere is badReply as a
/// whole, and the sentence says where.
namespace orvel {

/// The values of a reply, of the type that the contract has for the method, and the files that came along (or null).
struct ReceivedReply {
    VariantHandle values;
    FDListHandle files;
};

template <typename T>
Answer<T> answerFrom(const ReceivedReply& reply);

template <>
Answer<std::vector<ExtensionMember>> answerFrom(const ReceivedReply& reply);
template <>
Answer<ExtensionEntry> answerFrom(const ReceivedReply& reply);
template <>
Answer<ExtensionTimeline> answerFrom(const ReceivedReply& reply);
template <>
Answer<HostPicture> answerFrom(const ReceivedReply& reply);
template <>
Answer<ControlValue> answerFrom(const ReceivedReply& reply);

}
