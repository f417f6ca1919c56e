// File Print: the print frame, its controls, and Proceed: the printer question, the picture
// (the composed icon, or the Editing Area with its grid), its place on the paper, one page.
#include <cerrno>

#include "core/session/session.h"

namespace vexlo::session {

void Session::mnuFilePrint() {
    if (NeedsIconInArea()) ShowFrame(Frame::Print);
}

void Session::ClickPrintControl(PrintControl control, int index) {
    Enter();
    m_print.Click(control, index);
}

void Session::PrintProceed() {
    Enter();
    if (m_form.VisibleFrame != Frame::Print || !NeedsIconInArea()) return;
    if (!m_host.HasPrinter()) {
        m_host.MsgBox(std::string(utilities::kNoPrinterFound) + kCrLf, MsgButtons::Ok, MsgIcon::None, kTitle);
        return;
    }
    // No selection, no page numbers, no print-to-file box.
    if (!m_host.ShowPrinter(utilities::PrinterRequest{})) return;
    Surface& temp = m_icon.Temp();
    temp.DropStoredPicture();
    const utilities::PrintChoice choice = m_print.Choice();
    if (choice.Size == utilities::PrintSize::OriginalIcon) {
        MakeSameSize(m_icon.Composed(), temp);
        BitBlt(temp, 0, 0, temp.Width(), temp.Height(), m_icon.Composed(), 0, 0, surface::Rop::SrcCopy);
    } else {
        // A 16x16 icon fills the top left quarter of the Editing Area.
        const Surface& disp = m_view.Disp();
        const int quarter = Current().SizeCode == 1 ? 2 : 1;
        ResizeSurface(temp, disp.Width() / quarter, disp.Height() / quarter);
        BitBlt(temp, 0, 0, temp.Width(), temp.Height(), disp, 0, 0, surface::Rop::SrcCopy);
    }
    temp.StorePicture();
    LetPendingEventsRun();
    const utilities::PrintPlacement placed =
        utilities::PlacePicture(choice, temp.Width(), temp.Height(), m_host.PrinterArea());
    if (placed.Message.empty() && !m_host.PrintPicture(temp, placed.Rect))
        ReportError("cmdPrintProceed", EIO, "The page could not be printed.");
    temp.DropStoredPicture();
    temp.Clear();
    // The frame stays up; a placement that doesn't fit stops the job before the page.
    if (!placed.Message.empty())
        m_host.MsgBox(placed.Message, MsgButtons::Ok, MsgIcon::None, kTitle);
}

}  // namespace vexlo::session
