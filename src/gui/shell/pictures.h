#pragma once
// The pictures of the toolbar's and the Toolbox's buttons, by their resource paths, and the
// pointer shapes of the Editing Area that are made from them. Every name here must stand in
// resources/toolbar.qrc or resources/toolbox.qrc.
#include <QCursor>
#include <QIcon>
#include <QString>

#include "core/tools/tool_state.h"

namespace vexlo::gui {

// The picture of cmdTB(k), k in 0..25; empty outside.
QString ToolbarPicturePath(int k);
// The picture of a tool of the Toolbox (Paint .. Shift Directions); empty for None.
QString ToolPicturePath(tools::Tool tool);
inline const QString kColorPickerPicturePath = QStringLiteral(":/toolbox/tool_picker.png");
inline const QString kClearAllToolsPicturePath = QStringLiteral(":/toolbox/tool_clear.png");

// The picture that a custom pointer shape shows: the Color Picker's or a tool's.
QString PointerPicturePath(const tools::Pointer& pointer);
// A custom pointer from its picture at twice its size, with the hot spot on the bottom left
// pixel where the pictures draw the tool's tip; the pointing hand if the picture is missing.
QCursor CustomPointer(const tools::Pointer& pointer);

}  // namespace vexlo::gui
