#pragma once

#include <string_view>

/// The names of the ready-made Lists.
namespace orvel::Copy::ReadyMade {

std::string_view social();
std::string_view chat();
std::string_view video();
std::string_view news();
std::string_view games();

}
