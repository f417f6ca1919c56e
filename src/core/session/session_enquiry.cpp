// The Enquiry menu: what the current icon's record and pixels say, in an information box.
#include "core/session/enquiry/enquiry_texts.h"
#include "core/session/session.h"

namespace vexlo::session {

void Session::ClickEnquiry(int item) {
    if (item < 0 || item > 4 || item == 3) return;
    if (!NeedsIconInArea()) return;
    const IconSlot& s = Current();
    const Surface& image = m_icon.Image();
    std::string text;
    switch (item) {
        case 0: text = PaletteModeText(s, image); break;
        case 1: text = ColorsUsedText(image); break;
        case 2:
            if (!s.HasHotspot) return;
            text = HotspotText(s);
            break;
        default: text = GeneralPropertiesText(s, image); break;
    }
    m_host.MsgBox(text, MsgButtons::Ok, MsgIcon::Information, kTitle);
}

}  // namespace vexlo::session
