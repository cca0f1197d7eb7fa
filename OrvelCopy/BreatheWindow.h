#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The window in which a breath runs: its status lines, its form as a floating orb, and the end.
namespace orvel::Copy::BreatheWindow {

// Before the breath.
std::string_view windowTitle();
std::string_view pickerTitle();
std::string_view pickerDetail();
std::string_view styleGroup();
std::string_view calm();
std::string_view reset();
std::string_view ground();
std::string_view change();
std::string_view changeLabel();

// During the breath.
std::string_view pause();
std::string_view resume();
std::string_view captionsToggle();
std::string_view shrink();

// After it.
std::string_view doneTitle();
std::string_view endedEarlyTitle();
std::string_view endedEarlyDetail();
std::string_view done();
std::string_view anotherMinute();

// The floating orb.
std::string_view floatingDone();
std::string_view floatingIdleLabel();
std::string_view expand();
std::string_view end();
std::string_view close();

/// "2:35 left"
std::string timeLeft(std::string_view time);
/// "Captions on · Soft rain ·"; the button that changes them stands behind the last dot
std::string settingsLine(std::string_view captions, std::string_view sound);
/// "2:35 left · Captions on · Soft rain · esc ends the breath"
std::string playerStatus(std::string_view left, std::string_view captions, std::string_view sound);
/// "2:35 left · Space resumes · esc ends the breath"
std::string pausedStatus(std::string_view left);
/// "2:35 left · esc ends the breath · ⌃⌘F leaves full screen"
std::string fullScreenStatus(std::string_view left);
/// "Calm breath, 1 minute, 40% done", "Calm breath, 3 minutes, 40% done"
std::string playerLabel(std::string_view style, std::int64_t minutes, std::int64_t percent);
/// "Nice. That’s your first today.", "Nice. That’s 2 today."
std::string breathsToday(std::int64_t count);
/// "Breathe in · 2:35"
std::string floatingLine(std::string_view cue, std::string_view left);
/// "Calm · 3 min", with plain spaces
std::string floatingReady(std::string_view style, std::int64_t minutes);
/// "Breathing, floating orb. Breathe in, 2:35 left"
std::string floatingLabel(std::string_view cue, std::string_view left);

}
