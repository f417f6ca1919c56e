#pragma once
// The Icons List's flows: the sources that fill the list (the Extract menu and File Open's
// folder entry), the lot drawn from its source, paging, the pointer on the list, and the way
// back from a clicked thumbnail to an icon in the current slot. They work on the session's
// parts through Session::Extraction(), a handle with no state of its own; the list's state is
// IconsListSession (icons_list/).
//
//   session_extract.cpp            the Extract menu, the source dialogs, the list makers
//   session_icons_list.cpp         LoadIconsLot and the thumbnails of each kind
//   session_icons_list_pointer.cpp lots, pages, the scroll bar, a click into the list
//   session_extract_retrieve.cpp   RetrieveListItem, StoreExtractedIcon, the ANI Save All
#include <string>

#include "core/host/host.h"
#include "core/session/icons_list/icons_list_session.h"
#include "core/surface/surface.h"

namespace vexlo::ani {
class AniCursor;
}

namespace vexlo::session {

class Session;

class IconsListFlows {
public:
    explicit IconsListFlows(Session& session) : m_s(session) {}

    const IconsListSession& State() const;
    // Where the large and small icons of library files come from (null: the default).
    void SetLibraryIcons(LibraryIconSource* library);

    // --- Entries from the window -------------------------------------------------------------
    void ClickExtractSub(int k);                       // mnuExtractSub(k)
    void InvokeFolderOrFileDialog();                   // cmdInvokeFolderOrFileDialog
    void SaveAllExtractToFiles(int k);                 // cmdSaveAllExtractToFiles(k)
    void ClickLotNumber(int index);                    // cboPanelNum, from 0
    void ClickNextPanel();                             // cmdNextPanel
    void ClickNextPage();                              // cmdNextPage
    void ClickPageRef(int k);                          // cmdPageRef(k)
    void ScrollList(int value);                        // VsrIconsList's change and scroll
    void ReleaseOnList(bool rightButton, double x, double y);  // on picIconsList, its pixels

    // --- The operations behind them ------------------------------------------------------------
    // File Open's entry 1 once its guards have passed: the folder dialog and the folder's list.
    void OpenFolderList();
    void ListFromFolder(const std::string& folder);
    void ListFromAni(const std::string& path);
    void ListFromLibrary(const std::string& path, bool large);
    void ListFromFileType(const std::string& path);
    void ListFromDesktop(const std::string& folder);
    // Draws the lot chosen in cboPanelNum, a thumbnail at a time with pending events let run
    // after each.
    void LoadIconsLot();
    // Item from 1 fetched again from its source into the current slot; true if it was.
    bool RetrieveListItem(int item);
    // Two pictures drawn over white (image) and as a mask into the current slot as a stored
    // icon; image is changed on the way (white under a white mask becomes black).
    bool StoreExtractedIcon(surface::Surface& image, const surface::Surface& mask,
                            const std::string& name);

private:
    IconsListSession& List();
    // The dialog that asks for a source of the kind; "" when cancelled.
    std::string AskSource(int kind);
    // The frame shown for the kind, then its list maker.
    void StartSource(int kind, const std::string& source);
    void RunListMaker(int kind, const std::string& source);
    void NextPanel();
    // One thumbnail of the lot at (x, y); false when the item gave none.
    bool DrawThumbnail(int kind, int i, int x, int y, ani::AniCursor* cursor);
    void PrintLabel(const std::string& text, int x, int y);
    int TextHeight();
    void Say(const std::string& text, host::MsgIcon icon = host::MsgIcon::None);
    // Says text and answers false.
    bool Refuse(const std::string& text, host::MsgIcon icon = host::MsgIcon::None);
    void RefreshList();

    Session& m_s;
};

}  // namespace vexlo::session
