#pragma once

#include "batch/BatchOptions.h"
#include "batch/ModelSet.h"
#include "viewer/DocumentScene.h"

#include <string_view>

/** The documents as they are shown. */
namespace ShownDocument {

/** A document's name on the command line: U, X, M or helix. */
std::string_view nameOf(Document document);

/**
 * Puts what is shown of a document into a new scene: a surface with its decorations and the sphere
 * of the helix where it belongs to a vertex, or the helix.
 */
void draw(Document document, ModelSet& models, DocumentScene& scene);

/** The same without a sphere. */
void drawWithoutSphere(Document document, ModelSet& models, DocumentScene& scene);

} // namespace ShownDocument
