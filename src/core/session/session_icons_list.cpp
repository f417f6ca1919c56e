// The lot on show: LoadIconsLot draws up to 48 thumbnails from the list's source into
// picIconsList, one at a time, letting pending events run after each so that the window shows
// the lot as it grows and never waits on more than one thumbnail.
#include <algorithm>
#include <exception>

#include "core/ani/ani_cursor.h"
#include "core/files/ico_read.h"
#include "core/session/icons_list/list_sources.h"
#include "core/session/session.h"
#include "core/session/session_icons_list.h"

namespace vexlo::session {

using surface::BitBlt;
using surface::Rop;

namespace {

// The labels' font.
const host::TextFont kLabelFont{"Arial", 7, false, false};

}  // namespace

IconsListFlows Session::Extraction() { return IconsListFlows(*this); }

const IconsListSession& IconsListFlows::State() const { return m_s.m_list; }

IconsListSession& IconsListFlows::List() { return m_s.m_list; }

void IconsListFlows::SetLibraryIcons(LibraryIconSource* library) { List().SetLibrary(library); }

void IconsListFlows::Say(const std::string& text, host::MsgIcon icon) {
    m_s.m_host.MsgBox(text, host::MsgButtons::Ok, icon, kTitle);
}

bool IconsListFlows::Refuse(const std::string& text, host::MsgIcon icon) {
    Say(text, icon);
    return false;
}

void IconsListFlows::RefreshList() { m_s.m_host.RefreshIconsList(); }

int IconsListFlows::TextHeight() {
    Surface x;
    if (!m_s.m_host.DrawText(kLabelFont, "X", false, kBlack, kWhite, x)) return 0;
    return std::max(x.Height() - 2, 0);
}

void IconsListFlows::PrintLabel(const std::string& text, int x, int y) {
    Surface label;
    if (!m_s.m_host.DrawText(kLabelFont, text, false, kBlack, kWhite, label)) return;
    BitBlt(List().Picture(), x, y, label.Width() - 2, label.Height() - 2, label, 1, 1, Rop::SrcCopy);
}

void IconsListFlows::LoadIconsLot() {
    IconsListSession& list = List();
    const int kind = list.Kind();
    if (kind < kListFolder || kind > kListDesktop) return;
    const int first = list.LotFirst();
    const int last = list.Last();
    const int inLot = std::min(last - first + 1, kLotSize);
    list.SetLotCount(inLot);
    list.Controls().CountLabel = "Icons  " + std::to_string(inLot) + "/" + std::to_string(last + 1);
    list.Picture().Clear();
    list.ForgetSelectionBox();
    list.ScrollTo(0);

    // One cursor serves the whole lot of an ANI file.
    ani::AniCursor cursor;
    if (kind == kListAni || kind == kListLarge || kind == kListSmall) {
        const std::string& source = list.Item(0).Name;
        if (!FileThere(source)) {
            Say(source + " missing");
            return;
        }
        if (kind == kListAni && !ani::LoadAniCursor(source, cursor)) return;
    }

    const int textHeight = TextHeight();
    Surface& autoPicture = m_s.m_icon.Auto();
    const Color autoBack = autoPicture.BackColor();
    autoPicture.SetBackColor(list.Picture().BackColor());
    {
        host::Hourglass hourglass(m_s.m_host);
        m_s.SetProgressVisible(true);
        int c = 1, r = 1;
        for (int i = first; i <= last && i - first < kLotSize; ++i) {
            const double percent = (i - first + 1) * 100.0 / std::min(last - first + 1, kLotSize);
            m_s.ShowProgress(RoundPixel(percent), true);
            const ListCell cell = CellAt(c, r);
            const int lx = LabelX(cell), ly = LabelY(cell);
            const int ix = IconX(cell), iy = IconY(cell, textHeight);
            bool valid = false;
            try {
                autoPicture.Clear();
                const std::string& name = list.Item(i).Name;
                if (kind == kListFolder || kind == kListDesktop)
                    PrintLabel(StemLabel(name), lx, kind == kListDesktop ? ly + 1 : ly);
                else if (kind != kListFileType)
                    PrintLabel(NumberLabel(i), lx, ly);
                valid = DrawThumbnail(kind, i, ix, iy, &cursor);
            } catch (const std::exception&) {
                valid = false;  // one bad item never stops a lot
            }
            list.Item(i).Valid = valid;
            if (!valid) BitBlt(list.Picture(), ix, iy, 32, 32, Rop::Blackness);
            RefreshList();
            if (++c > kListColumns) {
                c = 1;
                ++r;
            }
            m_s.LetPendingEventsRun();
        }
        m_s.SetProgressVisible(false);
    }
    autoPicture.SetBackColor(autoBack);
    RefreshList();
    list.SetPageButtonsForLot();
    list.ForgetSelectionBox();
}

bool IconsListFlows::DrawThumbnail(int kind, int i, int x, int y, ani::AniCursor* cursor) {
    IconsListSession& list = List();
    Surface& picture = list.Picture();
    Surface& autoPicture = m_s.m_icon.Auto();
    const std::string& name = list.Item(i).Name;
    switch (kind) {
        case kListFolder: {
            if (!files::ReadIconToPreview(name, m_s.m_icon.ImageTemp(), m_s.m_icon.MaskTemp(), autoPicture))
                return false;
            return BitBlt(picture, x, y, autoPicture.Width(), autoPicture.Height(), autoPicture, 0, 0,
                          Rop::SrcCopy);
        }
        case kListAni: {
            if (autoPicture.Width() != 32 || autoPicture.Height() != 32) autoPicture.Resize(32, 32);
            if (!cursor->Draw(autoPicture, 0, 0, ani::CursorDraw::Normal, i)) return false;
            return BitBlt(picture, x, y, 32, 32, autoPicture, 0, 0, Rop::SrcCopy);
        }
        case kListLarge:
        case kListSmall: {
            LibraryIcon icon;
            if (!list.Library().IconOfGroup(name, i, kind == kListLarge, icon)) return false;
            return DrawIconNormal(picture, x, y, kind == kListLarge ? 32 : 16, icon);
        }
        case kListFileType:
        case kListDesktop: {
            Surface mask;
            const bool small = kind == kListFileType && i == 1;
            if (!m_s.m_host.GetShellIcon(name, small, autoPicture, mask)) return false;
            const int side = autoPicture.Width();
            if (autoPicture.Height() != side) return false;
            if (kind == kListDesktop ? side != 32 : side != 16 && side != 32) return false;
            return BitBlt(picture, x, y, side, side, autoPicture, 0, 0, Rop::SrcCopy);
        }
        default:
            return false;
    }
}

}  // namespace vexlo::session
