#include "hyperboloid/HyperboloidEnergy.h"

#include "tests/hyperboloid/ExposedHyperboloid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using HyperboloidEnergy::Palette;
using Color = std::array<float, 3>;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

Color colorOf(double saturation, double lightness, float energy) {
    const FloatTriple rgb = Palette(saturation, lightness).colorOf(energy);
    return {rgb.x, rgb.y, rgb.z};
}

bool allNanOnceNormalized(std::vector<float> energies) {
    HyperboloidEnergy::normalize(energies);
    return std::all_of(energies.begin(), energies.end(), [](float e) { return std::isnan(e); });
}

void expectColor(const Color& color, float red, float green, float blue) {
    EXPECT_FLOAT_EQ(color[0], red);
    EXPECT_FLOAT_EQ(color[1], green);
    EXPECT_FLOAT_EQ(color[2], blue);
}

TEST(HyperboloidEnergy, EnergyIsTheQuadraticFormOfTheDifferenceFromUHat) {
    const TripleMatrix K{{2.0, 0.0, 5.0}, {0.0, 3.0, 7.0}, {5.0, 7.0, 11.0}};
    // w = (1, 2, 3): K w = (17, 27, 52)
    EXPECT_EQ(HyperboloidEnergy::energyAt({2.0F, 4.0F, 6.0F}, K, {1.0, 2.0, 3.0}),
              17.0 + 2.0 * 27.0 + 3.0 * 52.0);
}

TEST(HyperboloidEnergy, EnergyUsesTheDoubleMatrixAndTheDoubleUHat) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.set_k_uHat(0.1, 0.0, 0.0, 0.0, 0.0, 0.3, 0.0, 0.0);
    const double w = double{0.7F} - 0.3;
    EXPECT_EQ(hyperboloid.compute_energy({0.7F, 1.0F, 1.0F}), 0.1 * w * w);
}

TEST(HyperboloidEnergy, EveryEntryOfTheMatrixAndEveryCoordinateCounts) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.set_k_uHat(2, 3, 11, 5, 7, 1, 2, 3);
    // w = (1, 3, 4) and K w = (2 + 5 4, 3 3 + 7 4, 5 + 7 3 + 11 4).
    EXPECT_EQ(hyperboloid.compute_energy({2, 5, 7}), 22.0 * 1 + 37.0 * 3 + 70.0 * 4);
}

TEST(HyperboloidEnergy, EnergyOfUHatItselfIsZero) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    EXPECT_EQ(hyperboloid.compute_energy({1.0F, 0.0F, 0.0F}), 0.0);
}

TEST(HyperboloidEnergy, NormalizedEnergiesRunFromExactlyZeroToExactlyOne) {
    std::vector<float> energies{3.0F, -1.0F, 7.0F, 0.1F};
    HyperboloidEnergy::normalize(energies);
    EXPECT_EQ(energies[0], 0.5F);
    EXPECT_EQ(energies[1], 0.0F);
    EXPECT_EQ(energies[2], 1.0F);
    EXPECT_EQ(energies[3], (0.1F + 1.0F) / 8.0F);
}

TEST(HyperboloidEnergy, NormalizingNoEnergiesLeavesNone) {
    std::vector<float> energies;
    HyperboloidEnergy::normalize(energies);
    EXPECT_TRUE(energies.empty());
}

TEST(HyperboloidEnergy, EqualEnergiesBecomeNan) {
    EXPECT_TRUE(allNanOnceNormalized({4.0F, 4.0F, 4.0F}));
}

TEST(HyperboloidEnergy, ALeadingNanSpoilsAllEnergies) {
    EXPECT_TRUE(allNanOnceNormalized({nan, 1.0F, 2.0F}));
}

TEST(HyperboloidEnergy, ALaterNanStaysAlone) {
    std::vector<float> energies{1.0F, nan, 2.0F};
    HyperboloidEnergy::normalize(energies);
    EXPECT_EQ(energies[0], 0.0F);
    EXPECT_TRUE(std::isnan(energies[1]));
    EXPECT_EQ(energies[2], 1.0F);
}

TEST(HyperboloidEnergy, AnInfiniteEnergyPressesTheOthersToZero) {
    std::vector<float> energies{1.0F, infinity, 2.0F};
    HyperboloidEnergy::normalize(energies);
    EXPECT_EQ(energies[0], 0.0F);
    EXPECT_TRUE(std::isnan(energies[1]));
    EXPECT_EQ(energies[2], 0.0F);
}

TEST(HyperboloidColors, LowestEnergyIsBlueMiddleGreenHighestRed) {
    expectColor(colorOf(0.8, 0.5, 0.0F), 0.1F, 0.1F, 0.9F);
    expectColor(colorOf(0.8, 0.5, 0.5F), 0.1F, 0.9F, 0.1F);
    expectColor(colorOf(0.8, 0.5, 1.0F), 0.9F, 0.1F, 0.1F);
}

TEST(HyperboloidColors, QuarterEnergiesLieBetweenTwoChannels) {
    expectColor(colorOf(0.8, 0.5, 0.25F), 0.1F, 0.9F, 0.9F);  // hue 1/2
    expectColor(colorOf(0.8, 0.5, 0.75F), 0.9F, 0.9F, 0.1F);  // hue 1/6
    expectColor(colorOf(0.8, 0.5, 0.125F), 0.1F, 0.5F, 0.9F); // hue 7/12, green on the way up
    expectColor(colorOf(0.8, 0.5, 0.875F), 0.9F, 0.5F, 0.1F); // hue 1/12
}

TEST(HyperboloidColors, DarkLightnessTakesTheOtherFormulaOfTheHighestChannel) {
    // q = 0.25 (1 + 0.8) = 0.45, p = 0.05
    expectColor(colorOf(0.8, 0.25, 1.0F), 0.45F, 0.05F, 0.05F);
    // q = 0.75 + 0.8 - 0.6 = 0.95, p = 0.55
    expectColor(colorOf(0.8, 0.75, 1.0F), 0.95F, 0.55F, 0.55F);
    // On either side of 1/2, where the formulas part.
    expectColor(colorOf(0.8, 0.4997, 1.0F), 0.89946F, 0.09994F, 0.09994F);
    expectColor(colorOf(0.8, 0.5003, 1.0F), 0.90006F, 0.10054F, 0.10054F);
}

TEST(HyperboloidColors, WithoutSaturationEveryEnergyIsTheGreyOfTheLightness) {
    for (const float energy : {0.0F, 0.3F, 1.0F, nan, infinity, -infinity}) {
        EXPECT_EQ(colorOf(0.0, 0.3, energy), (Color{0.3F, 0.3F, 0.3F}));
    }
}

TEST(HyperboloidColors, FullLightnessIsWhiteAndNoneIsBlack) {
    for (const float energy : {0.0F, 0.1F, 0.3F, 0.5F, 0.77F, 1.0F}) {
        EXPECT_EQ(colorOf(0.8, 1.0, energy), (Color{1.0F, 1.0F, 1.0F}));
        EXPECT_EQ(colorOf(0.8, 0.0, energy), (Color{0.0F, 0.0F, 0.0F}));
    }
}

TEST(HyperboloidColors, FullSaturationReachesPureColours) {
    EXPECT_EQ(colorOf(1.0, 0.5, 1.0F), (Color{1.0F, 0.0F, 0.0F}));
    expectColor(colorOf(1.0, 0.5, 0.75F), 1.0F, 1.0F, 0.0F);
}

TEST(HyperboloidColors, ANanEnergyHasTheLowestValueInAllChannels) {
    expectColor(colorOf(0.8, 0.5, nan), 0.1F, 0.1F, 0.1F);
}

TEST(HyperboloidColors, ANanLightnessTakesOneHalfForTheHighestChannel) {
    const Color color = colorOf(0.8, static_cast<double>(nan), 0.5F);
    EXPECT_TRUE(std::isnan(color[0]));
    EXPECT_EQ(color[1], 0.5F);
    EXPECT_TRUE(std::isnan(color[2]));
}

TEST(HyperboloidColors, ATableIsColouredLikeItsSingleEnergies) {
    const std::vector<float> energies{0.0F, 0.11F, 0.5F, nan, 0.9F, 1.0F};
    const FloatTriple untouched{-1.0F, -1.0F, -1.0F};
    std::vector<FloatTriple> colors(energies.size() + 1, untouched);
    Palette(0.6, 0.4).colorsOf(energies, colors);
    for (std::size_t k = 0; k < energies.size(); ++k) {
        EXPECT_EQ((Color{colors[k].x, colors[k].y, colors[k].z}), colorOf(0.6, 0.4, energies[k]));
    }
    EXPECT_EQ(colors.back(), untouched);
}

TEST(HyperboloidColors, TheModelReadsItsSettingsWhenItColours) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.saturation = 0.0;
    hyperboloid.lightness = 0.25;
    hyperboloid.transparency = 0.75;
    const std::vector<float> energies = hyperboloid.energies;
    const std::vector<FloatTriple> points = hyperboloid.vertices;
    hyperboloid.generateHyperboloidPoints(false, true);
    EXPECT_EQ(hyperboloid.energies, energies);
    EXPECT_EQ(hyperboloid.vertices, points);
    const FloatTriple grey{0.25F, 0.25F, 0.25F};
    EXPECT_EQ(hyperboloid.colors, std::vector<FloatTriple>(64 * 64, grey));
    float rgb[3];
    hyperboloid.computeColorForPoint(0.5F, rgb);
    EXPECT_EQ(rgb[1], 0.25F);
}

TEST(HyperboloidColors, TheModelsColourOfAnEnergyIsThatOfThePalette) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.saturation = 0.6;
    hyperboloid.lightness = 0.4;
    float rgb[3];
    // Chroma 0.48 around 0.4, 11/24 of the way around from red: between green and cyan.
    hyperboloid.computeColorForPoint(0.3125F, rgb);
    EXPECT_FLOAT_EQ(rgb[0], 0.16F);
    EXPECT_FLOAT_EQ(rgb[1], 0.64F);
    EXPECT_FLOAT_EQ(rgb[2], 0.52F);
}

TEST(HyperboloidColors, RecolouringReadsTheStoredEnergies) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    hyperboloid.energies[5] = 0.5F;
    hyperboloid.generateHyperboloidPoints(false, true);
    EXPECT_FLOAT_EQ(hyperboloid.getColor(5, 0), 0.1F);
    EXPECT_FLOAT_EQ(hyperboloid.getColor(5, 1), 0.9F);
    EXPECT_FLOAT_EQ(hyperboloid.getColor(5, 2), 0.1F);
}

TEST(HyperboloidColors, TheColourOfAPositionFollowsItsOwnRule) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    float rgb[3];
    hyperboloid.computeColorForPoint({1.5F, -2.0F, 0.7F}, rgb);
    const float sums[] = {-2.0F * 1.5F + 0.7F * -2.0F, 0.7F * 1.5F + -2.0F * 0.7F,
                          1.5F * 0.7F + -2.0F * 1.5F};
    for (int i = 0; i < 3; ++i) {
        const float wave = std::fabs(std::sin(std::sqrt(std::fabs(sums[i]))));
        EXPECT_EQ(rgb[i], static_cast<float>(double{wave} * 0.8));
    }
    hyperboloid.computeColorForPoint({0.0F, 0.0F, 0.0F}, rgb);
    EXPECT_EQ(rgb[0], 0.0F);
}

} // namespace
