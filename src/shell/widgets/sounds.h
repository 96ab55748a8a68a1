#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace tallymere {

/// Plays a wave file ("ball_bounce.wav") out of a folder with the desktop's own player; a beep where there is
/// none. Returns at once.
void Play_Sound(const std::filesystem::path& folder, const std::string& file);

/// Takes the place of playing: tests and the driver record what would sound. An empty function plays again.
void Set_Sound_Hook(std::function<void(const std::string& file)> hook);

}  // namespace tallymere
