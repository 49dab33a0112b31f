#include "app/HyperboloidTrio.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "hyperboloid/VertexGrid.h"

#include <algorithm>
#include <iterator>

void HyperboloidTrio::setUp(HyperboloidFrame* u, HyperboloidFrame* x, HyperboloidFrame* m) {
    frames = {u, x, m};
    for (HyperboloidFrame* frame : {u, x, m}) {
        frame->setBrother(u, x, m);
    }
    // Becoming brothers has done this already; once more, so that X and M surely wear U's colours.
    x->changeColors();
    m->changeColors();
    x->reDraw(false, false);
    m->reDraw(false, false);
}

HyperboloidFrame* HyperboloidTrio::of(int space) const {
    return frames.at(static_cast<std::size_t>(space));
}

std::vector<HyperboloidFrame*> HyperboloidTrio::open() const {
    std::vector<HyperboloidFrame*> found;
    std::copy_if(frames.begin(), frames.end(), std::back_inserter(found),
                 [](const auto& frame) { return !frame.isNull(); });
    return found;
}

void HyperboloidTrio::setParameters(const HyperboloidParameters& parameters) {
    for (HyperboloidFrame* frame : open()) {
        frame->setParameters(parameters);
        frame->reDraw(true, true);
    }
}

void HyperboloidTrio::setTransparency(int percent) {
    for (HyperboloidFrame* frame : open()) {
        frame->setTransparency(percent, true);
    }
}

void HyperboloidTrio::setLightness(int percent) {
    for (HyperboloidFrame* frame : open()) {
        frame->setLightness(percent, true);
    }
}

void HyperboloidTrio::setSaturation(int percent) {
    for (HyperboloidFrame* frame : open()) {
        frame->setSaturation(percent, true);
    }
}

void HyperboloidTrio::addSpheres(SbName name, int index) {
    for (HyperboloidFrame* frame : open()) {
        frame->addNewSphere(name, index);
    }
}

void HyperboloidTrio::forgetHelix(SbName name) {
    for (HyperboloidFrame* frame : open()) {
        frame->killSphere(name);
        frame->PrevHelixDead();
    }
}

void HyperboloidTrio::keepInPlace(const std::vector<HelixFrame*>& helices, int oldVertexCount) {
    const HyperboloidFrame* u = of(Hyperboloid::USPACE);
    if (u == nullptr) {
        return;
    }
    HelixFrame* const steered = u->GetPreviousHelix();
    const auto vertexCount = static_cast<int>(u->getNumVertices());
    for (HelixFrame* helix : helices) {
        const int index = VertexGrid::atSamePlace(helix->getIndex(), oldVertexCount, vertexCount);
        for (HyperboloidFrame* frame : open()) {
            frame->SetPreviousHelix(helix);
            frame->refresh_spheres(index);
            frame->refresh_helix(index);
        }
    }
    for (HyperboloidFrame* frame : open()) {
        frame->SetPreviousHelix(steered);
    }
}

void HyperboloidTrio::setClosableAlone(bool closable) {
    for (HyperboloidFrame* frame : open()) {
        frame->setClosableAlone(closable);
    }
}
