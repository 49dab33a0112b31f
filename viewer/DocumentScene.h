#pragma once

#include "scene/SceneNodes.h"
#include "viewer/DocumentRoot.h"

#include <Inventor/SbName.h>

class SoDrawStyle;
class SoSeparator;
class SoShaderProgram;
class SoSwitch;

/**
 * The scene of a document, whether a window shows it or not, and the looks that it goes through.
 *
 * Its upper part, in order:
 *
 *     root
 *       environment                 ambient light, intensity 0.2, white
 *       solidSeparator              what is always drawn in plain colours
 *         solidProgram
 *       phongSeparator              what is always lit
 *         phongProgram
 *       drawStyleSeparator          what follows toggleDrawStyle()
 *         drawStyle                 thin lines; filled at first
 *         shadingSwitch             child 0 phongProgram (at first), child 1 solidProgram
 *
 * The scene library must have been initialised. Every node lives as long as the scene at least.
 */
class DocumentScene {
public:
    /** The upper part alone. */
    DocumentScene();
    ~DocumentScene() = default;
    DocumentScene(const DocumentScene&) = delete;
    DocumentScene& operator=(const DocumentScene&) = delete;

    DocumentRoot* getRoot() const { return root.get(); }
    SoSeparator* getSolidSeparator() const { return solidSeparator; }
    SoSeparator* getPhongSeparator() const { return phongSeparator; }
    SoSeparator* getDrawStyleSeparator() const { return drawStyleSeparator; }
    SoDrawStyle* getDrawStyle() const { return drawStyle; }
    SoSwitch* getShadingSwitch() const { return shadingSwitch; }
    SoShaderProgram* getPhongProgram() const { return phongProgram; }
    SoShaderProgram* getSolidProgram() const { return solidProgram; }

    /** How what follows the draw style is shown, in the order of their cycle. */
    enum class Look {
        /** Lit, filled: the Phong program. */
        lit,
        /** Plain colours, filled: the solid program. */
        plain,
        /** Plain colours, the edges alone. */
        lines
    };

    void setLook(Look newLook);

    /** Goes on to the next look: Phong, solid, lines, and Phong again. */
    void toggleDrawStyle();

    /** Removes the first node of this name from the parent, if it is a child of the parent. */
    static void removeChild(const SbName& name, SoSeparator& parent);

private:
    NodePointer<DocumentRoot> root;
    // Below the root, which owns them.
    SoShaderProgram* phongProgram;
    SoShaderProgram* solidProgram;
    SoDrawStyle* drawStyle;
    SoSeparator* solidSeparator;
    SoSeparator* phongSeparator;
    SoSeparator* drawStyleSeparator;
    SoSwitch* shadingSwitch;
    Look look = Look::lit;
};
