#pragma once

class SoQtGeneralViewerFrame;

/** What of a frame's surface must be seen on the screen, going by its vertices alone. */
namespace VisibleSurface {

/**
 * Whether quadrilaterals of a good size together, neither transparent nor black, lie in the part of
 * the view that ViewDriver::isDrawn() looks at.
 */
bool isLarge(const SoQtGeneralViewerFrame& frame);

} // namespace VisibleSurface
