#pragma once
// The names from the lower layers that every session file uses unqualified: the picture and
// its colors, the host and its message boxes, and the fixed colors of the icon.
#include "core/host/host.h"
#include "core/icon/icon_colors.h"
#include "core/surface/surface.h"

namespace vexlo::session {

using surface::Color;
using surface::Surface;
using host::Host;
using host::kCrLf;
using host::kTitle;
using host::MsgAnswer;
using host::MsgButtons;
using host::MsgIcon;
using host::MultiIconAnswer;
using host::NullHost;
using icon::kBlack;
using icon::kTransparentGray;
using icon::kWhite;
using icon::kWindowColor;

}  // namespace vexlo::session
