#include "OrvelCopy/ReadyMade.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::ReadyMade {

// TRANSLATORS: the name of a ready-made List: social networks
std::string_view social() { return constant(KEY("Social")); }
// TRANSLATORS: the name of a ready-made List: chats and messengers
std::string_view chat() { return constant(KEY("Chat")); }
// TRANSLATORS: the name of a ready-made List: films and videos
std::string_view video() { return constant(KEY("Video")); }
// TRANSLATORS: the name of a ready-made List
std::string_view news() { return constant(KEY("News")); }
// TRANSLATORS: the name of a ready-made List
std::string_view games() { return constant(KEY("Games")); }

}
