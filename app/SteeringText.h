#pragma once

#include <QStringList>
#include <vector>

class HyperboloidFrame;

/** Which helix each surface steers, in words. */
namespace SteeringText {

/** A sentence for all surfaces that steer the same helix; where none is steered, how to tie one. */
QStringList of(const std::vector<HyperboloidFrame*>& surfaces);

} // namespace SteeringText
