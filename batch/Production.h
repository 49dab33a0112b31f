#pragma once

#include "batch/BatchOptions.h"
#include "batch/DrawingContexts.h"
#include "export/ByteTarget.h"
#include "export/PictureRenderer.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

class ModelSet;
class SoNode;

/** Makes what the options ask for, one set of parameters after the other. */
class Production {
public:
    /** @param batchOptions outlive the production */
    explicit Production(const BatchOptions& batchOptions);

    /**
     * Makes all outputs of a set that can be made.
     *
     * @return why some could not, a line each; empty when all are there
     */
    std::vector<std::string> make(const HyperboloidParameters& set);

private:
    // Each returns why there is no output, or not a whole one; empty when there is.
    std::string make(const Output& output, const HyperboloidParameters& set, ModelSet& models);
    std::string write(const Output& output, ByteTarget& target, ModelSet& models);
    std::string writePicture(const Output& output, ByteTarget& target, SoNode& scene);
    /** OpenGL is opened for the first picture, and asked for no second time when there is none. */
    const std::string& openRenderer();

    const BatchOptions& options;
    DrawingContexts contexts;
    /** Why there are no contexts, once they have been asked for. */
    std::optional<std::string> opened;
    std::unique_ptr<PictureRenderer> renderer;
};
