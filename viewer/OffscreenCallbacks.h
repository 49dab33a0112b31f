#pragma once

#include <Inventor/C/glue/gl.h>

#include <array>
#include <cstddef>
#include <memory>

/** What the scene library asks of off-screen contexts, the same for every kind of them. */
namespace OffscreenCallbacks {

/**
 * The first base of a context. Coin 4.0 hands contexts to its own GLX code when it asks for the
 * largest size, and reads them as its private records; zeros stand for a record without pixel
 * buffer, which is harmless.
 */
struct EmptyCoinRecord {
    static constexpr std::size_t size = 128;
    std::array<std::byte, size> zeros{};
};

/**
 * Lets the scene library draw off the screen in contexts of a kind, which has
 * - EmptyCoinRecord for its first base,
 * - `create(width, height)`, a new one that a picture of this size can be drawn in, or null,
 * - `makeCurrent()`, false when it fails, and `reinstatePrevious()`.
 */
template <typename Context>
void install() {
    static cc_glglue_offscreen_cb_functions functions{
        [](unsigned int width, unsigned int height) -> cc_glglue_offscreen_data {
            return Context::create(static_cast<int>(width), static_cast<int>(height)).release();
        },
        [](cc_glglue_offscreen_data context) -> SbBool {
            return static_cast<Context*>(context)->makeCurrent() ? TRUE : FALSE;
        },
        [](cc_glglue_offscreen_data context) {
            static_cast<Context*>(context)->reinstatePrevious();
        },
        [](cc_glglue_offscreen_data context) {
            const std::unique_ptr<Context> owned(static_cast<Context*>(context));
        }};
    cc_glglue_context_set_offscreen_cb_functions(&functions);
}

} // namespace OffscreenCallbacks
