#pragma once

#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

/** Child `index` of a group, which must be of exactly the node type; null with a failure if not. */
template <typename Node>
Node* childAs(SoGroup* parent, int index) {
    if (index >= parent->getNumChildren()) {
        ADD_FAILURE() << "no child " << index;
        return nullptr;
    }
    SoNode* child = parent->getChild(index);
    if (child->getTypeId() != Node::getClassTypeId()) {
        ADD_FAILURE() << "child " << index << " is a " << child->getTypeId().getName().getString();
        return nullptr;
    }
    return static_cast<Node*>(child);
}

inline std::string nameOf(const SoNode* node) {
    return node->getName().getString();
}

/** All values of a field of triples, one after the other. */
template <typename Field>
std::vector<float> valuesOf(const Field& field) {
    std::vector<float> values;
    for (int i = 0; i < field.getNum(); ++i) {
        for (int component = 0; component < 3; ++component) {
            values.push_back(field[i][component]);
        }
    }
    return values;
}

/** Expects the one colour in the material's ambient, diffuse and specular fields. */
inline void expectColorInThreeFields(const SoMaterial* material, const std::vector<float>& color) {
    EXPECT_EQ(valuesOf(material->ambientColor), color);
    EXPECT_EQ(valuesOf(material->diffuseColor), color);
    EXPECT_EQ(valuesOf(material->specularColor), color);
}
