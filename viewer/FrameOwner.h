#pragma once

#include <Inventor/SbName.h>

/**
 * What a frame asks of the window that created it.
 *
 * The main window implements this interface, so that frames can report to it without knowing the
 * application layer: dependencies run from the application to the frames only.
 */
class FrameOwner {
public:
    FrameOwner() = default;
    FrameOwner(const FrameOwner&) = delete;
    FrameOwner& operator=(const FrameOwner&) = delete;

    /** A helix frame of this name is being destroyed: its spheres and its ties must go. */
    virtual void SayHypoImDead(SbName name) = 0;

    /** The viewer of one of the frames has got another title. */
    virtual void viewerTitleChanged() = 0;

protected:
    ~FrameOwner() = default;
};
