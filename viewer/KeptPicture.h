#pragma once

#include <QOpenGLFramebufferObject>
#include <QPointer>
#include <QSize>
#include <memory>

class QOpenGLContext;

/**
 * What has been drawn into a window, put aside to be put back: the colour and the depth of every
 * sample, to the last bit.
 *
 * All operations are for the window of the current OpenGL context. What is kept belongs to the
 * context that it was taken in, and needs as much memory as the window's own samples.
 */
class KeptPicture {
public:
    KeptPicture() = default;
    /** Where something is kept, its context is to be current, as in drop(). */
    ~KeptPicture() = default;
    KeptPicture(const KeptPicture&) = delete;
    KeptPicture& operator=(const KeptPicture&) = delete;

    /**
     * Makes room for the next picture. False where no exact copy can be made: without the functions
     * or the formats for it, or without multisampling.
     *
     * @param size the window's size in pixels
     */
    bool prepare(QSize size);

    /** Puts aside what the window holds. False when that failed, and nothing is kept. */
    bool take();

    /** Whether there is something to put back in the current context. */
    bool isTaken() const;

    /** Puts it back, in the place of whatever the window holds. */
    void putBack() const;

    /** Whether it has no memory to give back. */
    bool isEmpty() const { return !room; }

    /** Keeps the room only. */
    void forget() { isFilled = false; }

    /** Gives the memory back, in the context that it was taken in. */
    void drop();

private:
    void copy(GLuint from, GLuint to) const;

    std::unique_ptr<QOpenGLFramebufferObject> room;
    QPointer<QOpenGLContext> context;
    bool isMirrored = false;
    bool isFilled = false;
};
