#pragma once
// Facts about the machine and the folders that stand in for the Windows ones. Paths use '/'.
#include <cstdint>
#include <string>

namespace vexlo::platform {

struct ScreenPixels {
    int width = 0;
    int height = 0;
};

// The primary screen's size in device pixels (GetDeviceCaps HORZRES, VERTRES); 0 x 0 without
// a screen.
ScreenPixels ScreenSize();
// Bits per pixel of the primary screen (GetDeviceCaps BITSPIXEL); 0 without a screen.
int ScreenDepth();

// Physical memory in KB, all and free (GlobalMemoryStatus), from sysinfo; 0 if unknown.
std::uint64_t PhysicalMemoryKb();
std::uint64_t PhysicalMemoryBytes();
// Logical dots per inch across of the primary screen; 96 without a screen.
int ScreenLogicalDpi();
std::uint64_t FreePhysicalMemoryKb();

// GetWindowsDirectory: "/etc", where the system keeps its settings.
std::string WindowsDirectory();
// GetSystemDirectory: "/usr/lib", where the system's libraries live.
std::string SystemDirectory();
// GetTempPath: QDir::tempPath() with a trailing "/".
std::string TempDirectory();
// The XDG desktop folder, without a trailing "/"; empty when it does not exist.
std::string DesktopDirectory();
// Where the settings file lives: "vexlo/" in the XDG config folder, with a trailing "/"; empty
// when the platform names no config folder.
std::string ConfigDirectory();
// App.Path: the folder of the program's executable, without a trailing "/".
std::string ProgramDirectory();

}  // namespace vexlo::platform
