#pragma once
// The Icons List as the main window sees it: the items of the source (IconsList), its kind,
// the lot on show as the pixels of picIconsList, and the state of the list's controls. The
// list holds names only; a thumbnail or a clicked item is fetched again from its source by
// the session's flows (session_icons_list.h). Nothing here reads a file.
#include <array>
#include <string>
#include <vector>

#include "core/session/icons_list/icons_list_layout.h"
#include "core/session/icons_list/library_icons.h"
#include "core/surface/surface.h"

namespace vexlo::session {

// ListKind: where the items come from; 0 until a list has been made.
enum ListKindCode : int {
    kListNone = 0,
    kListFolder = 1,     // the ICO files of a folder
    kListAni = 2,        // the frames of one ANI file
    kListLarge = 3,      // the large icons of one file
    kListSmall = 4,      // the small icons of one file
    kListFileType = 5,   // the two icons of a file's type
    kListDesktop = 6,    // the files of the desktop folder
};

// lblExtract's caption for a kind, empty for none.
const char* ListKindCaption(int kind);

struct IconsListItem {
    std::string Name;    // the file of this item; for kinds 2 to 5 the one source file
    bool Valid = false;  // the item gave a thumbnail
};

inline constexpr surface::Color kPageMarked = 0xFFFF80;
inline constexpr surface::Color kPageUnmarked = 0xC0C0C0;

// The controls of fraIconsList beside the picture, as the window draws them.
struct IconsListControls {
    std::string Caption;            // lblExtract(0): the kind's caption
    std::string CountLabel;         // lblExtract(1): "Icons  n/m"
    bool CountLabelEnabled = false;
    int LotCount = 0;               // cboPanelNum holds "1" .. LotCount
    int LotIndex = -1;              // its selection from 0, -1 for none
    bool LotListEnabled = false;
    bool NextPanelEnabled = false;  // cmdNextPanel
    bool NextPageEnabled = false;   // cmdNextPage
    std::array<bool, kPagesPerLot> PageEnabled{};  // cmdPageRef(0..3)
    std::array<surface::Color, kPagesPerLot> PageBack{kPageUnmarked, kPageUnmarked,
                                                      kPageUnmarked, kPageUnmarked};
    bool InvokeVisible = false;     // cmdInvokeFolderOrFileDialog
    bool SaveAllVisible = false;    // cmdSaveAllExtractToFiles(0) and (1)
    bool SaveAllEnabled = true;
    // VsrIconsList.
    int ScrollMax = 0;
    int ScrollValue = 0;
    int SmallChange = 1;
    int LargeChange = 1;
};

// The result of the hit test on picIconsList.
struct ListHit {
    int Row = 0;     // 1 to 16
    int Column = 0;  // 1 to 3
    int Item = 0;    // 1-based in IconsList; 0 for a miss
};

class IconsListSession {
public:
    IconsListSession();

    // --- The items -------------------------------------------------------------------------
    int Kind() const { return m_kind; }
    void SetKind(int kind) { m_kind = kind; }
    int Last() const { return m_last; }  // ListLast: the highest index in IconsList
    const std::vector<IconsListItem>& Items() const { return m_items; }
    IconsListItem& Item(int i) { return m_items[static_cast<std::size_t>(i)]; }
    const IconsListItem& Item(int i) const { return m_items[static_cast<std::size_t>(i)]; }
    bool Empty() const { return m_kind == kListNone || m_items.empty() || m_items[0].Name.empty(); }
    // The items replaced: count entries, each of name and Valid, ListLast count - 1.
    void SetItems(std::vector<std::string> names);
    void SetAllItems(const std::string& name, int count);
    // The path that lblForExtendedFrame shows for the list.
    const std::string& Source() const { return m_source; }
    void SetSource(std::string source) { m_source = std::move(source); }

    // --- The lot ---------------------------------------------------------------------------
    // picIconsList: the lot's pixels. Paging moves it; nothing is drawn again.
    const surface::Surface& Picture() const { return m_picture; }
    surface::Surface& Picture() { return m_picture; }
    // The first index of the lot chosen in cboPanelNum (0 with none chosen).
    int LotFirst() const;
    int LotCount() const { return m_lotCount; }  // ListLotCount
    void SetLotCount(int n) { m_lotCount = n; }
    // The lot chosen in cboPanelNum, from 0.
    void SelectLot(int index) { m_controls.LotIndex = index; }

    // --- Controls --------------------------------------------------------------------------
    const IconsListControls& Controls() const { return m_controls; }
    IconsListControls& Controls() { return m_controls; }
    bool Filling() const { return m_filling; }  // ListFilling
    bool Paging() const { return m_paging; }    // ListPaging
    void SetPaging(bool paging) { m_paging = paging; }

    // ResetIconsList: no items but one empty entry, the picture and cboPanelNum cleared.
    void Reset();
    // SetListControls: the count label, the lot list, the lot and page buttons.
    void SetListControls(bool enabled);
    // FillLotNumbers: one entry for each started 48 items (at least one), the first chosen.
    void FillLotNumbers();
    // cboPanelNum emptied.
    void ClearLots();
    // RefreshListScroll: the scroll bar's range and steps.
    void RefreshListScroll();
    // VsrIconsList moved to value (its change and scroll events): unless paging, all page
    // buttons lose their mark.
    void ScrollTo(int value);
    // The page marked by its color; -1 for none.
    int MarkedPage() const;
    // Page k marked, the others not.
    void MarkPage(int k);
    void UnmarkPages();
    // The scroll value that shows page k.
    int PageValue(int k) const { return k * (m_controls.ScrollMax / 3); }
    // After a lot is drawn: the next-lot button if there are more lots, the first p page
    // buttons enabled (p = lot count / 12 rounded up), page 0 marked, the next-page button on.
    void SetPageButtonsForLot();

    // --- The pointer on the picture ---------------------------------------------------------
    // The hit test at (x, y) in picIconsList's pixels; remembered as ListHit*.
    ListHit HitTest(double x, double y);
    const ListHit& LastHit() const { return m_hit; }
    // The selection box around cell (column c, row r): an earlier one is taken off first.
    void DrawSelectionBox(int c, int r);
    bool BoxDrawn() const { return m_boxDrawn; }
    // A fresh picture has no box on it.
    void ForgetSelectionBox() { m_boxDrawn = false; }

    // --- Sources ---------------------------------------------------------------------------
    // Where the large and small icons of library files come from.
    LibraryIconSource& Library() const { return *m_library; }
    void SetLibrary(LibraryIconSource* library) { m_library = library ? library : &DefaultLibraryIcons(); }

private:
    void DrawBox();

    std::vector<IconsListItem> m_items;
    int m_kind = kListNone;
    int m_last = 0;
    int m_lotCount = 0;
    std::string m_source;
    surface::Surface m_picture;
    IconsListControls m_controls;
    bool m_filling = false;
    bool m_paging = false;
    bool m_boxDrawn = false;
    int m_boxX = 0;
    int m_boxY = 0;
    ListHit m_hit;
    LibraryIconSource* m_library;
};

}  // namespace vexlo::session
