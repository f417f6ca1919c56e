#pragma once
// The icon that the desktop shows for a file, standing in for the shell's icon of a file
// type: a launcher (".desktop" file) shows the icon its Icon= key names, any other file the
// icon of its type (QMimeDatabase) from the freedesktop icon theme, or the type's generic
// icon, or the generic icon of all files. The picture is drawn over white at 32x32 or 16x16;
// a pixel whose alpha is below half is transparent: white in the picture and in the mask.
#include <QIcon>
#include <QImage>
#include <string>

#include "core/surface/surface.h"

namespace vexlo::platform {

// The theme icon of the file at path; a null icon when there is none.
QIcon ShellIconOf(const std::string& path);
// The Icon= value of a launcher's [Desktop Entry] group; empty when it has none.
QString DesktopEntryIcon(const std::string& path);
// icon drawn at side x side (centred when its largest picture is smaller) into image, over
// white, and its mask; false for a null icon.
bool RenderShellIcon(const QIcon& icon, int side, surface::Surface& image, surface::Surface& mask);
// Both of the above for path, 16x16 when small, else 32x32.
bool ShellIcon(const std::string& path, bool small, surface::Surface& image, surface::Surface& mask);

}  // namespace vexlo::platform
