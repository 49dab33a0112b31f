#include "tests/support/LinkedFrames.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr QSize frameSize(500, 400);

} // namespace

LinkedFrames::LinkedFrames() {
    for (const int space : {Hyperboloid::USPACE, Hyperboloid::XSPACE, Hyperboloid::MSPACE}) {
        auto& frame = hyperboloids.at(static_cast<std::size_t>(space));
        frame = std::make_unique<HyperboloidFrame>(1.0F, 1.5F, 1.0F, 0.5F, 0.5F, 1.0F, 0.0F, 0.0F,
                                                   space, false, &recorder);
        frame->initialize();
    }
    const auto& [u, x, m] = hyperboloids;
    for (const auto& frame : hyperboloids) {
        frame->setBrother(u.get(), x.get(), m.get());
    }
    helix = std::make_unique<HelixFrame>(u->getVertex(0, 0), u->getVertex(0, 1), u->getVertex(0, 2),
                                         u->getColor(0, 0), u->getColor(0, 1), u->getColor(0, 2), 0,
                                         true, &recorder);
    helix->initialize();
    for (const auto& frame : hyperboloids) {
        frame->addNewSphere(helix->getName(), 0);
    }
}

std::vector<SoQtGeneralViewerFrame*> LinkedFrames::frames() const {
    const auto& [u, x, m] = hyperboloids;
    return {u.get(), x.get(), m.get(), helix.get()};
}

void LinkedFrames::showSideBySide() const {
    const std::vector<SoQtGeneralViewerFrame*> all = frames();
    constexpr int columns = 2;
    int place = 0;
    for (SoQtGeneralViewerFrame* frame : all) {
        frame->resize(frameSize);
        frame->move(place % columns * frameSize.width(), place / columns * frameSize.height());
        frame->show();
        ++place;
    }
    EXPECT_TRUE(waitUntil([&] {
        return std::all_of(all.begin(), all.end(), [](SoQtGeneralViewerFrame* frame) {
            return ViewDriver(*frame).isDrawn();
        });
    }));
}
