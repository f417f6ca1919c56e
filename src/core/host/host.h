#pragma once
// The services that the session needs from the platform it runs on. The window layer
// implements them on Qt; tests give a scripted fake that answers each question in turn and
// records its text, so that no flow ever waits on a real dialog.
#include <cstdint>
#include <string>
#include <vector>

#include "core/alpha/alpha_array.h"
#include "core/surface/surface.h"
#include "core/utilities/dialog_requests.h"
#include "core/utilities/print_layout.h"

namespace vexlo::host {

// Buttons of a message box, as the MsgBox styles vbOKOnly, vbOKCancel, vbYesNoCancel, vbYesNo.
enum class MsgButtons { Ok, OkCancel, YesNoCancel, YesNo };
// Icon of a message box: none, vbCritical, vbQuestion, vbExclamation, vbInformation.
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
// The button the user chose. A box closed without a choice answers Cancel where there is a
// Cancel button, else No where there is a No, else Ok.
enum class MsgAnswer { Ok, Cancel, Yes, No };

// The title every message of the program carries.
inline constexpr const char* kTitle = "Vexlo";
// A line break inside a message text.
inline constexpr const char* kCrLf = "\r\n";

// The answer of frmVexloMultiIcon: in its Edit face the chosen image's planes and
// "index/size/colors/bits", in its Add face "1" or "2"; an empty choice when cancelled.
struct MultiIconAnswer {
    std::string Choice;
    surface::Surface Image;
    surface::Surface Mask;
    alpha::AlphaArray Alpha;
};

// What frmVexloAlpha is shown over: the main window's pictures, and IncomingAlpha, which the
// dialog edits in place.
struct AlphaEditorRequest {
    const surface::Surface* PicIcon = nullptr;
    const surface::Surface* Image = nullptr;
    const surface::Surface* Mask = nullptr;
    const surface::Surface* Grid = nullptr;
    surface::Color GridColor = 0;
    alpha::AlphaArray* Incoming = nullptr;
};
// Its answer: AlphaResult ("" or "1".."4") and AlphaFileSpec; for "1" the two planes that
// replace the main window's.
struct AlphaEditorAnswer {
    std::string Result;
    std::string FileSpec;
    surface::Surface Image;
    surface::Surface Mask;
};

// The clipboard's picture as known without reading its pixels.
struct ClipboardPicture {
    bool Present = false;   // the clipboard holds a picture
    int Width = 0;          // 0 when its size can't be read
    int Height = 0;
    bool TooLarge = false;  // larger than the platform reads at all
};

// A font as the Text effect asks for it: a family, a size in points, bold and italic.
struct TextFont {
    std::string Name;
    int Size = 8;
    bool Bold = false;
    bool Italic = false;
};

// What the desktop capture answers: the square taken, a capture left without one, or a display
// that doesn't let the screen be read.
enum class CaptureOutcome { Cancelled, Taken, Unavailable };
struct CaptureAnswer {
    CaptureOutcome Outcome = CaptureOutcome::Cancelled;
    surface::Surface Picture;  // side x side when taken
};

class Host {
public:
    virtual ~Host() = default;

    // Shows a message; the text uses CR LF for its line breaks.
    virtual MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                             const std::string& title) = 0;
    // Lets the platform run pending events (DoEvents).
    virtual void DoEvents() = 0;
    // Shows or removes the hourglass pointer.
    virtual void SetHourglass(bool on) = 0;
    // The Editing Area's picture changed: repaint it on the screen.
    virtual void RefreshDisplay() = 0;

    // frmVexloMultiIcon over fileSpec: addMode 0 chooses an image, 1 asks where to add
    // iconToAdd (described by addDescription).
    virtual MultiIconAnswer ShowMultiIcon(const std::string& /*fileSpec*/, int /*addMode*/,
                                          const surface::Surface* /*iconToAdd*/,
                                          const std::string& /*addDescription*/) {
        return {};
    }
    // frmVexloAlpha, modal; without a platform it closes at once and answers nothing.
    virtual AlphaEditorAnswer ShowAlphaEditor(const AlphaEditorRequest& /*request*/) { return {}; }
    // Loads a picture file (BMP, GIF, JPEG, PNG, ...) into out at its own size; false when the
    // platform can't read it.
    virtual bool LoadPicture(const std::string& /*path*/, surface::Surface& /*out*/) { return false; }

    // Moves the pointer one pixel and back, so that its shape is brought up to date.
    virtual void NudgePointer() {}

    // Whether the clipboard holds a bitmap.
    virtual bool ClipboardHasBitmap() { return false; }
    // The clipboard's picture by its size; no pixel of it is read yet.
    virtual ClipboardPicture ClipboardPictureInfo() { return {}; }
    // The top left w x h pixels of the clipboard's picture into out, its transparent pixels in
    // the transparent gray 0xC0C0C0. False when there is no picture or it can't be read.
    virtual bool ReadClipboardPicture(int /*w*/, int /*h*/, surface::Surface& /*out*/) { return false; }
    // Empties the clipboard and puts the picture on it. The pixels that are white in holes (of
    // the picture's size) go out transparent where the format carries transparency.
    virtual void SetClipboardPicture(const surface::Surface& /*picture*/,
                                     const surface::Surface& /*holes*/) {}
    // Empties the clipboard.
    virtual void ClearClipboard() {}

    // The common dialogs (clsVexloDialog) and the folder dialog. A cancelled dialog answers
    // an empty string, -1 or false, and nothing else. Without a platform, every dialog is
    // cancelled.
    virtual std::string ShowOpen(const utilities::OpenRequest&) { return {}; }
    virtual std::string ShowSave(const utilities::SaveRequest&) { return {}; }
    // The COLORREF chosen, starting from color; -1 when cancelled.
    virtual std::int32_t ShowColor(std::int32_t /*color*/, bool /*fullOpen*/) { return -1; }
    virtual bool ShowPrinter(const utilities::PrinterRequest&) { return false; }
    virtual utilities::PrinterValues Printer() const { return {}; }
    // GetFolderSpec: the folder chosen in frmDirDialog starting at startFolder, showing
    // pattern (empty for none); empty when cancelled.
    virtual std::string GetFolderSpec(const std::string& /*pattern*/,
                                      const std::string& /*startFolder*/) {
        return {};
    }

    // The main window hidden, frmVexloCapture over a frozen picture of the screen with a box
    // of side x side pixels, the main window shown again. Without a platform: cancelled.
    virtual CaptureAnswer CaptureScreen(int /*side*/) { return {}; }
    // Printing: whether the platform knows any printer; the printable area of the printer
    // that the last confirmed print dialog set up, with its four values applied; one page
    // with picture drawn at rect, each pixel a block of its exact color (false when the page
    // couldn't be printed).
    virtual bool HasPrinter() { return false; }
    virtual utilities::PrintArea PrinterArea() { return {}; }
    virtual bool PrintPicture(const surface::Surface& /*picture*/, const utilities::PrintRect& /*rect*/) {
        return false;
    }
    // frmVexloAbout, modal.
    virtual void ShowAbout() {}
    // The help file opened in the user's browser; false when nothing could be started.
    virtual bool OpenHelpFile(const std::string& /*path*/) { return false; }
    // The icon the desktop shows for the file at path (its type's icon, or a launcher's own),
    // 32x32 or, with small, 16x16: image drawn over white (transparent pixels 0xFFFFFF), mask
    // 0 where painted and 0xFFFFFF where transparent. False, with both untouched, when there
    // is none.
    virtual bool GetShellIcon(const std::string& /*path*/, bool /*small*/,
                              surface::Surface& /*image*/, surface::Surface& /*mask*/) {
        return false;
    }
    // picIconsList changed while a lot is drawn: show it (and the progress bar) when the
    // pending events next run.
    virtual void RefreshIconsList() {}

    // The screen fonts' families, in the order the font list shows them; none without a
    // platform.
    virtual std::vector<std::string> ScreenFonts() { return {}; }
    // The family that the platform really uses when asked for name; empty when it has none.
    virtual std::string FontFamilyUsed(const std::string& /*name*/) { return {}; }
    // One line of text drawn without smoothing: out becomes a picture of the text's width and
    // height plus 2, filled with back, with the text at (1, 1) in color, its glyphs filled or,
    // when hollow, their outlines stroked one pixel wide. False, with out untouched, when the
    // platform can't draw text.
    virtual bool DrawText(const TextFont& /*font*/, const std::string& /*text*/, bool /*hollow*/,
                          surface::Color /*color*/, surface::Color /*back*/,
                          surface::Surface& /*out*/) {
        return false;
    }
};

// The hourglass pointer while in scope.
class Hourglass {
public:
    explicit Hourglass(Host& host) : m_host(host) { m_host.SetHourglass(true); }
    ~Hourglass() { m_host.SetHourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    Host& m_host;
};

// A Host that answers every question with its default button and does nothing else; for
// code paths that run before a window exists and for tests that ask nothing.
class NullHost : public Host {
public:
    MsgAnswer MsgBox(const std::string&, MsgButtons buttons, MsgIcon, const std::string&) override {
        switch (buttons) {
            case MsgButtons::Ok: return MsgAnswer::Ok;
            case MsgButtons::OkCancel: return MsgAnswer::Ok;
            case MsgButtons::YesNoCancel: return MsgAnswer::Yes;
            case MsgButtons::YesNo: return MsgAnswer::Yes;
        }
        return MsgAnswer::Ok;
    }
    void DoEvents() override {}
    void SetHourglass(bool) override {}
    void RefreshDisplay() override {}
};

}  // namespace vexlo::host
