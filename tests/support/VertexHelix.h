#pragma once

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <gtest/gtest.h>

/** Expects that a helix frame shows everything that a vertex of the hyperboloid makes of it. */
inline void expectHelixOfVertex(const HelixFrame& frame, const HyperboloidFrame& uFrame,
                                int vertex) {
    const auto u = [&](int c) {
        return uFrame.getVertex(vertex, c);
    };
    const auto color = [&](int c) {
        return uFrame.getColor(vertex, c);
    };
    const Helix expected(u(0), u(1), u(2), color(0), color(1), color(2));
    EXPECT_EQ(frame.getIndex(), vertex);
    EXPECT_EQ(frame.getHelix().getRadius(), expected.getRadius());
    EXPECT_EQ(frame.getHelix().getPitch(), expected.getPitch());
    EXPECT_EQ(frame.getHelix().getCurvature(), expected.getCurvature());
    EXPECT_EQ(frame.getHelix().getTorsion(), expected.getTorsion());
    EXPECT_EQ(frame.getHelix().getPhi(), expected.getPhi());
    EXPECT_EQ(frame.getHelix().getHelixColor(), expected.getHelixColor());
    EXPECT_EQ(frame.getHelix().getTubeVertices(), expected.getTubeVertices());
    const auto coordinate = [&](int c) {
        return static_cast<double>(u(c));
    };
    EXPECT_EQ(frame.viewerTitle().toStdString(), QString("U = (%1; %2; %3)")
                                                     .arg(coordinate(0))
                                                     .arg(coordinate(1))
                                                     .arg(coordinate(2))
                                                     .toStdString());
}
