#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSphere.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

namespace {

using Triplet = std::array<double, 3>;

const std::string lambdaMessage = "Error : bd=0 or ac+bd=0\n";
const std::string shiftMessage = "Error :  bd=0\n";

/** What setting the parameters writes to the standard error stream. */
std::string messagesOf(ExposedHyperboloid& hyperboloid, const HyperboloidParameters& parameters) {
    testing::internal::CaptureStderr();
    hyperboloid.setGrid(parameters, 4, 4);
    return testing::internal::GetCapturedStderr();
}

std::string messagesOfConstruction(const HyperboloidParameters& parameters) {
    testing::internal::CaptureStderr();
    const ExposedHyperboloid hyperboloid(parameters, Hyperboloid::USPACE);
    return testing::internal::GetCapturedStderr();
}

TEST(Hyperboloid, SpacesHaveFixedIndices) {
    EXPECT_EQ(Hyperboloid::USPACE, 0);
    EXPECT_EQ(Hyperboloid::XSPACE, 1);
    EXPECT_EQ(Hyperboloid::MSPACE, 2);
    EXPECT_FALSE(std::is_polymorphic_v<Hyperboloid>);
}

TEST(Hyperboloid, ANewHyperboloidHasItsDefaults) {
    const ExposedHyperboloid hyperboloid(startUp, Hyperboloid::MSPACE);
    EXPECT_EQ(hyperboloid.WichSpace(), Hyperboloid::MSPACE);
    EXPECT_EQ(hyperboloid.tRange, 4.0F);
    EXPECT_EQ(hyperboloid.getNumCol(), 64U);
    EXPECT_EQ(hyperboloid.getNumRow(), 64U);
    EXPECT_EQ(hyperboloid.getNumVertices(), 64U * 64U);
    EXPECT_EQ(hyperboloid.getSaturation(), 0.8);
    EXPECT_EQ(hyperboloid.getLightness(), 0.5);
    EXPECT_EQ(hyperboloid.getTransparency(), 0.0);
    EXPECT_EQ(hyperboloid.getSpR(), 0.3);
    EXPECT_EQ(hyperboloid.getu3const_range(), 7.0);
    EXPECT_EQ(hyperboloid.getu3axis_range(), 7.0);
    EXPECT_EQ(hyperboloid.getu3const_radius(), 0.02);
    EXPECT_EQ(hyperboloid.getu3axis_radius(), 0.03);
    EXPECT_EQ(hyperboloid.vertices.size(), 64U * 64U);
    EXPECT_EQ(hyperboloid.colors.size(), 64U * 64U);
    EXPECT_EQ(hyperboloid.energies.size(), 64U * 64U);
}

TEST(Hyperboloid, StartUpParametersGiveExactNumbers) {
    const ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    EXPECT_EQ(hyperboloid.getPNAS('a'), -2.0F);
    EXPECT_EQ(hyperboloid.getPNAS('b'), 1.0F);
    EXPECT_EQ(hyperboloid.getPNAS('c'), 0.0F);
    EXPECT_EQ(hyperboloid.getPNAS('d'), -1.0F);
    EXPECT_TRUE(hyperboloid.swapAxes);
    EXPECT_EQ(coordinates(hyperboloid.lambda), (Triplet{0.25, 0.25, 1.0}));
    EXPECT_EQ(coordinates(hyperboloid.shift), (Triplet{2.0, 2.0, -1.0}));
    EXPECT_EQ(hyperboloid.semiAxis, (std::array<float, 3>{2.0F, 2.0F, 1.0F}));
    const auto rotation = entries(hyperboloid.rotationMatrix);
    EXPECT_EQ(rotation[0], (Triplet{1.0, 1.0, 0.0}));
    EXPECT_EQ(rotation[1], (Triplet{1.0, -1.0, -2.0}));
    EXPECT_EQ(rotation[2], (Triplet{0.0, 0.0, 1.0}));
}

TEST(Hyperboloid, OppositeSignsOfK13AndK23KeepTheAxes) {
    const ExposedHyperboloid hyperboloid(unswapped, Hyperboloid::USPACE);
    EXPECT_FALSE(hyperboloid.swapAxes);
    EXPECT_EQ(hyperboloid.getPNAS('d'), 1.0F);
    EXPECT_EQ(coordinates(hyperboloid.lambda), (Triplet{0.25, 0.25, 1.0}));
    EXPECT_EQ(coordinates(hyperboloid.shift), (Triplet{2.0, 2.0, -1.0}));
}

TEST(Hyperboloid, EveryParameterReachesItsGetter) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.set_parameters(1.1, 2.2, 3.3, 4.4, 5.5, 6.6, 7.7, 8.8, 9, 10, 0.11, 0.12, 0.13,
                               0.14, 0.15);
    const float expectedK[] = {1.1F, 2.2F, 3.3F, 4.4F, 5.5F};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(hyperboloid.getK(i), expectedK[i]);
    }
    EXPECT_EQ(hyperboloid.getU(0), 6.6F);
    EXPECT_EQ(hyperboloid.getU(1), 7.7F);
    EXPECT_EQ(hyperboloid.getU(2), 8.8F);
    EXPECT_EQ(coordinates(hyperboloid.U), (Triplet{6.6, 7.7, 8.8}));
    EXPECT_EQ(hyperboloid.getPrec(0), 9.0);
    EXPECT_EQ(hyperboloid.getPrec(1), 10.0);
    EXPECT_EQ(hyperboloid.getNumCol(), 9U);
    EXPECT_EQ(hyperboloid.getNumRow(), 10U);
    EXPECT_EQ(hyperboloid.getNumVertices(), 90U);
    EXPECT_EQ(hyperboloid.getSpR(), 0.11);
    EXPECT_EQ(hyperboloid.getu3const_range(), 0.12);
    EXPECT_EQ(hyperboloid.getu3axis_range(), 0.13);
    EXPECT_EQ(hyperboloid.getu3const_radius(), 0.14);
    EXPECT_EQ(hyperboloid.getu3axis_radius(), 0.15);
}

TEST(Hyperboloid, TakesTheSetAndTheFifteenValuesAlike) {
    const HyperboloidParameters set{1.17, 2.23, 3.31,  0.41, -0.53, 0.67, -0.79, 0.83,
                                    9,    14,   0.113, 5.27, 6.29,  0.37, 0.43};
    ExposedHyperboloid bySet(startUp, Hyperboloid::USPACE);
    ExposedHyperboloid byValues(startUp, Hyperboloid::USPACE);
    bySet.setParameters(set);
    byValues.set_parameters(1.17, 2.23, 3.31, 0.41, -0.53, 0.67, -0.79, 0.83, 9, 14, 0.113, 5.27,
                            6.29, 0.37, 0.43);
    for (ExposedHyperboloid* hyperboloid : {&bySet, &byValues}) {
        EXPECT_EQ(hyperboloid->getK(4), -0.53F);
        EXPECT_EQ(coordinates(hyperboloid->U), (Triplet{0.67, -0.79, 0.83}));
        EXPECT_EQ(hyperboloid->grid(), (VertexGrid{9, 14}));
        EXPECT_EQ(hyperboloid->getSpR(), 0.113);
        EXPECT_EQ(hyperboloid->getu3const_range(), 5.27);
        EXPECT_EQ(hyperboloid->getu3axis_range(), 6.29);
        EXPECT_EQ(hyperboloid->getu3const_radius(), 0.37);
        EXPECT_EQ(hyperboloid->getu3axis_radius(), 0.43);
    }
    EXPECT_EQ(bySet.semiAxis, byValues.semiAxis);
    EXPECT_EQ(entries(bySet.KMatrix), entries(byValues.KMatrix));
    EXPECT_EQ(coordinates(bySet.shift), coordinates(byValues.shift));
}

TEST(Hyperboloid, IsConstructedFromFloatsEvenWhereItKeepsDoubles) {
    const ExposedHyperboloid hyperboloid({1.1, 2.3, 3.7, 0.7, -0.3, 0.1, 0.2, 0.9},
                                         Hyperboloid::USPACE);
    EXPECT_EQ(coordinates(hyperboloid.U), (Triplet{0.1F, 0.2F, 0.9F}));
    EXPECT_EQ(entries(hyperboloid.KMatrix)[0], (Triplet{1.1F, 0.0, 0.7F}));
}

TEST(Hyperboloid, VertexOfTheSurfaceHasItsIndexCoordinatesAndColour) {
    ExposedHyperboloid hyperboloid(unswapped, Hyperboloid::USPACE);
    hyperboloid.regenerate(unswapped, 7, 11);
    for (const int index : {0, 38, 76}) {
        const SurfaceVertex vertex = hyperboloid.surfaceVertex(index);
        EXPECT_EQ(vertex.index, index);
        EXPECT_EQ(vertex.u,
                  (FloatTriple{hyperboloid.getVertex(index, 0), hyperboloid.getVertex(index, 1),
                               hyperboloid.getVertex(index, 2)}));
        EXPECT_EQ(vertex.color,
                  (FloatTriple{hyperboloid.getColor(index, 0), hyperboloid.getColor(index, 1),
                               hyperboloid.getColor(index, 2)}));
    }
    EXPECT_NE(hyperboloid.surfaceVertex(38).u, hyperboloid.surfaceVertex(39).u);
}

TEST(Hyperboloid, KMatrixKeepsTheDoublesThatKNarrows) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.set_k_uHat(1.1, 2.2, 3.3, 4.4, 5.5, 6.6, 7.7, 8.8);
    const auto K = entries(hyperboloid.KMatrix);
    EXPECT_EQ(K[0], (Triplet{1.1, 0.0, 4.4}));
    EXPECT_EQ(K[1], (Triplet{0.0, 2.2, 5.5}));
    EXPECT_EQ(K[2], (Triplet{4.4, 5.5, 3.3}));
    EXPECT_EQ(hyperboloid.K, (std::array<float, 5>{1.1F, 2.2F, 3.3F, 4.4F, 5.5F}));
    EXPECT_EQ(hyperboloid.a, -2.0F) << "the derived numbers wait for set_PNAS_var";
    hyperboloid.set_PNAS_var();
    EXPECT_EQ(hyperboloid.b, 4.4F / (2.2F - 1.1F));
}

TEST(Hyperboloid, ParametersLeaveTablesAndSurfaceAlone) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const std::vector<FloatTriple> before = hyperboloid.vertices;
    hyperboloid.setGrid(unswapped, 100, 200);
    EXPECT_EQ(hyperboloid.vertices, before);
    EXPECT_EQ(hyperboloid.energies.size(), 64U * 64U);
}

TEST(Hyperboloid, OddGetterArgumentsHaveTheirFixedAnswers) {
    const ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    EXPECT_EQ(hyperboloid.getPNAS('e'), 0.0F);
    EXPECT_EQ(hyperboloid.getPNAS('A'), 0.0F);
    EXPECT_EQ(hyperboloid.getPNAS('\0'), 0.0F);
    EXPECT_EQ(hyperboloid.getPrec(2), -1.0);
    EXPECT_EQ(hyperboloid.getPrec(-1), -1.0);
    try {
        static_cast<void>(hyperboloid.getU(3));
        FAIL() << "component 3 does not exist";
    } catch (const std::string& message) {
        EXPECT_EQ(message, "Erreur surcharge []: dimension depassee.");
    }
}

TEST(Hyperboloid, NegativeGridSizesCountAsNone) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.regenerate(startUp, -1, -5);
    EXPECT_EQ(hyperboloid.getNumCol(), 0U);
    EXPECT_EQ(hyperboloid.getNumRow(), 0U);
    EXPECT_TRUE(hyperboloid.vertices.empty());
}

TEST(Hyperboloid, RegularParametersWriteNoMessage) {
    EXPECT_EQ(messagesOfConstruction(startUp), "");
    EXPECT_EQ(messagesOfConstruction(unswapped), "");
}

TEST(Hyperboloid, AMissingK13WritesTheLambdaMessageThenTheShiftMessage) {
    EXPECT_EQ(messagesOfConstruction(withoutK13), lambdaMessage + shiftMessage);
}

TEST(Hyperboloid, AMissingK23WritesTheLambdaMessageThenTheShiftMessage) {
    EXPECT_EQ(messagesOfConstruction(withoutK23), lambdaMessage + shiftMessage);
}

TEST(Hyperboloid, AVanishingSigmaWritesTheLambdaMessageOnly) {
    EXPECT_EQ(messagesOfConstruction(withoutUHat), lambdaMessage);
}

TEST(Hyperboloid, EqualK1AndK2WriteNoMessage) {
    EXPECT_EQ(messagesOfConstruction({1.0, 1.0, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0}), "");
    EXPECT_EQ(messagesOfConstruction({1.0, 1.0, 1.0, 0.0, 0.0, 1.0, 0.0, 0.0}), "");
}

TEST(Hyperboloid, VanishingBdFallsBackToAUnitSurfaceAtTheOrigin) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    messagesOf(hyperboloid, withoutK13);
    EXPECT_EQ(coordinates(hyperboloid.lambda), (Triplet{1.0, 1.0, 1.0}));
    EXPECT_EQ(coordinates(hyperboloid.shift), (Triplet{0.0, 0.0, 0.0}));
    EXPECT_EQ(hyperboloid.semiAxis, (std::array<float, 3>{1.0F, 1.0F, 1.0F}));
    hyperboloid.init_tables();
    hyperboloid.generateHyperboloidPoints(true, true);
    for (const float coordinate : floatsOf(hyperboloid.vertices)) {
        EXPECT_TRUE(std::isfinite(coordinate));
    }
}

TEST(Hyperboloid, VanishingSigmaKeepsTheComputedShift) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const std::string messages =
        messagesOf(hyperboloid, {1.0, 1.5, 1.0, 0.5, 0.5, 1.0, -2.0 / 3.0, 0.0});
    ASSERT_EQ(hyperboloid.a, -2.0F);
    ASSERT_EQ(hyperboloid.c, -2.0F);
    EXPECT_EQ(messages, lambdaMessage);
    EXPECT_EQ(coordinates(hyperboloid.lambda), (Triplet{1.0, 1.0, 1.0}));
    EXPECT_EQ(coordinates(hyperboloid.shift), (Triplet{4.0, 0.0, 0.0}));
}

TEST(Hyperboloid, DegenerateParametersKeepTheEarlierAxes) {
    testing::internal::CaptureStderr();
    const ExposedHyperboloid fresh(withoutK13, Hyperboloid::USPACE);
    EXPECT_FALSE(fresh.swapAxes);

    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.setGrid(withoutK13, 4, 4);
    EXPECT_TRUE(hyperboloid.swapAxes);
    hyperboloid.setGrid(unswapped, 4, 4);
    hyperboloid.setGrid(withoutUHat, 4, 4);
    EXPECT_FALSE(hyperboloid.swapAxes);
    testing::internal::GetCapturedStderr();
}

TEST(Hyperboloid, CoefficientOperationsTakeTheirArgumentsNotTheFields) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    EXPECT_EQ(coordinates(hyperboloid.get_lambda_set_coeff(-2.0F, 1.0F, 0.0F, 1.0F)),
              (Triplet{0.25, 0.25, 1.0}));
    EXPECT_FALSE(hyperboloid.swapAxes);
    EXPECT_EQ(coordinates(hyperboloid.get_shift(1.0F, 1.0F, 3.0F, 1.0F)),
              (Triplet{-4.0, 2.0, 2.0}));
    EXPECT_EQ(entries(hyperboloid.get_rotationMatrix(0.25F, 0.5F))[0], (Triplet{1.0, 1.0, -0.75}));

    testing::internal::CaptureStderr();
    EXPECT_EQ(coordinates(hyperboloid.get_lambda_set_coeff(1.0F, 0.0F, 1.0F, 1.0F)),
              (Triplet{1.0, 1.0, 1.0}));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), lambdaMessage);
    testing::internal::CaptureStderr();
    EXPECT_EQ(coordinates(hyperboloid.get_shift(1.0F, 0.0F, 1.0F, 1.0F)), (Triplet{0.0, 0.0, 0.0}));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), shiftMessage);
}

TEST(Hyperboloid, ThePointMarkersShareOneSphereThatIsResized) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const SoGroup* group = hyperboloid.sphereGroup.get();
    ASSERT_EQ(group->getNumChildren(), 1);
    ASSERT_TRUE(group->getChild(0)->isOfType(SoSphere::getClassTypeId()));
    EXPECT_EQ(static_cast<SoSphere*>(group->getChild(0))->radius.getValue(), 0.3F);

    hyperboloid.createMySphere(1.5F);
    EXPECT_EQ(hyperboloid.sphereGroup.get(), group);
    ASSERT_EQ(group->getNumChildren(), 1);
    EXPECT_EQ(static_cast<SoSphere*>(group->getChild(0))->radius.getValue(), 1.5F);
}

TEST(Hyperboloid, AResizedMarkerIsAnotherSphereThanBefore) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const NodePointer<SoSphere> before(
        static_cast<SoSphere*>(hyperboloid.sphereGroup->getChild(0)));
    hyperboloid.createMySphere(1.5F);
    EXPECT_NE(hyperboloid.sphereGroup->getChild(0), before.get());
    EXPECT_EQ(before->radius.getValue(), 0.3F);
}

TEST(Hyperboloid, ThePointRadiusOfTheParametersIsTheMarkersRadius) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::MSPACE);
    HyperboloidParameters parameters = startUp;
    parameters.pointRadius = 0.53;
    hyperboloid.setParameters(parameters);
    ASSERT_EQ(hyperboloid.sphereGroup->getNumChildren(), 1);
    EXPECT_EQ(static_cast<SoSphere*>(hyperboloid.sphereGroup->getChild(0))->radius.getValue(),
              0.53F);
}

TEST(Hyperboloid, NodesOutliveTheModelAsLongAsAnotherOwnerHoldsThem) {
    NodePointer<SoMaterial> material;
    NodePointer<SoGroup> sphereGroup;
    {
        const ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
        material = hyperboloid.material;
        sphereGroup = hyperboloid.sphereGroup;
        EXPECT_EQ(material->getRefCount(), 2);
        EXPECT_EQ(sphereGroup->getRefCount(), 2);
    }
    EXPECT_EQ(material->getRefCount(), 1);
    EXPECT_EQ(sphereGroup->getRefCount(), 1);
}

} // namespace
