#pragma once

#include "hyperboloid/SurfaceCondition.h"

#include <QString>

/** What a user is told about a surface that is not the quadric of its parameters. */
namespace SurfaceConditionText {

/** What is drawn instead, and why, in few words; empty when the surface is the quadric. */
QString of(const SurfaceCondition& condition);

/** What this means for what is seen; empty when the surface is the quadric. */
QString explanation(const SurfaceCondition& condition);

} // namespace SurfaceConditionText
