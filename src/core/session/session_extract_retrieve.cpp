// The way back from a thumbnail to an icon: a clicked item is fetched again from its source
// as a picture over white and a mask, and stored in the current slot of the Icons Panel; and
// the Save All buttons of an ANI list, which write every frame as an ICO or BMP file.

#include "core/ani/ani_cursor.h"
#include "core/files/bmp_write.h"
#include "core/files/cursor_file.h"
#include "core/files/ico_write.h"
#include "core/session/icons_list/list_sources.h"
#include "core/session/session.h"
#include "core/session/session_icons_list.h"

namespace vexlo::session {

using surface::BitBlt;
using surface::Rop;

namespace {

constexpr const char* kUnableToRetrieve = "Unable to retrieve this one.";

// The scratch picture cleared to its back color at side x side.
void Ready(Surface& s, int side, Color back) {
    s.SetBackColor(back);
    s.Resize(side, side);
}

}  // namespace

bool IconsListFlows::RetrieveListItem(int item) {
    IconsListSession& list = List();
    const int kind = list.Kind();
    const int i = item - 1;
    if (kind == kListNone || i < 0 || i > list.Last()) return false;
    const std::string path = list.Item(kind == kListAni ? 0 : i).Name;
    const bool valid = list.Item(i).Valid;
    Surface& image = m_s.m_icon.Auto();
    Surface& mask = m_s.m_icon.MaskTemp();
    image.Clear();
    mask.Clear();

    switch (kind) {
        case kListFolder: {
            if (!FileThere(path)) return Refuse(path + " not found.");
            if (!valid) return Refuse(path + kCrLf + kUnableToRetrieve);
            if (!m_s.LoadIconFile(path, true)) return false;
            // The list session keeps the working surfaces empty: the icon waits in its slot.
            if (m_s.m_form.VisibleFrame == Frame::IconsList) {
                m_s.ParkIcon();
                m_s.m_form.Status.Panel[0] = "[Successive Loading Session]";
            }
            return true;
        }
        case kListAni: {
            if (!valid) return Refuse("Unable to extract this icon from animated cursor file");
            Ready(image, 32, kWhite);
            Ready(mask, 32, kBlack);
            ani::AniCursor cursor;
            if (!ani::LoadAniCursor(path, cursor))
                return Refuse("Failed to open the animated cursor file.");
            if (!cursor.Draw(image, 0, 0, ani::CursorDraw::Normal, i))
                return Refuse("Failed to extract this icon from animated cursor file.");
            cursor.Draw(mask, 0, 0, ani::CursorDraw::Mask, i);
            break;
        }
        case kListLarge:
        case kListSmall: {
            if (!valid) return Refuse(kUnableToRetrieve);
            const int side = kind == kListLarge ? 32 : 16;
            Ready(image, side, kWhite);
            Ready(mask, side, kBlack);
            LibraryIcon icon;
            if (!list.Library().IconOfGroup(path, i, kind == kListLarge, icon) ||
                !DrawIconNormal(image, 0, 0, side, icon))
                return Refuse("Failed to extract the clicked one", MsgIcon::Exclamation);
            DrawIconMask(mask, side, icon);
            break;
        }
        case kListFileType:
        case kListDesktop: {
            if (kind == kListDesktop && !FileThere(path)) return Refuse(path + " not found.");
            const std::string refusal = kind == kListDesktop
                                            ? path + kCrLf + "Unable to retieve this one."
                                            : std::string(kUnableToRetrieve);
            if (!valid) return Refuse(refusal);
            const bool small = kind == kListFileType && item == 2;
            if (!m_s.m_host.GetShellIcon(path, small, image, mask)) return Refuse(refusal);
            break;
        }
        default:
            return false;
    }
    const std::string name =
        ExtractedIconName(m_s.m_dirs.ProgramDir, path, kind == kListDesktop ? 0 : item);
    return StoreExtractedIcon(image, mask, name);
}

bool IconsListFlows::StoreExtractedIcon(Surface& image, const Surface& mask,
                                        const std::string& name) {
    const int side = image.Width();
    const int sizeCode = SizeCodeOfSide(side);
    if (sizeCode == 0 || image.Height() != side || mask.Width() != side || mask.Height() != side) {
        Say("Width and height of this image not 16x16, 32x32 or 48x48", MsgIcon::Exclamation);
        return false;
    }
    m_s.SetWorkSize(sizeCode);
    m_s.SetPanelSize(sizeCode);
    // Drawn over white, a transparent pixel is white: the image plane wants it black.
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y)
            if (image.GetPixel(x, y) == kWhite && mask.GetPixel(x, y) == kWhite)
                image.SetPixelV(x, y, kBlack);
    m_s.m_panel.DrawPanel([&](Surface& panelIcon, Surface& panelMask) {
        BitBlt(panelIcon, 0, 0, side, side, mask, 0, 0, Rop::SrcAnd);
        BitBlt(panelIcon, 0, 0, side, side, image, 0, 0, Rop::SrcInvert);
        panelIcon.StorePicture();
        BitBlt(panelMask, 0, 0, side, side, mask, 0, 0, Rop::SrcCopy);
        panelMask.StorePicture();
    });
    IconSlot& s = m_s.Current();
    s.SizeCode = static_cast<std::int16_t>(sizeCode);
    s.Occupied = true;
    s.InEditingArea = false;
    s.SetKindText(kKindExtraction);
    s.ColorCount = files::CountColors(image);
    s.BitsPerPixel = static_cast<std::int16_t>(files::BitsOfColorCount(s.ColorCount));
    s.HasAlpha = false;
    s.FileSpec = name.empty() ? std::string("Extracted") : name;
    s.MultiIconFile = false;
    s.MultiIconIndex = 0;
    s.ClearFileState();
    s.NeverSaved = true;
    m_s.EnsureAlphaArray();
    return true;
}

void IconsListFlows::SaveAllExtractToFiles(int k) {
    m_s.Enter();
    IconsListSession& list = List();
    if (k < 0 || k > 1 || list.Kind() != kListAni) return;
    if (list.Last() < 1) return Say("Failed to obtained count of frames");
    const std::string source = list.Item(0).Name;
    if (source.empty()) return Say("Failed to obtained current file spec");
    const std::string folder = m_s.m_host.GetFolderSpec("", m_s.m_dirs.LastFolder);
    if (folder.empty()) return;
    const std::string base = (folder.back() == '/' ? folder : folder + "/") + FileStem(source);
    const std::string question = "Frames will be saved as " + base + "_1, _2 and _3, etc." +
                                 kCrLf + kCrLf + "Totally " + std::to_string(list.Last() + 1) +
                                 " files.   Proceed?" + kCrLf;
    if (m_s.m_host.MsgBox(question, MsgButtons::YesNo, MsgIcon::Question, kTitle) != MsgAnswer::Yes)
        return;
    ani::AniCursor cursor;
    if (!ani::LoadAniCursor(source, cursor)) return Say("Failed to read the data from current list");

    Surface& image = m_s.m_icon.ImageTemp();
    Surface& mask = m_s.m_icon.MaskTemp();
    Ready(image, 32, image.BackColor());
    Ready(mask, 32, mask.BackColor());
    host::Hourglass hourglass(m_s.m_host);
    m_s.SetProgressVisible(true);
    list.Controls().SaveAllEnabled = false;
    const auto finish = [&] {
        m_s.SetProgressVisible(false);
        list.Controls().SaveAllEnabled = true;
    };
    for (int i = 0; i <= list.Last(); ++i) {
        m_s.ShowProgress(100 * i / list.Last(), true);
        if (!list.Item(i).Valid) continue;
        const std::string file = base + "_" + std::to_string(i + 1) + (k == 1 ? ".bmp" : ".ico");
        if (k == 1) {
            image.Clear();
            if (!cursor.Draw(image, 0, 0, ani::CursorDraw::Normal, i)) {
                list.Item(i).Valid = false;
                continue;
            }
            image.StorePicture();
            files::WriteBmpFile(image, file);
        } else {
            if (!cursor.Draw(image, 0, 0, ani::CursorDraw::Image, i) ||
                !cursor.Draw(mask, 0, 0, ani::CursorDraw::Mask, i)) {
                list.Item(i).Valid = false;
                continue;
            }
            image.StorePicture();
            mask.StorePicture();
            if (!files::WriteIconFile(image, mask, file, {})) {
                finish();
                Say("Failed to save frame " + std::to_string(i + 1));
                return;
            }
        }
        m_s.LetPendingEventsRun();
    }
    finish();
}

}  // namespace vexlo::session
