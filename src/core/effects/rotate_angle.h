#pragma once
// Rotate at any angle: the whole icon turned on both planes by RotatePicture, keeping its
// size. What turns out of the square is lost and the uncovered corners become transparent.
// The frame fraRotateSelectAngle shows a sample of the turned image plane on gray.
#include <string>
#include <vector>

#include "core/surface/surface.h"

namespace vexlo::effects {

using surface::Color;
using surface::Surface;

// hsrRotateAngle's range; cboRotateAngle lists the same whole numbers, index = value + 360.
inline constexpr int kRotateAngleMin = -360;
inline constexpr int kRotateAngleMax = 360;
inline constexpr int kRotateAngleLargeStep = 15;
std::vector<std::string> RotateAngleEntries();

// picRotatePicSample's size (a crop of the turned picture, not a scaled copy).
inline constexpr int kRotateSampleSide = 40;

// The side of picImageTemp and picMaskTemp for an icon of side w: round(sqrt(w^2 + w^2) + 2),
// so that a turned square fits (25, 47 and 70).
int RotateTempSide(int w);

// 0, 360 and -360 leave the icon as it is: Proceed only closes the frame.
constexpr bool IsWholeTurn(int angle) { return angle == 0 || angle == 360 || angle == -360; }

// The sample as the frame opens: the composed icon unrotated, at the sample's top left on
// 0xC0C0C0.
Surface RotateSampleOpening(const Surface& PicIcon);

// The sample at an angle: picImage turned into a gray picture of RotateTempSide, its black
// cells (the transparent ones) left out, and the middle kRotateSampleSide square of that. Only
// the sample smooths, when antiAlias is set.
Surface RotateSample(const Surface& picImage, int angle, bool antiAlias);

// Proceed: both planes turned by angle degrees through temporaries of RotateTempSide filled
// with the transparent state (black image, white mask, which are also the keys), then the
// w x w block at ((temp - w) / 2, (temp - w) / 2), rounded ties to even, put back as each
// plane's drawing and stored picture. Never smoothed.
void ProceedRotate(int angle, Surface& picImage, Surface& picMask);

}  // namespace vexlo::effects
