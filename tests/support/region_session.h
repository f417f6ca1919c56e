#pragma once
// A ScriptedHost with a clipboard of its own (a picture put there by Copy, or by the test as
// another program would, and a record of the blocks that Paste read from it), and a fixture
// of a session on it.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/session/session.h"
#include "support/picture_grid.h"
#include "support/scripted_host.h"

namespace vexlo::test {

class ClipboardHost : public ScriptedHost {
public:
    // The picture on the clipboard, as a program put it there; none when empty.
    std::optional<surface::Surface> clipboard;
    surface::Surface holes;  // what Copy marked as transparent
    bool tooLarge = false;   // the platform would refuse to read it
    std::vector<std::pair<int, int>> reads;

    bool ClipboardHasBitmap() override { return clipboard.has_value(); }
    host::ClipboardPicture ClipboardPictureInfo() override {
        if (!clipboard) return {};
        return {true, clipboard->Width(), clipboard->Height(), tooLarge};
    }
    bool ReadClipboardPicture(int w, int h, surface::Surface& out) override {
        reads.emplace_back(w, h);
        if (!clipboard || tooLarge) return false;
        out = surface::Surface(w, h, 0xFFFFFF);
        surface::BitBlt(out, 0, 0, w, h, *clipboard, 0, 0, surface::Rop::SrcCopy);
        return true;
    }
    void SetClipboardPicture(const surface::Surface& picture, const surface::Surface& transparent) override {
        clipboard = picture;
        holes = transparent;
    }
    void ClearClipboard() override { clipboard.reset(); }
};

// A session with a ClipboardHost, loaded and activated, and the steps the Region, clipboard
// and transform flows share.
class RegionSession : public ::testing::Test {
protected:
    using Rows = std::vector<std::string>;

    void SetUp() override {
        s.Load(1024, 768);
        s.RunFirstActivation("", nullptr);
    }
    // A new icon (File New's entry: 0 is 32x32, 1 is 16x16) with rows at its top left, as
    // the first entry of its undo history.
    void NewIconWith(int entry, const Rows& rows) {
        s.FileNew(entry);
        PlanesOf(rows, s.Icon().Image(), s.Icon().Mask());
        s.ComposeIcon();
        s.BeginUndoHistory();
    }
    Rows Planes(int x, int y, int w, int h) const {
        return PlanesRows(s.Icon().Image(), s.Icon().Mask(), x, y, w, h);
    }
    // A drag with the left button from (x1, y1) to (x2, y2) in picDisp pixels, the pointer
    // having come to the press point first.
    void Drag(int x1, int y1, int x2, int y2, bool modifier = false) {
        s.PointerMoved(x1, y1, false);
        s.PointerPressed(session::Session::Button::Left, x1, y1);
        s.PointerMoved(x2, y2, modifier);
        s.PointerReleased(x2, y2, false);
    }
    const tools::RegionMarks& Marks() const { return s.View().Region(); }

    ClipboardHost host;
    session::Session s{host};
};

}  // namespace vexlo::test
