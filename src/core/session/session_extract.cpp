// The sources of the Icons List: the Extract menu with its guards, the dialog that asks for
// each kind of source, the frame made ready for it, and the list makers that fill the list.
#include <array>

#include "core/ani/ani_load.h"
#include "core/session/icons_list/list_sources.h"
#include "core/session/session.h"
#include "core/session/session_icons_list.h"
#include "core/session/session_search_exe.h"

namespace vexlo::session {

namespace {

// The kind that each of mnuExtractSub(0..4) starts, and its name in the session message.
constexpr std::array<int, 5> kKindOfEntry = {kListAni, kListLarge, kListSmall, kListFileType,
                                             kListDesktop};
constexpr std::array<const char*, 5> kEntryName = {
    "Extract From ANI", "Extract Large Icons From DLL or Similar Resource",
    "Extract Small Icons From DLL or Similar Resource",
    "Extract Icons Associated With Any File Type", "Extract Desktop Icons"};

}  // namespace

void IconsListFlows::ClickExtractSub(int k) {
    m_s.Enter();
    // Entry 5, the search of the EXE files of a folder, has a frame and flow of its own once
    // the guards have passed.
    if (k < 0 || k > 5) return;
    const bool listUp = m_s.m_form.VisibleFrame == Frame::IconsList;
    if (listUp) {
        // The parked icon's status goes; the session's name stays in its place.
        m_s.ParkIcon();
        m_s.m_form.Status.Panel[0] = "[Successive Loading Session]";
    }
    const std::size_t e = static_cast<std::size_t>(k);
    if (listUp && k <= 4 && kKindOfEntry[e] == List().Kind()) {
        Say(std::string("You are already in \"") + kEntryName[e] + "\" session." + kCrLf);
        return;
    }
    if (!listUp && !m_s.AskTerminateAniSession(false)) return;
    const IconSlot& slot = m_s.Current();
    if (slot.InEditingArea && (slot.Changed || slot.NeverSaved) && !m_s.AskSaveCurrent()) return;
    if (k == 5) return m_s.SearchExe().ExtractFromExeFolder();

    const int kind = kKindOfEntry[e];
    if (kind == kListDesktop) {
        if (m_s.m_dirs.DesktopFolder.empty()) {
            Say("No desktop shortcut icon files found");
            return;
        }
        StartSource(kind, m_s.m_dirs.DesktopFolder);
        return;
    }
    const std::string source = AskSource(kind);
    if (!source.empty()) StartSource(kind, source);
}

void IconsListFlows::OpenFolderList() {
    const std::string folder = AskSource(kListFolder);
    if (!folder.empty()) StartSource(kListFolder, folder);
}

std::string IconsListFlows::AskSource(int kind) {
    if (kind == kListFolder) return m_s.m_host.GetFolderSpec("*.ico", m_s.m_dirs.LastFolder);
    utilities::OpenRequest request;
    switch (kind) {
        case kListAni:
            request.Filter = "(*.ani)|*.ani|";
            request.DefaultExt = "ani";
            break;
        case kListLarge:
        case kListSmall:
            request.Filter = "(*.dll)|*.dll|(*.exe)|*.exe|(*.res)|*.res|(*.*)|*.*|";
            request.DefaultExt = "dll";
            request.InitDir = m_s.m_dirs.SystemFolder;
            request.FileName = "Shell32.dll";
            break;
        case kListFileType:
            request.Filter = "*.exe|*.exe|(*.*)|*.*|";
            request.DefaultExt = "exe";
            break;
        default:
            return {};
    }
    return m_s.m_host.ShowOpen(request);
}

void IconsListFlows::StartSource(int kind, const std::string& source) {
    IconsListSession& list = List();
    list.Controls().Caption = ListKindCaption(kind);
    m_s.ShowFrame(Frame::IconsList);
    list.SetListControls(false);
    list.Controls().InvokeVisible = kind != kListDesktop;
    list.Controls().SaveAllVisible = kind == kListAni;
    list.Picture().Clear();
    list.ForgetSelectionBox();
    list.ClearLots();
    RunListMaker(kind, source);
}

void IconsListFlows::RunListMaker(int kind, const std::string& source) {
    switch (kind) {
        case kListFolder: ListFromFolder(source); break;
        case kListAni: ListFromAni(source); break;
        case kListLarge: ListFromLibrary(source, true); break;
        case kListSmall: ListFromLibrary(source, false); break;
        case kListFileType: ListFromFileType(source); break;
        case kListDesktop: ListFromDesktop(source); break;
        default: break;
    }
}

void IconsListFlows::InvokeFolderOrFileDialog() {
    m_s.Enter();
    const int kind = List().Kind();
    if (kind < kListFolder || kind > kListFileType) return;
    const std::string source = AskSource(kind);
    if (!source.empty()) RunListMaker(kind, source);
}

void IconsListFlows::ListFromFolder(const std::string& folder) {
    IconsListSession& list = List();
    m_s.m_dirs.LastFolder = folder;
    list.Reset();
    std::error_code ec;
    std::vector<std::string> files;
    {
        host::Hourglass hourglass(m_s.m_host);
        files = ListFolderFiles(folder, "*.ico", ec);
    }
    if (ec) {
        m_s.ReportError("ListFromFolder", ec.value(), ec.message());
        return;
    }
    list.SetKind(kListFolder);
    if (files.empty()) {
        list.SetListControls(false);
        list.Controls().CountLabel = "Icons  0 / 0";
        list.SetSource(folder);
        return;
    }
    list.SetItems(std::move(files));
    list.FillLotNumbers();
    LoadIconsLot();
    list.SetSource(folder);
    m_s.m_form.Status.ForExtendedFrame = folder + " ";
}

void IconsListFlows::ListFromAni(const std::string& path) {
    const int count = ani::CountAniFrames(path);
    if (count <= 0) {
        Say("Failed to read this animated cursor file", MsgIcon::Exclamation);
        return;
    }
    IconsListSession& list = List();
    list.Reset();
    list.SetAllItems(path, count);
    list.FillLotNumbers();
    list.SetKind(kListAni);
    LoadIconsLot();
    list.SetSource(path);
    m_s.m_form.Status.ForExtendedFrame = path;
}

void IconsListFlows::ListFromLibrary(const std::string& path, bool large) {
    IconsListSession& list = List();
    int count = 0;
    {
        host::Hourglass hourglass(m_s.m_host);
        count = list.Library().CountIconGroups(path);
    }
    list.SetKind(large ? kListLarge : kListSmall);
    if (count <= 0) {
        Say(path + kCrLf + "No icon in this file");
        return;
    }
    list.SetAllItems(path, count);
    list.FillLotNumbers();
    LoadIconsLot();
    list.SetSource(path);
    m_s.m_form.Status.ForExtendedFrame = path;
}

void IconsListFlows::ListFromFileType(const std::string& path) {
    IconsListSession& list = List();
    list.SetAllItems(path, 2);
    // Asked once before the lot, as the thumbnails ask again.
    Surface mask;
    m_s.m_host.GetShellIcon(path, false, m_s.m_icon.Auto(), mask);
    m_s.m_host.GetShellIcon(path, true, m_s.m_icon.Auto(), mask);
    list.SetListControls(true);
    list.Controls().LotCount = 1;
    list.SelectLot(0);
    list.SetKind(kListFileType);
    LoadIconsLot();
    list.SetSource(path);
    m_s.m_form.Status.ForExtendedFrame = path;
}

void IconsListFlows::ListFromDesktop(const std::string& folder) {
    IconsListSession& list = List();
    list.Reset();
    std::error_code ec;
    std::vector<std::string> files = ListFolderFiles(folder, "*", ec);
    if (ec) {
        m_s.ReportError("ListFromDesktop", ec.value(), ec.message());
        return;
    }
    if (files.empty()) {
        Say("No icons found");
        m_s.ShowFrame(Frame::ColorsPanel);
        return;
    }
    list.SetItems(std::move(files));
    list.FillLotNumbers();
    list.SetKind(kListDesktop);
    LoadIconsLot();
    list.SetSource(folder);
    m_s.m_form.Status.ForExtendedFrame = folder;
}

}  // namespace vexlo::session
