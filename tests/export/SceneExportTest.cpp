#include "export/SceneExport.h"

#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoSeparator.h>
#include <gtest/gtest.h>
#include <limits>

TEST(SceneExport, SceneThatIsPartlyNowhereStaysAsItIs) {
    const NodePointer<SoSeparator> scene(new SoSeparator);
    auto* group = new SoSeparator;
    auto* coordinates = new SoCoordinate3;
    coordinates->point.setValue(0.75F, std::numeric_limits<float>::quiet_NaN(), -1.25F);
    group->addChild(coordinates);
    scene->addChild(group);
    for (const auto format : {SceneExport::Format::openInventor, SceneExport::Format::vrml}) {
        std::FILE* file = std::fopen("/dev/null", "w");
        ASSERT_NE(file, nullptr);
        SceneExport::write(*scene, format, file);
        std::fclose(file);
        ASSERT_EQ(scene->getNumChildren(), 1);
        EXPECT_EQ(group->getNumChildren(), 1);
    }
}
