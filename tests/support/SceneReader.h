#pragma once

#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTransform.h>
#include <string>
#include <vector>

/** Reads a scene's structure and the nodes of a known place in it. */
namespace SceneReader {

/** The names of a group's children; a nameless child is given by its type's name. */
inline std::vector<std::string> childNames(const SoGroup& group) {
    std::vector<std::string> names;
    for (int i = 0; i < group.getNumChildren(); ++i) {
        const SoNode& node = *group.getChild(i);
        const SbName name = node.getName();
        names.emplace_back(name.getLength() > 0 ? name.getString()
                                                : node.getTypeId().getName().getString());
    }
    return names;
}

/** The first child of a name, null when there is none. */
inline SoSeparator* childNamed(const SoGroup& group, const SbName& name) {
    for (int i = 0; i < group.getNumChildren(); ++i) {
        if (group.getChild(i)->getName() == name) {
            return dynamic_cast<SoSeparator*>(group.getChild(i));
        }
    }
    return nullptr;
}

/** How many children bear a name. */
inline int countNamed(const SoGroup& group, const SbName& name) {
    int count = 0;
    for (int i = 0; i < group.getNumChildren(); ++i) {
        count += group.getChild(i)->getName() == name ? 1 : 0;
    }
    return count;
}

/** A child by its position and type; null when it is of another type or missing. */
template <typename Node>
Node* child(const SoGroup& group, int position) {
    return position < group.getNumChildren() ? dynamic_cast<Node*>(group.getChild(position))
                                             : nullptr;
}

/** The branches of a frame's scene, by their fixed place under the root. */
inline SoSeparator& phongBranch(const SoGroup& root) {
    return *child<SoSeparator>(root, 2);
}
inline SoSeparator& drawStyleBranch(const SoGroup& root) {
    return *child<SoSeparator>(root, 3);
}

} // namespace SceneReader
