// Moving through the Icons List and clicking into it: the lot list, the next-lot and page
// buttons, the scroll bar, and a release of the pointer on a thumbnail. Paging only moves the
// picture; a new lot is drawn again from its source.
#include <algorithm>

#include "core/session/icons_list/list_sources.h"
#include "core/session/session.h"
#include "core/session/session_icons_list.h"

namespace vexlo::session {

void IconsListFlows::ClickLotNumber(int index) {
    m_s.Enter();
    IconsListSession& list = List();
    if (list.Kind() == kListNone || list.Filling()) return;
    if (index < 0 || index >= list.Controls().LotCount) return;
    list.SelectLot(index);
    LoadIconsLot();
}

void IconsListFlows::ClickNextPanel() {
    m_s.Enter();
    NextPanel();
}

void IconsListFlows::NextPanel() {
    IconsListSession& list = List();
    const int lots = list.Controls().LotCount;
    if (lots < 1 || list.Kind() == kListNone) return;
    list.SetPaging(true);
    list.SelectLot((list.Controls().LotIndex + 1) % lots);
    LoadIconsLot();
    list.SetPaging(false);
}

void IconsListFlows::ClickNextPage() {
    m_s.Enter();
    IconsListSession& list = List();
    if (list.Controls().LotCount < 1) return;
    list.SetPaging(true);
    // With no page marked (the scroll bar was dragged) it goes on as from page 0.
    const int m = std::max(list.MarkedPage(), 0);
    const auto markFirst = [&list] {
        list.MarkPage(0);
        list.ScrollTo(0);
    };
    if (m == kPagesPerLot - 1) {
        if (list.Controls().NextPanelEnabled)
            NextPanel();
        else
            markFirst();
    } else {
        list.UnmarkPages();
        if (list.Controls().PageEnabled[static_cast<std::size_t>(m + 1)]) {
            list.MarkPage(m + 1);
            list.ScrollTo(list.PageValue(m + 1));
        } else if (list.Controls().NextPanelEnabled) {
            NextPanel();
        } else {
            markFirst();
        }
    }
    RefreshList();
    list.SetPaging(false);
}

void IconsListFlows::ClickPageRef(int k) {
    m_s.Enter();
    IconsListSession& list = List();
    if (k < 0 || k >= kPagesPerLot || list.Controls().LotCount < 1) return;
    list.MarkPage(k);
    list.SetPaging(true);
    list.ScrollTo(list.PageValue(k));
    list.SetPaging(false);
    RefreshList();
}

void IconsListFlows::ScrollList(int value) {
    m_s.Enter();
    List().ScrollTo(value);
}

void IconsListFlows::ReleaseOnList(bool rightButton, double x, double y) {
    m_s.Enter();
    IconsListSession& list = List();
    const Surface& picture = list.Picture();
    if (x < 0 || y < 0 || x >= picture.Width() || y >= picture.Height()) return;
    if (list.Controls().LotCount < 1) {
        list.Picture().Clear();
        list.ForgetSelectionBox();
        return;
    }
    const ListHit hit = list.HitTest(x, y);
    if (hit.Item == 0) return;
    const IconsListItem& item = list.Item(hit.Item - 1);
    if (!item.Valid) {
        Say(std::string("This one is an invalid icon file or of") + kCrLf +
            "a size not 16x16, 32x32 or 48x48.");
        return;
    }
    if (!FileThere(item.Name)) {
        Say(item.Name + " file missing." + kCrLf, MsgIcon::Exclamation);
        return;
    }
    list.DrawSelectionBox(hit.Column, hit.Row);
    RefreshList();
    if (!RetrieveListItem(hit.Item)) return;
    if (!rightButton) return;
    m_s.ShowFrame(Frame::ColorsPanel);
    m_s.LetPendingEventsRun();
    m_s.RefreshPaletteMenu();
}

}  // namespace vexlo::session
