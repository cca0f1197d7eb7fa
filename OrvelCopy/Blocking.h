#pragma once

#include <string>
#include <string_view>

/// What is said where an app or website is blocked, and where Orvel may not quit because of it.
namespace orvel::Copy::Blocking {

/// "Mail is resting until 12:00."
std::string resting(std::string_view name, std::string_view until);
/// "It wakes up at 12:00, or after a breath in the other window."
std::string restingDetail(std::string_view until);
/// "Deep work has begun. Mail is resting until 12:00."
std::string begun(std::string_view block, std::string_view app, std::string_view until);
/// "Nothing interrupts what you’re doing. Bring Mail forward and the breath is ready."
std::string begunDetail(std::string_view app);
/// "Deep work is Firm until 12:00. Orvel has to keep running to block.", or that it is in Ultra Hard mode
std::string quitRefused(std::string_view name, bool ultraHard, std::string_view until);

}
