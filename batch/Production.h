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
     * @return why some could not, a line each; empty when all are there, or only pictures are
     *         missing that there is no OpenGL for
     */
    std::vector<std::string> make(const HyperboloidParameters& set);

    /** How many pictures there was no OpenGL for, and why there is none, in a line; else empty. */
    std::string undrawnPictures() const;

private:
    // Each returns why there is no output, or not a whole one; empty when there is.
    std::string make(const Output& output, const HyperboloidParameters& set, ModelSet& models);
    std::string makeFile(const Output& output, const std::string& fileName, ModelSet& models);
    std::string write(const Output& output, ByteTarget& target, ModelSet& models);
    std::string writePicture(const Output& output, ByteTarget& target, SoNode& scene);
    /**
     * Whether pictures can be drawn. OpenGL is opened for the first picture, and asked for no
     * second time when there is none.
     */
    bool openRenderer();

    const BatchOptions& options;
    DrawingContexts contexts;
    /** Why there are no contexts, once they have been asked for. */
    std::optional<std::string> opened;
    std::unique_ptr<PictureRenderer> renderer;
    std::size_t undrawn = 0;
};
