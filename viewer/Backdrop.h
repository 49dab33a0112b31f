#pragma once

class SoSeparator;

/** What can be put behind a scene. */
namespace Backdrop {

/** A greeting under a camera of its own, in a new separator "Background", unreferenced. */
SoSeparator* create();

} // namespace Backdrop
