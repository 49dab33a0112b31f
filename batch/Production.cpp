#include "batch/Production.h"

#include "batch/Camera.h"
#include "batch/FileName.h"
#include "batch/ModelSet.h"
#include "batch/OutputFormat.h"
#include "batch/ShownDocument.h"
#include "batch/Targets.h"
#include "export/DataExport.h"
#include "export/PrintedScene.h"
#include "export/SceneExport.h"
#include "export/TargetStreams.h"
#include "viewer/DocumentScene.h"
#include "viewer/Lights.h"

#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoSeparator.h>
#include <new>

namespace {

constexpr const char* noMemory = "there is no memory";

void writeText(Document document, ByteTarget& target, ModelSet& models) {
    if (document == Document::helix) {
        DataExport::saveHelix(target, models.helix());
    } else {
        DataExport::saveHyperboloid(target, models.surface(document));
    }
}

std::string writeScene(SoNode& scene, SceneExport::Format format, ByteTarget& target) {
    const CStream stream = cStreamTo(target);
    if (stream == nullptr) {
        return noMemory;
    }
    SceneExport::write(scene, format, stream.get());
    return {};
}

} // namespace

Production::Production(const BatchOptions& batchOptions)
    : options(batchOptions) {}

std::vector<std::string> Production::make(const HyperboloidParameters& set) try {
    if (const std::string refusal = ModelSet::refusal(set, options); !refusal.empty()) {
        return {refusal};
    }
    ModelSet models(set, options);
    std::vector<std::string> failures;
    for (const Output& output : options.outputs) {
        const std::string failure = make(output, set, models);
        if (!failure.empty()) {
            failures.push_back(failure);
        }
    }
    return failures;
} catch (const std::bad_alloc&) {
    return {std::string("Nothing is made: ") + noMemory};
}

std::string Production::undrawnPictures() const {
    const std::string pictures = undrawn == 1 ? " picture (" : " pictures (";
    return undrawn == 0 ? "" : "Not made: " + std::to_string(undrawn) + pictures + *opened + ")";
}

std::string Production::make(const Output& output, const HyperboloidParameters& set,
                             ModelSet& models) {
    const std::string fileName = FileName::of(output.file, set);
    std::string failure;
    try {
        if (output.kind == Output::Kind::image && !openRenderer()) {
            ++undrawn;
        } else {
            failure = makeFile(output, fileName, models);
        }
    } catch (const std::bad_alloc&) {
        failure = noMemory;
    }
    return failure.empty() ? failure : "Not made: " + fileName + " (" + failure + ")";
}

std::string Production::makeFile(const Output& output, const std::string& fileName,
                                 ModelSet& models) {
    const bool isStandardOutput = OutputFormat::isStandardOutput(output);
    const auto target = Targets::open(isStandardOutput ? Targets::standardOutput : fileName);
    std::string failure = target->errorString().toStdString();
    if (failure.empty()) {
        failure = write(output, *target, models);
    }
    if (failure.empty() && !target->commit()) {
        failure = target->errorString().toStdString();
    }
    return failure;
}

std::string Production::write(const Output& output, ByteTarget& target, ModelSet& models) {
    if (output.kind == Output::Kind::text) {
        writeText(output.document, target, models);
        return {};
    }
    DocumentScene scene;
    scene.setLook(options.look);
    ShownDocument::draw(output.document, models, scene);
    switch (OutputFormat::of(output)) {
    case Format::openInventor:
        return writeScene(*scene.getRoot(), SceneExport::Format::openInventor, target);
    case Format::vrml:
        return writeScene(*scene.getRoot(), SceneExport::Format::vrml, target);
    default:
        return writePicture(output, target, *scene.getRoot());
    }
}

std::string Production::writePicture(const Output& output, ByteTarget& target, SoNode& scene) {
    const NodePointer<SoDirectionalLight> headlight(Lights::createHeadlight());
    const NodePointer<SoCamera> camera = Camera::of(output.document, options, scene);
    const float lineWidth = static_cast<float>(options.paper.dotsPerInch) /
                            static_cast<float>(options.paper.screenDotsPerInch);
    const NodePointer<SoSeparator> picture =
        PrintedScene::of(&scene, {*camera, headlight.get(), renderer->region()}, lineWidth);
    if (!renderer->render(*picture)) {
        return "the picture cannot be rendered";
    }
    const CStream stream = cStreamTo(target);
    if (stream == nullptr) {
        return noMemory;
    }
    const bool written = OutputFormat::of(output) == Format::png
                             ? renderer->writePng(target)
                             : renderer->writePostScript(stream.get());
    return written || !target.errorString().isEmpty() ? std::string()
                                                      : "the picture cannot be written";
}

bool Production::openRenderer() {
    if (!opened) {
        opened = contexts.open();
    }
    if (opened->empty() && renderer == nullptr) {
        const Paper& paper = options.paper;
        const PictureRenderer::Size size{SbVec2s(static_cast<short>(paper.dots(paper.width)),
                                                 static_cast<short>(paper.dots(paper.height))),
                                         paper.dotsPerInch};
        renderer = std::make_unique<PictureRenderer>(size, PictureRenderer::Manner());
    }
    return opened->empty();
}
