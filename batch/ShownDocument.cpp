#include "batch/ShownDocument.h"

#include "helix/HelixNames.h"

#include <Inventor/nodes/SoSeparator.h>
#include <array>
#include <string>

std::string_view ShownDocument::nameOf(Document document) {
    constexpr std::array<std::string_view, 4> names{"U", "X", "M", "helix"};
    return names.at(static_cast<std::size_t>(document));
}

void ShownDocument::draw(Document document, ModelSet& models, DocumentScene& scene) {
    drawWithoutSphere(document, models, scene);
    if (document != Document::helix && models.vertex()) {
        const std::string firstHelix = std::string(HelixNames::framePrefix) + "1";
        scene.getPhongSeparator()->addChild(
            models.surface(document).DrawVertex(firstHelix.c_str(), *models.vertex()));
    }
}

void ShownDocument::drawWithoutSphere(Document document, ModelSet& models, DocumentScene& scene) {
    if (document == Document::helix) {
        models.helix().drawParts(*scene.getRoot());
    } else {
        models.surface(document).drawParts(*scene.getPhongSeparator(),
                                           *scene.getDrawStyleSeparator());
    }
}
