#pragma once
// The floating Region's pictures and the values its drag keeps. The floating picture
// (picImageRegion, picMaskRegion) lies over two snap pictures (picImageSnap, picMaskSnap),
// which hold the planes as they are without it; every move redraws the planes from the snaps
// with the floating picture at its new place, and nothing is final until it is dropped.
//
// A see-through floating picture holds the painted pixels of its source and the transparent
// gray elsewhere, with an all-white mask: its gray pixels are holes. An opaque one carries
// both planes as they are.
#include "core/surface/surface.h"
#include "core/tools/region_geometry.h"

namespace vexlo::session {

using surface::Surface;

class FloatingRegion {
public:
    FloatingRegion();

    const Surface& Image() const { return m_image; }
    const Surface& Mask() const { return m_mask; }
    const Surface& ImageSnap() const { return m_imageSnap; }
    const Surface& MaskSnap() const { return m_maskSnap; }
    bool SeeThrough() const { return m_seeThrough; }
    tools::RegionDrag& Drag() { return m_drag; }
    const tools::RegionDrag& Drag() const { return m_drag; }

    // LiftRegion's pictures: the floating picture from the w x h cells at (left, top) of the
    // planes (see-through: only the painted pixels), and the snaps: the planes with a
    // transparent hole where it was.
    void Lift(const Surface& image, const Surface& mask, const tools::CellRect& cells, bool seeThrough);
    // A picture floated over planes kept whole (a paste, a text): the top left w x h of
    // picture. See-through keeps its pixels that aren't the transparent gray; opaque takes it
    // whole, with a mask that is white where the picture is white (MakeMask_viaMemoryDC).
    void Float(const Surface& picture, int w, int h, bool seeThrough, const Surface& image,
               const Surface& mask);
    // The pixels of RedrawFloatingRegion: the planes become the snaps with the floating
    // picture on them at cell (x, y), and the result their stored pictures.
    void DrawOnto(Surface& image, Surface& mask, int x, int y) const;
    // The planes as the snaps hold them, the floating picture gone.
    void RestoreSnaps(Surface& image, Surface& mask) const;
    // CopyToClipboard with a Region: the floating picture becomes the w x h composed pixels
    // under the cells (transparent ones the gray), and is what goes out.
    const Surface& TakeComposed(const Surface& composed, const tools::CellRect& cells);
    // A flip or quarter turn of both floating pictures.
    void Transform(Surface (*transform)(const Surface&));

private:
    Surface m_image, m_mask;          // picImageRegion (back color white), picMaskRegion (black)
    Surface m_imageSnap, m_maskSnap;  // picImageSnap, picMaskSnap
    bool m_seeThrough = false;        // RegionSeeThrough
    tools::RegionDrag m_drag;
};

}  // namespace vexlo::session
