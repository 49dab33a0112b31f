#pragma once

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <memory>

/** Frames that were never initialised: models with a number and a title, but without a viewer. */
namespace BareFrames {

inline std::unique_ptr<HyperboloidFrame> hyperboloid(int space) {
    return std::make_unique<HyperboloidFrame>(1.37F, 1.91F, 2.23F, 0.61F, -0.43F, 0.83F, -0.29F,
                                              0.17F, space, true, nullptr);
}

inline std::unique_ptr<HelixFrame> helix() {
    return std::make_unique<HelixFrame>(0.71F, 0.53F, -0.31F, 0.9F, 0.4F, 0.2F, 7, true, nullptr);
}

} // namespace BareFrames
