#include "gui/shell/pictures.h"

#include <QPixmap>
#include <array>

#include "core/session/menu_tree.h"

namespace vexlo::gui {

namespace {

// The file names under :/toolbar, for cmdTB(0..25).
constexpr std::array<const char*, session::kToolbarCommands> kToolbarPictures = {
    "tb_00_new_32",       "tb_01_new_16",          "tb_02_open",          "tb_03_folder_icons",
    "tb_04_save",         "tb_05_save_as",         "tb_06_undo",          "tb_07_redo",
    "tb_08_cut_copy",     "tb_09_cut",             "tb_10_copy",          "tb_11_paste",
    "tb_12_paste_opaque", "tb_13_flip_horizontal", "tb_14_flip_vertical", "tb_15_rotate_left",
    "tb_16_rotate_right", "tb_17_text",            "tb_18_buttonize",     "tb_19_adjust_color",
    "tb_20_gradient",     "tb_21_properties",      "tb_22_extract_ani",   "tb_23_capture",
    "tb_24_ani_cursor",   "tb_25_alpha"};

// The file names under :/toolbox, in the order of tools::Tool.
constexpr std::array<const char*, tools::kToolCount> kToolPictures = {
    "tool_00_paint",     "tool_01_erase",       "tool_02_fill",
    "tool_03_replace",   "tool_04_spotlight",   "tool_05_line",
    "tool_06_broken_line", "tool_07_rectangle", "tool_08_filled_rectangle",
    "tool_09_oval",      "tool_10_filled_oval", "tool_11_region",
    "tool_12_shift"};

}  // namespace

QString ToolbarPicturePath(int k) {
    if (k < 0 || k >= static_cast<int>(kToolbarPictures.size())) return {};
    return QString(":/toolbar/%1.png").arg(kToolbarPictures[static_cast<std::size_t>(k)]);
}

QString ToolPicturePath(tools::Tool tool) {
    const int i = static_cast<int>(tool);
    if (i < 0 || i >= tools::kToolCount) return {};
    return QString(":/toolbox/%1.png").arg(kToolPictures[static_cast<std::size_t>(i)]);
}

QString PointerPicturePath(const tools::Pointer& pointer) {
    return pointer.ColorPickerPicture ? kColorPickerPicturePath : ToolPicturePath(pointer.Picture);
}

QCursor CustomPointer(const tools::Pointer& pointer) {
    const QPixmap picture(PointerPicturePath(pointer));
    if (picture.isNull()) return QCursor(Qt::PointingHandCursor);
    const QPixmap doubled = picture.scaled(picture.size() * 2);
    return QCursor(doubled, 0, doubled.height() - 1);
}

}  // namespace vexlo::gui
