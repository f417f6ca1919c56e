#pragma once
// What the session and the window's entry point share beside the Session class: the
// directories found at start, the window's place, the outcome of the command line, and the
// texts and rules of the start-up (session_lifecycle.cpp), and the names every session file
// uses from the lower layers (session_names.h).
#include <string>

#include "core/session/session_names.h"

namespace vexlo::session {

inline constexpr const char* kNoIconYet = "No icon in Editing Area yet";

// Directories that the entry point finds; TempDir ends with its separator.
struct Directories {
    std::string WindowsDir;
    std::string SystemDir;
    std::string TempDir;
    std::string ProgramDir;
    std::string DesktopFolder;
    std::string SystemFolder;
    std::string LastFolder;
    // Where the settings file lives, ending with its separator; empty: no settings file.
    std::string ConfigDir;
};

struct WindowPos {
    int Left = 0;
    int Top = 0;
};

// What the first activation did with the command line.
enum class CommandLineResult { Empty, NotFound, Ignored, Loaded, LoadFailed };

// The three lines of the refusal of a second instance.
std::string SecondInstanceText();
// The question for a screen below 800x600.
std::string SmallScreenQuestion(int width, int height);
// The command line with every double quote removed.
std::string CommandLinePath(const std::string& commandLine);
// The last three characters upper-cased: "ICO", "CUR", "ANI" or anything else.
std::string UpperExtension3(const std::string& path);

// Where the window goes on a screen of the given size; stored is null when none was stored.
WindowPos PlaceWindow(int screenWidth, int screenHeight, int windowWidth, int windowHeight,
                      const WindowPos* stored);

}  // namespace vexlo::session
