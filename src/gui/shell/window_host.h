#pragma once
// The session's services in the main window, on Qt: message boxes through ShowMessageBox, DoEvents,
// the hourglass pointer, the repaint of the Editing Area, and the common dialogs and the
// folder dialog (each replaceable through platform/dialog_handlers.h).
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/host/host.h"

namespace vexlo::gui {

class clsVexloDialog;

class WindowHost : public host::Host {
public:
    WindowHost();
    // Removes the hourglass if it is still shown.
    ~WindowHost() override;
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;

    host::MsgAnswer MsgBox(const std::string& text, host::MsgButtons buttons,
                            host::MsgIcon icon, const std::string& title) override;
    void DoEvents() override;
    // Nested: each "on" needs its "off"; an "off" with none shown is ignored. One wait cursor
    // override is pushed while the depth is above 0.
    void SetHourglass(bool on) override;
    void RefreshDisplay() override;
    // Moves the pointer one pixel towards the screen's origin (away on an axis where it
    // stands at 0) and back, so that the widget under it updates its pointer shape.
    void NudgePointer() override;
    bool ClipboardHasBitmap() override;
    // The clipboard's pictures through platform/clipboard.h.
    host::ClipboardPicture ClipboardPictureInfo() override;
    bool ReadClipboardPicture(int w, int h, surface::Surface& out) override;
    void SetClipboardPicture(const surface::Surface& picture, const surface::Surface& holes) override;
    void ClearClipboard() override;
    // Qt's image readers: BMP, GIF, JPEG, PNG and the others installed.
    bool LoadPicture(const std::string& path, surface::Surface& out) override;
    host::MultiIconAnswer ShowMultiIcon(const std::string& fileSpec, int addMode,
                                         const surface::Surface* iconToAdd,
                                         const std::string& addDescription) override;
    host::AlphaEditorAnswer ShowAlphaEditor(const host::AlphaEditorRequest& request) override;

    std::string ShowOpen(const utilities::OpenRequest& request) override;
    std::string ShowSave(const utilities::SaveRequest& request) override;
    std::int32_t ShowColor(std::int32_t color, bool fullOpen) override;
    bool ShowPrinter(const utilities::PrinterRequest& request) override;
    utilities::PrinterValues Printer() const override;
    // Makes startFolder (when it exists) the current directory and shows frmDirDialog there,
    // not extendable. The folder chosen, or "".
    std::string GetFolderSpec(const std::string& pattern, const std::string& startFolder) override;
    // The desktop's icon of a file (platform/shell_icons.h).
    bool GetShellIcon(const std::string& path, bool small, surface::Surface& image,
                      surface::Surface& mask) override;
    void RefreshIconsList() override;
    // Text through Qt without smoothing (platform/text_drawing.h).
    std::vector<std::string> ScreenFonts() override;
    std::string FontFamilyUsed(const std::string& name) override;
    bool DrawText(const host::TextFont& font, const std::string& text, bool hollow,
                  surface::Color color, surface::Color back, surface::Surface& out) override;

    // Print, the desktop capture, About and Help (window_host_utilities.cpp). Qt's PDF
    // printer is always there, so a printer is always known.
    bool HasPrinter() override { return true; }
    utilities::PrintArea PrinterArea() override;
    bool PrintPicture(const surface::Surface& picture, const utilities::PrintRect& rect) override;
    host::CaptureAnswer CaptureScreen(int side) override;
    void ShowAbout() override;
    bool OpenHelpFile(const std::string& path) override;

    // The next open dialog is not shown: it answers path at once, as for a file dropped on the
    // window. ClearNextOpen drops an answer that no dialog took.
    void AnswerNextOpen(std::string path) { m_nextOpen = std::move(path); }
    void ClearNextOpen() { m_nextOpen.reset(); }

    // The next folder dialog is not shown: it answers folder at once, as for a folder dropped
    // on the window. ClearNextFolder drops an answer that no dialog took.
    void AnswerNextFolder(std::string folder) { m_nextFolder = std::move(folder); }
    void ClearNextFolder() { m_nextFolder.reset(); }
    // What RefreshIconsList calls; set by the Icons List's frame.
    void SetRefreshIconsList(std::function<void()> refresh) { m_refreshList = std::move(refresh); }

    // What RefreshDisplay calls; set by the window that shows the Editing Area.
    void SetRefreshDisplay(std::function<void()> refresh) { m_refresh = std::move(refresh); }
    int HourglassDepth() const { return m_hourglassDepth; }
    // The common dialogs, made on first use and kept for the whole run.
    clsVexloDialog& Dialog();

private:
    int m_hourglassDepth = 0;
    std::function<void()> m_refresh;
    std::unique_ptr<clsVexloDialog> m_dialog;
    std::optional<std::string> m_nextOpen;
    std::optional<std::string> m_nextFolder;
    std::function<void()> m_refreshList;
};

}  // namespace vexlo::gui
